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

std::uint64_t encode(const Format &format, double value) {
    if (format.fractionBits == 23)
        return std::bit_cast<std::uint32_t>(static_cast<float>(value));
    return std::bit_cast<std::uint64_t>(value);
}

// The product of L, D and the transpose of L, all but D in small integers, so that each pivot is exact.
std::vector<double> exactSymmetric(Random &random, std::uint32_t n) {
    constexpr double others[] = {0.0, -1.0, 0x1p-20, -0x1p-20};
    std::vector<double> l(n * n), d(n), product(n * n);
    const std::uint32_t position = random.below(n), other = random.below(4);
    for (std::uint32_t i = 0; i < n; ++i) {
        const bool four = random.chance(50);
        d[i] = i == position ? others[other] : four ? 4 : 1;
        for (std::uint32_t j = 0; j < n; ++j)
            l[i * n + j] = i == j ? 1 : j < i ? static_cast<double>(random.between(-2, 2)) : 0;
    }
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j)
            for (std::uint32_t k = 0; k < n; ++k)
                product[i * n + j] += l[i * n + k] * d[k] * l[j * n + k];
    return product;
}

// Positive definite by its heavy diagonal.
std::vector<double> heavySymmetric(Random &random, std::uint32_t n) {
    std::vector<double> matrix(n * n);
    const auto number = [&] { return static_cast<double>(random.between(-(1 << 20), 1 << 20)) * 0x1p-20; };
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < i; ++j)
            matrix[i * n + j] = matrix[j * n + i] = number();
    for (std::uint32_t i = 0; i < n; ++i)
        matrix[i * n + i] = 0.6 * n + number() / 2;
    return matrix;
}

