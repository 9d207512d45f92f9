#include "numbers.h"

#include <bit>
#include <utility>

namespace zelmtest {
namespace {

struct Format {
    int fractionBits, exponentBias;
};

constexpr Format format32 = {23, 127}, format64 = {52, 1023};

std::uint64_t assemble(const Format &format, bool negative, int biasedExponent, std::uint64_t fraction) {
    const int signBit = format.fractionBits == 23 ? 31 : 63;
    const std::uint64_t mask = (std::uint64_t{1} << format.fractionBits) - 1;
    return (static_cast<std::uint64_t>(negative) << signBit) |
           (static_cast<std::uint64_t>(biasedExponent) << format.fractionBits) | (fraction & mask);
}

std::uint64_t power(Random &random, const Format &format, int exponent, bool exact) {
    const std::uint64_t fraction = random.bits();
    return assemble(format, random.chance(50), format.exponentBias + exponent, exact ? 0 : fraction);
}

std::uint64_t integer(const Format &format, std::int64_t value) {
    if (format.fractionBits == 23)
        return std::bit_cast<std::uint32_t>(static_cast<float>(value));
    return std::bit_cast<std::uint64_t>(static_cast<double>(value));
}

std::uint64_t special(Random &random, const Format &format) {
    const std::uint64_t payload = random.bits();
    const std::uint64_t quiet = std::uint64_t{1} << (format.fractionBits - 1);
    const int top = 2 * format.exponentBias + 1;
    const bool negative = random.chance(50);
    switch (random.below(12)) {
    case 0:
    case 1:
        return assemble(format, negative, 0, 0); // zero
    case 2:
    case 3:
        return assemble(format, negative, top, 0); // infinity
    case 4:
        return assemble(format, negative, top, quiet | payload); // quiet NaN
    case 5:
        return assemble(format, negative, top, (payload & (quiet - 1)) | 1); // signalling NaN
    case 6:
        return assemble(format, negative, 0, 1); // least denormal
    case 7:
        return assemble(format, negative, 0, payload); // denormal
    case 8:
        return assemble(format, negative, 1, 0); // least normal
    case 9:
        return assemble(format, negative, top - 1, ~std::uint64_t{0}); // greatest finite
    case 10:
        return assemble(format, negative, format.exponentBias, 0); // one
    default:
        return assemble(format, negative, top - 1, payload); // huge
    }
}

std::uint64_t nearThreshold(Random &random, const Format &format) {
    const std::uint64_t exact = assemble(format, random.chance(50), format.exponentBias - 23, 0);
    switch (random.below(4)) {
    case 0:
        return exact - 1;
    case 1:
        return exact + 1;
    default:
        return exact;
    }
}

} // namespace

std::uint64_t drawNumber(Random &random, Style style, bool wide64) {
    const Format &format = wide64 ? format64 : format32;
    switch (style) {
    case Style::Plain:
        return power(random, format, static_cast<int>(random.between(-3, 2)), false);
    case Style::Small:
        return integer(format, random.between(-3, 3));
    case Style::Special:
        return special(random, format);
    case Style::Mixed:
        return random.chance(8) ? special(random, format) : power(random, format, 0, false);
    case Style::AnyBits:
        return wide64 ? random.bits() : random.bits() >> 32;
    case Style::Wide: {
        const auto exponent = static_cast<int>(random.between(-125, 125));
        const bool exact = random.chance(30);
        return power(random, format, exponent, exact);
    }
    case Style::Threshold:
        return random.chance(50) ? nearThreshold(random, format) : integer(format, random.between(-1, 1));
    case Style::Signs:
        return assemble(format, random.chance(50), random.chance(50) ? 0 : format.exponentBias, 0);
    }
    return 0;
}

void drawMatrix(Random &random, Style style, bool wide64, std::uint32_t n,
                std::vector<std::uint64_t> &elements) {
    elements.clear();
    if (style != Style::Threshold || n == 0) {
        for (std::uint32_t e = 0; e < n * n; ++e)
            elements.push_back(drawNumber(random, style, wide64));
        if (style == Style::Plain && n > 1 && random.chance(10)) { // two rows that tie, or that are one
            const std::uint32_t equal = random.chance(50) ? 1 : n;
            for (std::uint32_t j = 0; j < equal; ++j)
                elements[(n - 1) * n + j] = elements[j];
        }
        return;
    }
    const std::uint32_t position = random.below(n);
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            elements.push_back(i > j           ? 0
                               : i < j         ? drawNumber(random, Style::Plain, wide64)
                               : i == position ? nearThreshold(random, wide64 ? format64 : format32)
                                               : drawNumber(random, Style::Plain, wide64));
    for (std::uint32_t i = n; i-- > 1;) {
        const std::uint32_t other = random.below(i + 1);
        for (std::uint32_t j = 0; j < n; ++j)
            std::swap(elements[i * n + j], elements[other * n + j]);
    }
}

} // namespace zelmtest
