// Eigen's products.
#include "eigen.h"
#include "peers.h"

namespace zelmbench {
namespace {

struct Product : EigenTraits {
    static constexpr const char *operation = "Mul";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;

    static void object(auto, const auto &a, const auto &b, int, auto d, const auto &) {
        matrixOf(d).noalias() = matrixOf(a) * matrixOf(b);
    }
};

struct VectorProduct : EigenTraits {
    static constexpr const char *operation = "Mul";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'v'>;

    static void object(auto, const auto &a, const auto &b, int, auto d, const auto &) {
        vectorOf(d).noalias() = matrixOf(a) * vectorOf(b);
    }
};

struct Gaxpy : EigenTraits {
    static constexpr const char *operation = "Gaxpy";
    template <Text descriptor>
    using OperandForms = zelmbench::OperandForms<OperandForm<'m'>, OperandFormAt<descriptor, 0>,
                                                 OperandFormAt<descriptor, 0>, OperandFormAt<descriptor, 0>>;

    static void object(auto, const auto &a, const auto &x, const auto &y, auto d, const auto &) {
        vectorOf(d).noalias() = matrixOf(a) * vectorOf(x) + vectorOf(y);
    }
};

} // namespace

void addEigenProductPeers(std::vector<Peer> &peers) {
    addAllLoops<Product, "mm", "mmT", "mTm", "mTmT", "mam", "mamT", "mama", "mamaT", "maTm", "maTmT", "maTma",
                "maTmaT", "mma", "mmaT", "mTma", "mTmaT">(peers, "Eigen");
    addAllLoops<VectorProduct, "mv", "mTv", "mva", "mTva", "mav", "maTv", "mava", "maTva">(peers, "Eigen");
    addAllLoops<Gaxpy, "v", "va">(peers, "Eigen");
}

} // namespace zelmbench
