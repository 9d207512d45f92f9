// Loops for determinants and inverses. They test nothing.
#include "peers.h"
#include "register.h"

#include <cmath>
#include <utility>

namespace zelmbench {
namespace {

template <class T>
T determinantOf3(const auto &a) {
    return a(0, 0) * (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) -
           a(0, 1) * (a(1, 0) * a(2, 2) - a(1, 2) * a(2, 0)) +
           a(0, 2) * (a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0));
}

// The twelve minors of the upper and the lower two rows.
template <class T>
struct Minors {
    T upper[6], lower[6];

    explicit Minors(const auto &a) {
        constexpr std::size_t first[] = {0, 0, 0, 1, 1, 2}, second[] = {1, 2, 3, 2, 3, 3};
        each(Unrolled<6>{}, [&](std::size_t m) {
            const std::size_t f = first[m], s = second[m];
            upper[m] = a(0, f) * a(1, s) - a(0, s) * a(1, f);
            lower[m] = a(2, f) * a(3, s) - a(2, s) * a(3, f);
        });
    }
    T determinant() const {
        return upper[0] * lower[5] - upper[1] * lower[4] + upper[2] * lower[3] + upper[3] * lower[2] -
               upper[4] * lower[1] + upper[5] * lower[0];
    }
};

// Gaussian elimination with partial pivoting.
template <std::size_t room, class T>
T determinantByElimination(std::size_t n, const auto &a) {
    T m[room][room];
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            m[i][j] = a(i, j);
        }
    }
    T product = 1;
    for (std::size_t c = 0; c < n; ++c) {
        std::size_t best = c;
        for (std::size_t i = c + 1; i < n; ++i) {
            if (std::abs(m[i][c]) > std::abs(m[best][c])) {
                best = i;
            }
        }
        if (best != c) {
            for (std::size_t j = c; j < n; ++j) {
                std::swap(m[c][j], m[best][j]);
            }
            product = -product;
        }
        product *= m[c][c];
        const T reciprocal = 1 / m[c][c];
        for (std::size_t i = c + 1; i < n; ++i) {
            const T multiplier = m[i][c] * reciprocal;
            for (std::size_t j = c + 1; j < n; ++j) {
                m[i][j] -= multiplier * m[c][j];
            }
        }
    }
    return product;
}

struct Determinant : KernelTraits {
    static constexpr const char *operation = "Det";
    static constexpr bool isSolver = true;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    template <class N, class T>
    static void object(N n, const auto &a, int, int, auto d, const Extras<T> &) {
        if constexpr (sizeOf<N> == 3) {
            d(0) = determinantOf3<T>(a);
        } else if constexpr (sizeOf<N> == 4) {
            d(0) = Minors<T>(a).determinant();
        } else {
            d(0) = determinantByElimination<room<N>, T>(n, a);
        }
    }
};

template <class T>
void invert3(const auto &a, auto d) {
    const T c00 = a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1), c10 = a(1, 2) * a(2, 0) - a(1, 0) * a(2, 2),
            c20 = a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0);
    const T r = 1 / (a(0, 0) * c00 + a(0, 1) * c10 + a(0, 2) * c20);
    const T c01 = a(0, 2) * a(2, 1) - a(0, 1) * a(2, 2), c11 = a(0, 0) * a(2, 2) - a(0, 2) * a(2, 0),
            c21 = a(0, 1) * a(2, 0) - a(0, 0) * a(2, 1), c02 = a(0, 1) * a(1, 2) - a(0, 2) * a(1, 1),
            c12 = a(0, 2) * a(1, 0) - a(0, 0) * a(1, 2), c22 = a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0);
    const T inverse[] = {c00 * r, c01 * r, c02 * r, c10 * r, c11 * r, c12 * r, c20 * r, c21 * r, c22 * r};
    each(Unrolled<9>{}, [&](std::size_t e) { d(e / 3, e % 3) = inverse[e]; });
}

