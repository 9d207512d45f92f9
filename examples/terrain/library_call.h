// Calls of the library: their time, and statuses that nothing in this program should give.
#pragma once

#include <chrono>
#include <stdexcept>
#include <string>
#include <zelm.h>

namespace terrain {

// Adds up the seconds that calls take.
class Stopwatch {
public:
    template <class Call>
    ZelmStatus time(Call call) {
        const Clock::time_point start = Clock::now();
        const ZelmStatus status = call();
        spent_ += Clock::now() - start;
        return status;
    }
    double seconds() const { return std::chrono::duration<double>(spent_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    Clock::duration spent_{};
};

inline void requireOk(ZelmStatus status, const char *function) {
    if (status != ZELM_OK) {
        throw std::logic_error(std::string(function) + " returned status " + std::to_string(status));
    }
}

} // namespace terrain