// A number at which a test of Det or Invert turns over, or one next to it.
std::uint64_t nearTurn(Random &random, const Format &format) {
    const bool wide64 = format.fractionBits == 52;
    const double turns[] = {wide64 ? 0x1p-52 : 0x1p-23, wide64 ? 1e-15 : 1e-7};
    const double turn = turns[random.below(2)];
    const std::uint64_t step = random.below(3);
    const bool negative = random.chance(50);
    return encode(format, negative ? -turn : turn) + step - 1;
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
        const bool negative = random.chance(50), zero = random.chance(50);
        return assemble(format, negative, zero ? 0 : format.exponentBias, 0);
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

void drawSquare(Random &random, Style style, bool wide64, std::uint32_t n,
                std::vector<std::uint64_t> &elements) {
    const Format &format = wide64 ? format64 : format32;
    if (style == Style::Threshold && random.chance(60)) { // triangular, with exact pivots but one
        const std::uint32_t position = random.chance(30) ? n - 1 : random.below(n);
        const bool plain = random.chance(50), exchanged = random.chance(40);
        elements.clear();
        for (std::uint32_t i = 0; i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j) {
                const std::uint64_t above =
                    plain ? drawNumber(random, Style::Plain, wide64) : integer(format, random.between(-1, 1));
                const std::uint64_t one = integer(format, random.chance(50) ? 1 : -1);
                elements.push_back(i > j           ? 0
                                   : i < j         ? above
                                   : i == position ? nearTurn(random, format)
                                                   : one);
            }
        const std::uint32_t other = random.below(n);
        for (std::uint32_t j = 0; exchanged && j < n; ++j)
            std::swap(elements[j], elements[other * n + j]);
        return;
    }

    drawMatrix(random, style, wide64, n, elements);
    if (n < 2 || random.chance(40))
        return;
    const auto at = [&](std::uint32_t i, std::uint32_t j) -> std::uint64_t & { return elements[i * n + j]; };
    const std::uint64_t tiny = random.chance(50) ? 0 : nearTurn(random, format);
    const std::uint32_t p = random.below(n), q = random.below(n);
    switch (random.below(9)) {
    case 0: // no pivot where it is looked for first
        at(0, 0) = tiny;
        break;
    case 1: // two columns with the same head
        for (std::uint32_t i = 0; i < 2; ++i)
            at(i, 0) = at(i, 1);
        break;
    case 2: // a first row of ties
        for (std::uint32_t j = 0; j < n; ++j)
            at(0, j) = integer(format, random.chance(50) ? 1 : -1);
        at(0, p) = at(0, 0) = tiny;
        break;
    case 3: // ties in two rows
        for (std::uint32_t i = 0; i < 2; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                at(i, j) = drawNumber(random, Style::Small, wide64);
        break;
    case 4: // two rows with two columns
        for (std::uint32_t i = 0; i < 2; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                if (j != p && j != q)
                    at(i, j) = tiny;
        break;
    case 5: // a first row with one column
        for (std::uint32_t j = 0; j < n; ++j)
            if (j != p)
                at(0, j) = 0;
        break;
    case 6: // a zero row or column
        for (std::uint32_t j = 0; j < n; ++j)
            (p < n / 2 ? at(q, j) : at(j, q)) = 0;
        break;
    case 7: // two equal rows
        for (std::uint32_t j = 0; j < n; ++j)
            at(p, j) = at(q, j);
        break;
    default: // three rows with three columns
        for (std::uint32_t i = 0; i < 3 && i < n; ++i)
            for (std::uint32_t j = 0; j < n; ++j)
                if ((j + p) % n >= 3)
                    at(i, j) = 0;
    }
}

void drawSymmetricMatrix(Random &random, Style style, bool wide64, std::uint32_t n,
                         std::vector<std::uint64_t> &elements) {
    const Format &format = wide64 ? format64 : format32;
    const bool wholly = random.chance(20), noise = random.chance(50);
    const std::uint32_t position = random.below(n), row = random.below(n), column = random.below(n);
    const std::vector<double> numbers =
        style == Style::Threshold ? exactSymmetric(random, n) : heavySymmetric(random, n);
    elements.clear();
    for (const double number : numbers)
        elements.push_back(encode(format, number));
    if (style != Style::Plain && style != Style::Threshold) {
        elements[position * n + position] = drawNumber(random, style, wide64);
        elements[row * n + column] = drawNumber(random, style, wide64);
    }
    for (std::uint32_t i = 0; i < n; ++i)
        for (std::uint32_t j = 0; j < n; ++j) {
            if (wholly && style != Style::Plain)
                elements[i * n + j] = drawNumber(random, style, wide64);
            if (noise && j > i)
                elements[i * n + j] = drawNumber(random, Style::AnyBits, wide64);
        }
}

void drawColumns(Random &random, Style style, bool wide64, std::uint32_t rows, std::uint32_t columns,
                 std::vector<std::uint64_t> &elements) {
    const Format &format = wide64 ? format64 : format32;
    elements.clear();
    if (style != Style::Threshold) {
        const bool zeroColumn = random.chance(10);
        const std::uint32_t zeros = random.below(columns);
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j) {
                const std::uint64_t number = drawNumber(random, style, wide64);
                elements.push_back(zeroColumn && style == Style::Plain && j == zeros && i >= j ? 0 : number);
            }
        return;
    }
    // Triangular, so that a reflector changes no column behind its row, with squares of 2^-24 twice in one
    // column.
    const std::uint32_t position = random.below(columns), second = random.below(rows);
    const bool negative = random.chance(50);
    const std::uint64_t exact = encode(format, negative ? -0x1p-12 : 0x1p-12);
    for (std::uint32_t i = 0; i < rows; ++i)
        for (std::uint32_t j = 0; j < columns; ++j) {
            const std::uint64_t number = drawNumber(random, Style::Plain, wide64);
            elements.push_back(i > j || j == position ? 0 : number);
        }
    const std::uint32_t below = random.below(3);
    const std::uint64_t near = below == 0 ? exact - 1 : exact + (below - 1) * 4;
    if (position < rows)
        elements[position * columns + position] = exact;
    if (position < second)
        elements[second * columns + position] = near;
    else if (position + 1 < rows)
        elements[(position + 1) * columns + position] = near;
}

} // namespace zelmtest
