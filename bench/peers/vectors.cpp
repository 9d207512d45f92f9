// Loops for dot and cross products, norms and traces.
#include "peers.h"
#include "register.h"

#include <cmath>

namespace zelmbench {
namespace {

struct Dot : KernelTraits {
    static constexpr const char *operation = "DotProduct";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    template <class T>
    static void object(auto n, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        T sum = 0;
        each(n, [&](std::size_t j) { sum += a(j) * b(j); });
        d(0) = sum;
    }
};

struct Cross : KernelTraits {
    static constexpr const char *operation = "CrossProduct";
    static constexpr bool hasSizes = false;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'v'>;

    template <class T>
    static void object(auto, const auto &a, const auto &b, int, auto d, const Extras<T> &) {
        const T x = a(1) * b(2) - a(2) * b(1), y = a(2) * b(0) - a(0) * b(2), z = a(0) * b(1) - a(1) * b(0);
        d(0) = x;
        d(1) = y;
        d(2) = z;
    }
};

struct Length : KernelTraits {
    static constexpr const char *operation = "L2Norm";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    template <class T>
    static void object(auto n, const auto &a, int, int, auto d, const Extras<T> &) {
        T sum = 0;
        each(n, [&](std::size_t j) { sum += a(j) * a(j); });
        d(0) = std::sqrt(sum);
    }
};

struct Frobenius : KernelTraits {
    static constexpr const char *operation = "FrobNorm";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    template <class T>
    static void object(auto n, const auto &a, int, int, auto d, const Extras<T> &) {
        T sum = 0;
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { sum += a(i, j) * a(i, j); }); });
        d(0) = std::sqrt(sum);
    }
};

struct Trace : KernelTraits {
    static constexpr const char *operation = "Trace";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    template <class T>
    static void object(auto n, const auto &a, int, int, auto d, const Extras<T> &) {
        T sum = 0;
        each(n, [&](std::size_t i) { sum += a(i, i); });
        d(0) = sum;
    }
};

} // namespace

void addVectorPeers(std::vector<Peer> &peers) {
    addAllLoops<Dot, "vv", "vav", "vava">(peers);
    addAllLoops<Cross, "vv", "vav", "vava", "vva">(peers);
    addAllLoops<Length, "v", "va">(peers);
    addAllLoops<Frobenius, "m", "ma">(peers);
    addAllLoops<Trace, "m", "ma">(peers);
}

} // namespace zelmbench
