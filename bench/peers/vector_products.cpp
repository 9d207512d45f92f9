// Loops for products of matrices and vectors, and Gaxpy.
#include "peers.h"
#include "register.h"

namespace zelmbench {
namespace {

// A matrix that was read ahead lies in columns.
template <class N, class Matrix>
constexpr bool isColumnwise = !isUnrolled<N> && requires(Matrix a) {
    a.values;
};

template <class T>
void addColumns(auto n, const auto &a, const auto &x, T *sums) {
    each(n, [&](std::size_t t) {
        const T element = x(t);
        each(n, [&](std::size_t i) { sums[i] += a(i, t) * element; });
    });
}

struct VectorProduct : KernelTraits {
    static constexpr const char *operation = "Mul";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'v'>;

    template <class N, class T>
    static void object(N n, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        if constexpr (isColumnwise<N, decltype(a)>) {
            T sums[sizeOf<N>] = {};
            addColumns(n, a, b, sums);
            each(n, [&](std::size_t i) { d(i) = sums[i]; });
        } else {
            each(n, [&](std::size_t i) {
                T sum = 0;
                each(n, [&](std::size_t t) { sum += a(i, t) * b(t); });
                d(i) = sum;
            });
        }
    }
};

struct Gaxpy : KernelTraits {
    static constexpr const char *operation = "Gaxpy";
    template <Text descriptor>
    using OperandForms = zelmbench::OperandForms<OperandForm<'m'>, OperandFormAt<descriptor, 0>,
                                                 OperandFormAt<descriptor, 0>, OperandFormAt<descriptor, 0>>;

    template <class N, class T>
    static void object(N n, const auto &a, const auto &x, const auto &y, auto d, const Extras<T> &) {
        if constexpr (isColumnwise<N, decltype(a)>) {
            T sums[sizeOf<N>];
            each(n, [&](std::size_t i) { sums[i] = y(i); });
            addColumns(n, a, x, sums);
            each(n, [&](std::size_t i) { d(i) = sums[i]; });
        } else {
            each(n, [&](std::size_t i) {
                T sum = y(i);
                each(n, [&](std::size_t t) { sum += a(i, t) * x(t); });
                d(i) = sum;
            });
        }
    }
};

} // namespace

void addVectorProductPeers(std::vector<Peer> &peers) {
    addAllLoops<VectorProduct, "mv", "mTv", "mva", "mTva", "mav", "maTv", "mava", "maTva">(peers);
    addAllLoops<Gaxpy, "v", "va">(peers);
}

} // namespace zelmbench
