// Loops for decompositions. They test nothing: a pivot of zero gives infinities.
#include "peers.h"
#include "register.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace zelmbench {
namespace {

struct SolverTraits : KernelTraits {
    static constexpr bool isSolver = true;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;
};

// Gaussian elimination in dst, whose rows stay where they are.
struct LuByIndex : SolverTraits {
    static constexpr const char *operation = "LUDecomp";
    static constexpr bool branches = true;

    template <class T>
    static void object(auto n, const auto &a, int, int, auto d, const Extras<T> &extras) {
        std::uint32_t *const pivot = extras.pivot;
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { d(i, j) = a(i, j); }); });
        std::iota(pivot, pivot + n, 0U);
        for (std::size_t c = 0; c + 1 < n; ++c) {
            std::size_t best = c;
            for (std::size_t i = c + 1; i < n; ++i) {
                if (std::abs(d(pivot[i], c)) > std::abs(d(pivot[best], c))) {
                    best = i;
                }
            }
            std::swap(pivot[c], pivot[best]);
            const std::uint32_t top = pivot[c];
            const T divisor = d(top, c);
            for (std::size_t i = c + 1; i < n; ++i) {
                const std::uint32_t row = pivot[i];
                const T multiplier = d(row, c) / divisor;
                d(row, c) = multiplier;
                for (std::size_t j = c + 1; j < n; ++j) {
                    d(row, j) -= multiplier * d(top, j);
                }
            }
        }
    }
};

// The same on a copy whose rows are exchanged, and brought home at the end.
struct LuByExchange : SolverTraits {
    static constexpr const char *operation = "LUDecomp";
    static constexpr bool branches = true;

    template <class N, class T>
    static void object(N n, const auto &a, int, int, auto d, const Extras<T> &extras) {
        T m[room<N>][room<N>];
        std::uint32_t pivot[room<N>];
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { m[i][j] = a(i, j); }); });
        std::iota(pivot, pivot + n, 0U);
        for (std::size_t c = 0; c + 1 < n; ++c) {
            std::size_t best = c;
            for (std::size_t i = c + 1; i < n; ++i) {
                if (std::abs(m[i][c]) > std::abs(m[best][c])) {
                    best = i;
                }
            }
            std::swap(pivot[c], pivot[best]);
            each(n, [&](std::size_t j) { std::swap(m[c][j], m[best][j]); });
            const T divisor = m[c][c];
            for (std::size_t i = c + 1; i < n; ++i) {
                m[i][c] /= divisor;
                for (std::size_t j = c + 1; j < n; ++j) {
                    m[i][j] -= m[i][c] * m[c][j];
                }
            }
        }
        each(n, [&](std::size_t i) {
            extras.pivot[i] = pivot[i];
            each(n, [&](std::size_t j) { d(pivot[i], j) = m[i][j]; });
        });
    }
};

// The lower triangle, with reciprocals on the diagonal.
struct Cholesky : SolverTraits {
    static constexpr const char *operation = "CholeskyDecomp";

    template <class N, class T>
    static void object(N n, const auto &a, int, int, auto d, const Extras<T> &) {
        T l[room<N>][room<N>];
        each(n, [&](std::size_t j) {
            each(
                n,
                [&](std::size_t i) {
                    T sum = a(i, j);
                    each(n, [&](std::size_t t) {
                        if (t < j) {
                            sum -= l[i][t] * l[j][t];
                        }
                    });
                    l[i][j] = i == j ? 1 / std::sqrt(sum) : sum * l[j][j];
                    d(i, j) = l[i][j];
                },
                j);
        });
    }
};

// Householder reflections: R, and below it the vectors whose first element is 1.
struct Qr : SolverTraits {
    static constexpr const char *operation = "QRDecomp";

    template <class N, class T>
    static void object(N n, const auto &a, int, int, auto d, const Extras<T> &) {
        T m[room<N>][room<N>];
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { m[i][j] = a(i, j); }); });
        each(n, [&](std::size_t c) {
            if (c + 1 == n) {
                return;
            }
            T squares = 0;
            each(
                n, [&](std::size_t i) { squares += m[i][c] * m[i][c]; }, c);
            const T root = std::copysign(std::sqrt(squares), m[c][c]);
            const T first = m[c][c] + root, reciprocal = 1 / first, factor = first / root;
            each(
                n, [&](std::size_t i) { m[i][c] *= reciprocal; }, c + 1);
            m[c][c] = -root;
            each(
                n,
                [&](std::size_t j) {
                    T sum = m[c][j];
                    each(
                        n, [&](std::size_t i) { sum += m[i][c] * m[i][j]; }, c + 1);
                    sum *= factor;
                    m[c][j] -= sum;
                    each(
                        n, [&](std::size_t i) { m[i][j] -= sum * m[i][c]; }, c + 1);
                },
                c + 1);
        });
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { d(i, j) = m[i][j]; }); });
    }
};

} // namespace

void addDecompositionPeers(std::vector<Peer> &peers) {
    addAllLoops<LuByIndex, "m", "ma">(peers);
    addAllLoops<LuByExchange, "m", "ma">(peers, "loops, exchanging");
    addAllLoops<Cholesky, "m", "ma">(peers);
    addAllLoops<Qr, "m", "ma">(peers);
}

} // namespace zelmbench
