#include "solvers/determinant_kernels.h"

#include "solvers/expansion.h"

namespace zelm::solvers {

template <typename T, unsigned N>
Pack<T> determinants(const Pack<T> (&a)[N][N]) {
    const auto element = [&a](unsigned i, unsigned j) { return a[i][j]; };
    if constexpr (N == 3) {
        Pack<T> t[3];
        termsOfOrder3(element, t);
        return (t[0] + t[1]) + t[2];
    } else {
        return expandByMinors<N, Pack<T>>(element, MinorsAsTheyAre{});
    }
}

template __m128 determinants<float, 3>(const __m128 (&)[3][3]);
template __m128 determinants<float, 4>(const __m128 (&)[4][4]);
template __m128 determinants<float, 5>(const __m128 (&)[5][5]);
template __m128 determinants<float, 6>(const __m128 (&)[6][6]);
template __m128d determinants<double, 3>(const __m128d (&)[3][3]);
template __m128d determinants<double, 4>(const __m128d (&)[4][4]);
template __m128d determinants<double, 5>(const __m128d (&)[5][5]);
template __m128d determinants<double, 6>(const __m128d (&)[6][6]);

} // namespace zelm::solvers
