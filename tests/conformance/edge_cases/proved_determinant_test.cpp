// Fixed-size determinants of 32-bit floats in the standard and L layouts: whatever computes them, the entry
// points give what their extended-precision kernels give, bit by bit.
#include "zelm.h"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>

namespace {

constexpr std::uint32_t kMatrices = 61; // no multiple of any pack
constexpr std::int32_t kRow = 4 * sizeof(float), kObject = 4 * kRow;

// Matrices of order 3 are the corners of those of order 4.
struct Matrices {
    float elements[kMatrices][4][4];
    float *table[kMatrices];

    Matrices() {
        for (std::uint32_t k = 0; k < kMatrices; ++k)
            table[k] = elements[k][0];
    }
};

struct Results {
    float of[kMatrices];
};

bool areSame(float a, float b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

void expectSame(const Matrices &m, const Results &results, const Results &kernels, const std::string &what) {
    for (std::uint32_t k = 0; k < kMatrices; ++k)
        if (!areSame(results.of[k], kernels.of[k])) {
            std::ostringstream matrix;
            for (const float(&row)[4] : m.elements[k])
                matrix << std::hexfloat << row[0] << ' ' << row[1] << ' ' << row[2] << ' ' << row[3] << '\n';
            ADD_FAILURE() << what << ": " << std::hexfloat << results.of[k] << ", the kernel "
                          << kernels.of[k] << ", of\n"
                          << matrix.str();
            return;
        }
}

// The entry points of an order, and their kernels.
struct Forms {
    std::string size;
    decltype(&zelmDet_m_32f_3x3) m;
    decltype(&a6_Det_m_32f_3x3) kernelOfM;
    decltype(&zelmDet_ma_32f_3x3) ma;
    decltype(&a6_Det_ma_32f_3x3) kernelOfMa;
    decltype(&zelmDet_ma_32f_3x3_L) list;
    decltype(&a6_Det_ma_32f_3x3_L) kernelOfList;
};
const Forms order3 = {"3x3",
                      zelmDet_m_32f_3x3,
                      a6_Det_m_32f_3x3,
                      zelmDet_ma_32f_3x3,
                      a6_Det_ma_32f_3x3,
                      zelmDet_ma_32f_3x3_L,
                      a6_Det_ma_32f_3x3_L};
const Forms order4 = {"4x4",
                      zelmDet_m_32f_4x4,
                      a6_Det_m_32f_4x4,
                      zelmDet_ma_32f_4x4,
                      a6_Det_ma_32f_4x4,
                      zelmDet_ma_32f_4x4_L,
                      a6_Det_ma_32f_4x4_L};

void expectKernels(const Forms &forms, const Matrices &m) {
    Results results, kernels;
    for (std::uint32_t k = 0; k < kMatrices; ++k) {
        forms.m(m.table[k], kRow, results.of + k);
        forms.kernelOfM(m.table[k], kRow, kernels.of + k);
    }
    expectSame(m, results, kernels, "m " + forms.size);
    forms.ma(m.table[0], kObject, kRow, results.of, kMatrices);
    forms.kernelOfMa(m.table[0], kObject, kRow, kernels.of, kMatrices);
    expectSame(m, results, kernels, "ma " + forms.size);
    forms.list(m.table, 0, kRow, results.of, kMatrices);
    forms.kernelOfList(m.table, 0, kRow, kernels.of, kMatrices);
    expectSame(m, results, kernels, "L " + forms.size);
}

using Random = std::mt19937;

int below(Random &random, int end) {
    return static_cast<int>(random() % static_cast<unsigned>(end));
}

// An odd number of so many bits, or its negative.
float oddOf(Random &random, int bits) {
    const auto number = static_cast<float>(random() >> (32 - bits) | 1 | 1u << (bits - 1));
    return random() % 2 == 0 ? number : -number;
}

float powerOfTwo(Random &random, int lowest, int highest) {
    const float power = std::ldexp(1.0f, lowest + below(random, highest - lowest + 1));
    return random() % 2 == 0 ? power : -power;
}

// Writes [x r; s z] into rows i and i + 1, columns 0 and 1: x z lies in the middle of two adjacent 32-bit
// floats, an odd number of 25 bits, or on one of them, 24 bits, and r s is so much smaller that 64-bit float
// or even extended precision may not see it.
void writeMinorBesideABorder(Random &random, Matrices &m, std::uint32_t k, int i) {
    float x, z, product;
    const float border = random() % 4 == 0 ? 0x1p23f : 0x1p24f;
    do {
        x = oddOf(random, 12);
        z = oddOf(random, 13);
        product = std::fabs(x * z);
    } while (product < border || product >= 2 * border);
    m.elements[k][i][0] = x;
    m.elements[k][i + 1][1] = z;
    m.elements[k][i][1] = powerOfTwo(random, -20, 0) * (random() % 2 == 0 ? 1 : oddOf(random, 3));
    m.elements[k][i + 1][0] = powerOfTwo(random, -30, -1);
}

// Of order 3, the determinant itself; of order 4, the minor that a kernel rounds, which is the determinant
// then.
TEST(ProvedDeterminant, BesideTheBordersOf32BitFloats) {
    Random random(1);
    Matrices m;
    for (int round = 0; round < 8000; ++round) {
        for (std::uint32_t k = 0; k < kMatrices; ++k) {
            std::memset(m.elements[k], 0, sizeof m.elements[k]);
            writeMinorBesideABorder(random, m, k, 0);
            m.elements[k][2][2] = powerOfTwo(random, -100, 90);
        }
        expectKernels(order3, m);
        for (std::uint32_t k = 0; k < kMatrices; ++k) {
            std::memset(m.elements[k], 0, sizeof m.elements[k]);
            writeMinorBesideABorder(random, m, k, 2);
            m.elements[k][0][2] = powerOfTwo(random, -50, 40);
            m.elements[k][1][3] = powerOfTwo(random, -50, 40);
        }
        expectKernels(order4, m);
        if (HasFailure())
            return;
    }
}

float numberOfAnyKind(Random &random, int kind) {
    switch (kind) {
    case 0:
        return powerOfTwo(random, 0, 0) * static_cast<float>(below(random, 4));
    case 1:
        return oddOf(random, 1 + below(random, 24));
    case 2:
        return oddOf(random, 24) * powerOfTwo(random, -60, 20);
    case 3:
        return random() % 3 == 0 ? 0.0f : oddOf(random, 3) * powerOfTwo(random, -149, 120);
    case 4:
        return random() % 8 == 0 ? -0.0f : oddOf(random, 12) * 0x1p-12f;
    default:
        const auto bits = static_cast<std::uint32_t>(random());
        float number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }
}

void writeMatricesOfAnyKind(Random &random, Matrices &m) {
    const int kind = below(random, 6);
    for (auto &matrix : m.elements) {
        for (float(&row)[4] : matrix)
            for (float &element : row)
                element = numberOfAnyKind(random, kind);
        if (random() % 4 == 0) // singular, or nearly
            for (int j = 0; j < 4; ++j)
                matrix[1][j] = 2 * matrix[0][j] + (random() % 2 == 0 ? 0 : powerOfTwo(random, -30, 0));
    }
}

TEST(ProvedDeterminant, OfNumbersOfAllKinds) {
    Random random(2);
    Matrices m;
    for (int round = 0; round < 8000 && !HasFailure(); ++round) {
        writeMatricesOfAnyKind(random, m);
        expectKernels(order3, m);
        expectKernels(order4, m);
    }
}

// What the caller has set.
struct Modes {
    unsigned x87;   // bits of the control word: precision, rounding
    unsigned mxcsr; // bits of rounding, flush to zero, denormals are zero
};

void expectKernelsIn(const Modes &modes, const Matrices &m) {
    const unsigned mxcsr = _mm_getcsr();
    std::uint16_t before;
    asm volatile("fnstcw %0" : "=m"(before));
    const auto word = static_cast<std::uint16_t>((before & ~0xf00u) | modes.x87);
    asm volatile("fldcw %0" : : "m"(word));
    _mm_setcsr((mxcsr & ~0xe040u) | modes.mxcsr);
    expectKernels(order3, m);
    expectKernels(order4, m);
    _mm_setcsr(mxcsr);
    asm volatile("fldcw %0" : : "m"(before));
}

TEST(ProvedDeterminant, InEveryMode) {
    Random random(3);
    Matrices m;
    for (int round = 0; round < 100 && !HasFailure(); ++round) {
        writeMatricesOfAnyKind(random, m);
        if (round % 2 == 0)
            for (std::uint32_t k = 0; k < kMatrices; ++k)
                writeMinorBesideABorder(random, m, k, 2);
        for (const unsigned precision : {0x000u, 0x200u, 0x300u})
            for (const unsigned rounding : {0x000u, 0x400u, 0x800u, 0xc00u})
                for (const unsigned mxcsr : {0u, 0x2000u, 0x4000u, 0x6000u, 0x8040u})
                    expectKernelsIn({precision | rounding, mxcsr}, m);
    }
}

} // namespace
