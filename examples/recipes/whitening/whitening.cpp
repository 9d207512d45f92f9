// The same through views.
#include <cstdio>
#include <zelm.hpp>

int main() {
    using namespace zelm;
    const double covariance[4][4] = {
        {4, 2, 0.5, 0}, {2, 5, 1, 0.5}, {0.5, 1, 3, 1}, {0, 0.5, 1, 2}};
    const double mean[4] = {1, 2, 3, 4},
                 sample[3][4] = {{2, 2, 2, 2}, {0, 5, 3, 4}, {1, 2, 3, 4}};
    double l[4][4] = {}, whiten[4][4], centred[3][4], white[3][4], solved[3][4],
           squared[3];

    const auto factor = cholesky_factor(l);
    cholesky(covariance, factor).or_throw();
    sub(each(sample), mean, each(centred)).or_throw();
    solve(factor, each(centred), each(solved)).or_throw();
    dot(each(centred), each(solved), squared).or_throw();
    for (int i = 0; i < 4;
         ++i) // L itself: the diagonal of the stored factor holds reciprocals
        l[i][i] = 1 / l[i][i];
    inverse(l, whiten).or_throw();
    mul(whiten, each(centred), each(white)).or_throw();

    for (int k = 0; k < 3; ++k)
        std::printf("white %.9g %.9g %.9g %.9g, squared distance %.9g\n", white[k][0],
                    white[k][1], white[k][2], white[k][3], squared[k]);
}
