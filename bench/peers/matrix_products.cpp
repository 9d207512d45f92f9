// Loops for products of matrices.
#include "peers.h"
#include "register.h"

namespace zelmbench {
namespace {

struct Product : KernelTraits {
    static constexpr const char *operation = "Mul";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;

    template <class N, class T>
    static void object(N n, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        if constexpr (isUnrolled<N>) {
            sideBySide<T>(n, a, b, d);
        } else {
            each(n, [&](std::size_t i) {
                T row[room<N>] = {};
                each(n, [&](std::size_t t) {
                    const T left = a(i, t);
                    each(n, [&](std::size_t j) { row[j] += left * b(t, j); });
                });
                each(n, [&](std::size_t j) { d(i, j) = row[j]; });
            });
        }
    }

    // Everything is read before anything is written, so that nothing is read twice. The attributes: where a
    // file has many of them, g++ calls the inner functions, and takes no objects side by side.
    template <class T, std::size_t n>
    static void sideBySide(Unrolled<n>, const auto &a, const auto &b, auto d) {
        T left[n][n], right[n][n];
        const auto read = [&](std::size_t i, std::size_t j) __attribute__((always_inline)) {
            left[i][j] = a(i, j);
            right[i][j] = b(i, j);
        };
        const auto multiply = [&](std::size_t i, std::size_t j) __attribute__((always_inline)) {
            T sum = 0;
            each(
                Unrolled<n>{}, [&](std::size_t t)
                                   __attribute__((always_inline)) { sum += left[i][t] * right[t][j]; });
            d(i, j) = sum;
        };
        each(
            Unrolled<n * n>{}, [&](std::size_t e) __attribute__((always_inline)) { read(e / n, e % n); });
        each(
            Unrolled<n * n>{}, [&](std::size_t e) __attribute__((always_inline)) { multiply(e / n, e % n); });
    }
};

} // namespace

void addMatrixProductPeers(std::vector<Peer> &peers) {
    addAllLoops<Product, "mm", "mmT", "mTm", "mTmT", "mam", "mamT", "mama", "mamaT", "maTm", "maTmT", "maTma",
                "maTmaT", "mma", "mmaT", "mTma", "mTmaT">(peers);
}

} // namespace zelmbench
