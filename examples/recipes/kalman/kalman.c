/* One update of a bank of Kalman filters with six states and three measurements, all
 * filters in each call. */
#include <stdio.h>
#include <zelm.h>

enum { FILTERS = 2, N = 6, M = 3, NUMBER = sizeof(double) };

static double x[FILTERS][N], P[FILTERS][N][N], z[FILTERS][M];
static double
    H[M][N]; /* measures the first three states, and half of the rates behind them */

static void prepare(void) {
    for (int i = 0; i < M; ++i)
        H[i][i] = 1, H[i][i + 3] = 0.5;
    for (int k = 0; k < FILTERS; ++k)
        for (int i = 0; i < N; ++i) {
            x[k][i] = k + 0.25 * i;
            for (int j = 0; j < N; ++j)
                P[k][i][j] = (i == j ? 2 + k : 0) + 1.0 / (1 + i + j);
        }
    for (int k = 0; k < FILTERS; ++k)
        for (int i = 0; i < M; ++i)
            z[k][i] = 1 + k - 0.5 * i;
}

int main(void) {
    const int32_t n = N * NUMBER, m = M * NUMBER, nn = N * n, nm = N * m, mm = M * m;
    double y[FILTERS][M], PHt[FILTERS][N][M], S[FILTERS][M][M],
        R[M][M] = {{0}}, Kt[FILTERS][M][N], Ky[FILTERS][N];
    double KHP[FILTERS][N][N];
    ZelmStatus status = ZELM_OK;
    prepare();
    for (int i = 0; i < M; ++i)
        R[i][i] = 0.1;

    /* y = z - H x */
    status |= zelmMul_mva_64f(H[0], n, N, M, x[0], n, N, y[0], m, FILTERS);
    status |= zelmSub_vava_64f_3x1(z[0], m, y[0], m, y[0], m, FILTERS);
    /* P Ht: H with its strides exchanged is Ht, six rows of three. */
    status |= zelmMul_mam_64f_S2(P[0][0], nn, n, NUMBER, N, N, H[0], NUMBER, n, M, N,
                                 PHt[0][0], nm, m, NUMBER, FILTERS);
    /* S = H (P Ht) + R, as the transpose of (P Ht)t Ht: the array stands first, and all
     * strides are exchanged. */
    status |= zelmMul_mam_64f_S2(PHt[0][0], nm, NUMBER, m, N, M, H[0], NUMBER, n, M, N,
                                 S[0][0], mm, NUMBER, m, FILTERS);
    status |= zelmAdd_mam_64f_3x3(S[0][0], mm, m, R[0], m, S[0][0], mm, m, FILTERS);
    /* K = P Ht S^-1, by S Kt = (P Ht)t: the right-hand side is row i of P Ht, the
     * solution column i of Kt, whose elements lie a row apart. */
    status |= zelmCholeskyDecomp_ma_64f_3x3(S[0][0], mm, m, S[0][0], mm, m, FILTERS);
    for (int i = 0; i < N; ++i)
        status |=
            zelmCholeskyBackSubst_mava_64f_3x3_S2(S[0][0], mm, m, NUMBER, PHt[0][i], nm,
                                                  NUMBER, &Kt[0][0][i], nm, n, FILTERS);
    /* x += K y, with K the transpose of Kt by its strides. */
    status |= zelmMul_mava_64f_S2(Kt[0][0], nm, NUMBER, n, M, N, y[0], m, NUMBER, M,
                                  Ky[0], n, NUMBER, FILTERS);
    status |= zelmAdd_vava_64f_6x1(x[0], n, Ky[0], n, x[0], n, FILTERS);
    /* P -= K (H P), a column at a time: column i of H P is row i of P Ht, as P is
     * symmetric. */
    for (int i = 0; i < N; ++i)
        status |= zelmMul_mava_64f_S2(Kt[0][0], nm, NUMBER, n, M, N, PHt[0][i], nm,
                                      NUMBER, M, &KHP[0][0][i], nn, n, FILTERS);
    status |=
        zelmSub_mama_64f_6x6(P[0][0], nn, n, KHP[0][0], nn, n, P[0][0], nn, n, FILTERS);

    printf("status %d\n", (int)status);
    for (int k = 0; k < FILTERS; ++k) {
        printf("x");
        for (int i = 0; i < N; ++i)
            printf(" %.9g", x[k][i]);
        printf("\nP, diagonal");
        for (int i = 0; i < N; ++i)
            printf(" %.9g", P[k][i][i]);
        printf("\n");
    }
    return 0;
}
