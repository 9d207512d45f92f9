/* Whitening by Cholesky: samples become uncorrelated with variance 1 by the inverse of
 * their covariance's factor L. */
#include <stdio.h>
#include <zelm.h>

enum { SAMPLES = 3, N = 4, NUMBER = sizeof(double), ROW = N * NUMBER };

int main(void) {
    const double covariance[N][N] = {{4, 2, 0.5, 0},
                                     {2, 5, 1, 0.5},
                                     {0.5, 1, 3, 1},
                                     {0, 0.5, 1, 2}},
                 mean[N] = {1, 2, 3, 4};
    const double sample[SAMPLES][N] = {{2, 2, 2, 2}, {0, 5, 3, 4}, {1, 2, 3, 4}};
    double l[N][N] = {{0}}, whiten[N][N], centred[SAMPLES][N], white[SAMPLES][N],
           solved[SAMPLES][N], squared[SAMPLES];
    ZelmStatus status = zelmCholeskyDecomp_m_64f_4x4(covariance[0], ROW, l[0], ROW);
    status |= zelmSub_vav_64f_4x1(sample[0], ROW, mean, centred[0], ROW, SAMPLES);
    /* The squared distance (x - mean)' C^-1 (x - mean): the solver takes the factor as
     * it is. */
    status |= zelmCholeskyBackSubst_mva_64f_4x4(l[0], ROW, centred[0], ROW, solved[0],
                                                ROW, SAMPLES);
    status |=
        zelmDotProduct_vava_64f_4x1(centred[0], ROW, solved[0], ROW, squared, SAMPLES);
    /* L itself: the diagonal holds reciprocals, and nothing was written above it, where
     * l is zero from the start. */
    for (int i = 0; i < N; ++i)
        l[i][i] = 1 / l[i][i];
    status |= zelmInvert_m_64f_4x4_S2(l[0], ROW, NUMBER, whiten[0], ROW, NUMBER);
    status |=
        zelmMul_mva_64f_4x4(whiten[0], ROW, centred[0], ROW, white[0], ROW, SAMPLES);
    printf("status %d\n", (int)status);
    for (int k = 0; k < SAMPLES; ++k)
        printf("white %.9g %.9g %.9g %.9g, squared distance %.9g\n", white[k][0],
               white[k][1], white[k][2], white[k][3], squared[k]);
    return 0;
}
