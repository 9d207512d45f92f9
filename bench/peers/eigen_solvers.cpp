// Eigen's determinants, inverses and decompositions.
#include "eigen.h"
#include "peers.h"

#include <Eigen/Cholesky>
#include <Eigen/LU>
#include <Eigen/QR>

namespace zelmbench {
namespace {

struct SolverTraits : EigenTraits {
    static constexpr bool isSolver = true;
    template <Text descriptor>
    using Specs = SpecsFor<descriptor, 'm'>;
};

struct Determinant : SolverTraits {
    static constexpr const char *operation = "Det";
    template <Text descriptor>
    using Specs = SpecsFor<descriptor, 's'>;

    static void object(auto, const auto &a, int, int, auto d, const auto &) {
        d(0) = matrixOf(a).determinant();
    }
};

struct Inverse : SolverTraits {
    static constexpr const char *operation = "Invert";

    static void object(auto, const auto &a, int, int, auto d, const auto &) {
        matrixOf(d) = matrixOf(a).inverse();
    }
};

// Eigen exchanges rows and keeps true diagonals and unscaled reflectors, so that these results differ.
struct LuFactors : SolverTraits {
    static constexpr const char *operation = "LUDecomp";
    static constexpr bool isComparable = false;

    template <class N, class T>
    static void object(N, const auto &a, int, int, auto d, const Extras<T> &) {
        matrixOf(d) = Eigen::PartialPivLU<EigenMatrix<T, N>>(matrixOf(a)).matrixLU();
    }
};

struct CholeskyFactor : SolverTraits {
    static constexpr const char *operation = "CholeskyDecomp";
    static constexpr bool isComparable = false;

    template <class N, class T>
    static void object(N, const auto &a, int, int, auto d, const Extras<T> &) {
        matrixOf(d) = Eigen::LLT<EigenMatrix<T, N>>(matrixOf(a)).matrixLLT();
    }
};

struct QrFactors : SolverTraits {
    static constexpr const char *operation = "QRDecomp";
    static constexpr bool isComparable = false;

    template <class N, class T>
    static void object(N, const auto &a, int, int, auto d, const Extras<T> &) {
        matrixOf(d) = Eigen::HouseholderQR<EigenMatrix<T, N>>(matrixOf(a)).matrixQR();
    }
};

} // namespace

void addEigenSolverPeers(std::vector<Peer> &peers) {
    addAllLoops<Determinant, "m", "ma">(peers, "Eigen");
    addAllLoops<Inverse, "m", "ma">(peers, "Eigen");
    addAllLoops<LuFactors, "m", "ma">(peers, "Eigen");
    addAllLoops<CholeskyFactor, "m", "ma">(peers, "Eigen");
    addAllLoops<QrFactors, "m", "ma">(peers, "Eigen");
}

} // namespace zelmbench