template <class T>
void invert4(const auto &a, auto d) {
    const Minors<T> m(a);
    const T *const s = m.upper, *const c = m.lower;
    const T r = 1 / m.determinant();
    const T inverse[] = {(a(1, 1) * c[5] - a(1, 2) * c[4] + a(1, 3) * c[3]) * r,
                         (-a(0, 1) * c[5] + a(0, 2) * c[4] - a(0, 3) * c[3]) * r,
                         (a(3, 1) * s[5] - a(3, 2) * s[4] + a(3, 3) * s[3]) * r,
                         (-a(2, 1) * s[5] + a(2, 2) * s[4] - a(2, 3) * s[3]) * r,
                         (-a(1, 0) * c[5] + a(1, 2) * c[2] - a(1, 3) * c[1]) * r,
                         (a(0, 0) * c[5] - a(0, 2) * c[2] + a(0, 3) * c[1]) * r,
                         (-a(3, 0) * s[5] + a(3, 2) * s[2] - a(3, 3) * s[1]) * r,
                         (a(2, 0) * s[5] - a(2, 2) * s[2] + a(2, 3) * s[1]) * r,
                         (a(1, 0) * c[4] - a(1, 1) * c[2] + a(1, 3) * c[0]) * r,
                         (-a(0, 0) * c[4] + a(0, 1) * c[2] - a(0, 3) * c[0]) * r,
                         (a(3, 0) * s[4] - a(3, 1) * s[2] + a(3, 3) * s[0]) * r,
                         (-a(2, 0) * s[4] + a(2, 1) * s[2] - a(2, 3) * s[0]) * r,
                         (-a(1, 0) * c[3] + a(1, 1) * c[1] - a(1, 2) * c[0]) * r,
                         (a(0, 0) * c[3] - a(0, 1) * c[1] + a(0, 2) * c[0]) * r,
                         (-a(3, 0) * s[3] + a(3, 1) * s[1] - a(3, 2) * s[0]) * r,
                         (a(2, 0) * s[3] - a(2, 1) * s[1] + a(2, 2) * s[0]) * r};
    each(Unrolled<16>{}, [&](std::size_t e) { d(e / 4, e % 4) = inverse[e]; });
}

// Gauss and Jordan, with partial pivoting.
template <std::size_t room, class T>
void invertByElimination(std::size_t n, const auto &a, auto d) {
    T m[room][room], x[room][room];
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            m[i][j] = a(i, j);
            x[i][j] = i == j ? 1 : 0;
        }
    }
    for (std::size_t c = 0; c < n; ++c) {
        std::size_t best = c;
        for (std::size_t i = c + 1; i < n; ++i) {
            if (std::abs(m[i][c]) > std::abs(m[best][c])) {
                best = i;
            }
        }
        for (std::size_t j = 0; j < n; ++j) {
            std::swap(m[c][j], m[best][j]);
            std::swap(x[c][j], x[best][j]);
        }
        const T reciprocal = 1 / m[c][c];
        for (std::size_t j = 0; j < n; ++j) {
            m[c][j] *= reciprocal;
            x[c][j] *= reciprocal;
        }
        for (std::size_t i = 0; i < n; ++i) {
            const T multiplier = i == c ? 0 : m[i][c];
            for (std::size_t j = 0; j < n; ++j) {
                m[i][j] -= multiplier * m[c][j];
                x[i][j] -= multiplier * x[c][j];
            }
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            d(i, j) = x[i][j];
        }
    }
}

struct Inverse : KernelTraits {
    static constexpr const char *operation = "Invert";
    static constexpr bool isSolver = true;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;

    template <class N, class T>
    static void object(N n, const auto &a, int, int, auto d, const Extras<T> &) {
        if constexpr (sizeOf<N> == 3) {
            invert3<T>(a, d);
        } else if constexpr (sizeOf<N> == 4) {
            invert4<T>(a, d);
        } else {
            invertByElimination<room<N>, T>(n, a, d);
        }
    }
};

} // namespace

void addInversePeers(std::vector<Peer> &peers) {
    addAllLoops<Determinant, "m", "ma">(peers);
    addAllLoops<Inverse, "m", "ma">(peers);
}

} // namespace zelmbench
