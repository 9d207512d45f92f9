// Loops that solve with factors.
#include "peers.h"
#include "register.h"

namespace zelmbench {
namespace {

struct SolverTraits : KernelTraits {
    static constexpr bool isSolver = true;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'v'>;
};

struct LuSolution : SolverTraits {
    static constexpr const char *operation = "LUBackSubst";
    static constexpr bool branches = true; // takes its rows by index

    template <class N, class T>
    static void object(N n, const auto &a, const auto &b, int, auto d, const Extras<T> &extras) {
        T x[room<N>];
        const std::uint32_t *const pivot = extras.pivot;
        for (std::size_t i = 0; i < n; ++i) {
            T sum = b(pivot[i]);
            for (std::size_t j = 0; j < i; ++j) {
                sum -= a(pivot[i], j) * x[j];
            }
            x[i] = sum;
        }
        for (std::size_t i = n; i-- > 0;) {
            T sum = x[i];
            for (std::size_t j = i + 1; j < n; ++j) {
                sum -= a(pivot[i], j) * x[j];
            }
            x[i] = sum / a(pivot[i], i);
            d(i) = x[i];
        }
    }
};

struct CholeskySolution : SolverTraits {
    static constexpr const char *operation = "CholeskyBackSubst";

    template <class N, class T>
    static void object(N n, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        T x[room<N>];
        each(n, [&](std::size_t i) {
            T sum = b(i);
            each(n, [&](std::size_t j) {
                if (j < i) {
                    sum -= a(i, j) * x[j];
                }
            });
            x[i] = sum * a(i, i);
        });
        eachDown(n, [&](std::size_t i) {
            T sum = x[i];
            each(
                n, [&](std::size_t j) { sum -= a(j, i) * x[j]; }, i + 1);
            x[i] = sum * a(i, i);
            d(i) = x[i];
        });
    }
};

struct QrSolution : SolverTraits {
    static constexpr const char *operation = "QRBackSubst";

    template <class N, class T>
    static void object(N n, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        T x[room<N>];
        each(n, [&](std::size_t i) { x[i] = b(i); });
        each(n, [&](std::size_t c) {
            if (c + 1 == n) {
                return;
            }
            T norm = 1, sum = x[c];
            each(
                n,
                [&](std::size_t i) {
                    norm += a(i, c) * a(i, c);
                    sum += a(i, c) * x[i];
                },
                c + 1);
            sum *= 2 / norm;
            x[c] -= sum;
            each(
                n, [&](std::size_t i) { x[i] -= sum * a(i, c); }, c + 1);
        });
        eachDown(n, [&](std::size_t i) {
            T sum = x[i];
            each(
                n, [&](std::size_t j) { sum -= a(i, j) * x[j]; }, i + 1);
            x[i] = sum / a(i, i);
            d(i) = x[i];
        });
    }
};

} // namespace

void addSolutionPeers(std::vector<Peer> &peers) {
    addAllLoops<LuSolution, "mv", "mva", "mava">(peers);
    addAllLoops<CholeskySolution, "mv", "mva", "mava">(peers);
    addAllLoops<QrSolution, "mv", "mva", "mava">(peers);
}

} // namespace zelmbench
