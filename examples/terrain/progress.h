// Tells on standard error how far a long job has come.
#pragma once

#include <chrono>
#include <cstddef>

namespace terrain {

class Progress {
public:
    enum class Show {
        OnTerminal, // on a terminal, and there only for a job that takes a moment
        Always      // a line for every tenth of a job if there is no terminal
    };
    explicit Progress(Show show);
    ~Progress() { clear(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    // `job` is a literal: its address tells one job from the next.
    void show(const char *job, std::size_t done, std::size_t all);

    // Wipes the line on the terminal, so that a message may follow.
    void clear();

private:
    void showOnTerminal(std::size_t percent);

    Show mode_;
    bool isTerminal_;
    bool isShown_ = false;
    const char *job_ = nullptr;
    std::size_t percent_ = 0;
    std::chrono::steady_clock::time_point start_;
};

} // namespace terrain
