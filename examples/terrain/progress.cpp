#include "progress.h"

#include <cstdio>
#include <unistd.h>

namespace terrain {

Progress::Progress(Show show) : mode_(show), isTerminal_(isatty(STDERR_FILENO) != 0) {}

void Progress::show(const char *job, std::size_t done, std::size_t all) {
    if (mode_ == Show::OnTerminal && !isTerminal_) {
        return;
    }
    if (job != job_) {
        job_ = job;
        percent_ = 0;
        start_ = std::chrono::steady_clock::now();
    }
    const auto percent =
        static_cast<std::size_t>(100.0 * static_cast<double>(done) / static_cast<double>(all));
    if (percent == percent_) {
        return;
    }
    if (isTerminal_) {
        showOnTerminal(percent);
    } else if (percent / 10 > percent_ / 10) {
        std::fprintf(stderr, "%s %zu %%\n", job_, percent);
    }
    percent_ = percent;
}

void Progress::showOnTerminal(std::size_t percent) {
    constexpr std::chrono::milliseconds moment(300);
    if (mode_ == Show::OnTerminal && std::chrono::steady_clock::now() - start_ < moment) {
        return;
    }
    std::fprintf(stderr, "\r\033[K%s %zu %%", job_, percent);
    std::fflush(stderr);
    isShown_ = true;
}

void Progress::clear() {
    if (isShown_) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
        isShown_ = false;
    }
}

} // namespace terrain
