// Eigen's dot and cross products, norms and transposes.
#include "eigen.h"
#include "peers.h"

#include <Eigen/Geometry>

namespace zelmbench {
namespace {

struct Dot : EigenTraits {
    static constexpr const char *operation = "DotProduct";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    static void object(auto, const auto &a, const auto &b, int, auto d, const auto &) {
        d(0) = vectorOf(a).dot(vectorOf(b));
    }
};

struct Cross : EigenTraits {
    static constexpr const char *operation = "CrossProduct";
    static constexpr bool hasSizes = false;
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'v'>;

    static void object(auto, const auto &a, const auto &b, int, auto d, const auto &) {
        vectorOf(d) = vectorOf(a).cross(vectorOf(b));
    }
};

struct Length : EigenTraits {
    static constexpr const char *operation = "L2Norm";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    static void object(auto, const auto &a, int, int, auto d, const auto &) { d(0) = vectorOf(a).norm(); }
};

struct Frobenius : EigenTraits {
    static constexpr const char *operation = "FrobNorm";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 's'>;

    static void object(auto, const auto &a, int, int, auto d, const auto &) { d(0) = matrixOf(a).norm(); }
};

struct Transposition : EigenTraits {
    static constexpr const char *operation = "Transpose";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;

    static void object(auto, const auto &a, int, int, auto d, const auto &) {
        matrixOf(d) = matrixOf(a).transpose();
    }
};

} // namespace

void addEigenVectorPeers(std::vector<Peer> &peers) {
    addAllLoops<Dot, "vv", "vav", "vava">(peers, "Eigen");
    addAllLoops<Cross, "vv", "vav", "vava", "vva">(peers, "Eigen");
    addAllLoops<Length, "v", "va">(peers, "Eigen");
    addAllLoops<Frobenius, "m", "ma">(peers, "Eigen");
    addAllLoops<Transposition, "m", "ma">(peers, "Eigen");
}

} // namespace zelmbench
