// A small seeded generator: the same numbers on every target and with every library.
#pragma once

#include <cstdint>
#include <string_view>

namespace zelmtest {

class Random { // splitmix64
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits() {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }

    // 0 to bound - 1
    std::uint32_t below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(((bits() >> 32) * bound) >> 32);
    }

    // first to last, both included
    std::int64_t between(std::int64_t first, std::int64_t last) {
        return first + static_cast<std::int64_t>(below(static_cast<std::uint32_t>(last - first + 1)));
    }

    bool chance(std::uint32_t percent) { return below(100) < percent; }

private:
    std::uint64_t state_;
};

// Every case of every function has a generator of its own, so that one case can be run again without the
// others.
inline std::uint64_t caseSeed(std::uint64_t seed, std::string_view function, std::uint64_t number) {
    std::uint64_t hash = 0xcbf29ce484222325u ^ seed;
    for (const char c : function)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    return Random(hash ^ (number * 0x9e3779b97f4a7c15u)).bits();
}

} // namespace zelmtest
