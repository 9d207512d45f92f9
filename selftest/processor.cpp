#include "processor.h"

#include <algorithm>
#include <bit>
#include <cpuid.h>
#include <cstring>
#include <xmmintrin.h>

namespace zelmtest {
namespace {

void mix(std::uint64_t &hash, __m128 four) {
    std::uint64_t words[2];
    std::memcpy(words, &four, sizeof words);
    for (const std::uint64_t word : words) {
        hash = (hash ^ word) * 0x9e3779b97f4a7c15u;
        hash ^= hash >> 32;
    }
}

__m128 fourFrom(std::uint32_t bits, std::uint32_t step) {
    return _mm_setr_ps(std::bit_cast<float>(bits), std::bit_cast<float>(bits + step),
                       std::bit_cast<float>(bits + 2 * step), std::bit_cast<float>(bits + 3 * step));
}

} // namespace

std::uint64_t approximations() {
    std::uint64_t hash = 0;
    constexpr std::uint32_t one = 0x3f800000, four = 0x40800000, two = 0x40000000;
    for (std::uint32_t bits = one; bits != two; bits += 4)
        mix(hash, _mm_rcp_ps(fourFrom(bits, 1)));
    for (std::uint32_t bits = one; bits != four; bits += 4)
        mix(hash, _mm_rsqrt_ps(fourFrom(bits, 1)));
    // Every sign and exponent, with 16 mantissas each. No NaN: what becomes of its payload is no table.
    for (std::uint32_t exponent = 0; exponent < 512; ++exponent)
        for (std::uint32_t mantissa = 0; mantissa < 16; mantissa += 4) {
            if (exponent % 256 == 255)
                continue;
            const __m128 x = fourFrom((exponent << 23) + (mantissa << 19), 1u << 19);
            mix(hash, _mm_rcp_ps(x));
            if (exponent < 256)
                mix(hash, _mm_rsqrt_ps(x));
        }
    return hash;
}

std::string processorName() {
    unsigned words[12] = {};
    for (unsigned leaf = 0; leaf < 3; ++leaf)
        if (!__get_cpuid(0x80000002u + leaf, &words[4 * leaf], &words[4 * leaf + 1], &words[4 * leaf + 2],
                         &words[4 * leaf + 3]))
            return "unnamed processor";
    char text[sizeof words + 1] = {};
    std::memcpy(text, words, sizeof words);
    std::string name = text;
    const auto isSpace = [](char a, char b) { return a == ' ' && b == ' '; };
    name.erase(std::unique(name.begin(), name.end(), isSpace), name.end());
    while (!name.empty() && name.back() == ' ')
        name.pop_back();
    return name.empty() ? "unnamed processor" : name;
}

} // namespace zelmtest
