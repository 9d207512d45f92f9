/* Column-major matrices, as Eigen, GLM and Fortran keep them: S2 with the row and the
 * element stride exchanged. Operands of one call may be of either kind. */
#include <stdio.h>
#include <zelm.h>

enum {
    MATRICES = 2,
    N = 4,
    NUMBER = sizeof(double),
    LINE = N * NUMBER,
    MATRIX = N * LINE
};

int main(void) {
    double a[MATRICES][N * N],
        b[MATRICES][N][N]; /* a in columns, element (i, j) at j*N + i; b in rows */
    double product[MATRICES][N * N], inverse[MATRICES][N * N];
    for (int k = 0; k < MATRICES; ++k)
        for (int i = 0; i < N; ++i)
            for (int j = 0; j < N; ++j)
                a[k][j * N + i] = (i == j ? 3 + k : 0) + 0.5 * i - 0.25 * j,
                             b[k][i][j] = i + 2 * j + k;

    /* a*b, in columns: a and product have rows a number apart and elements a line
     * apart. */
    ZelmStatus status =
        zelmMul_mama_64f_4x4_S2(a[0], MATRIX, NUMBER, LINE, b[0][0], MATRIX, LINE,
                                NUMBER, product[0], MATRIX, NUMBER, LINE, MATRICES);
    /* The inverse of every a, in columns too. */
    status |= zelmInvert_ma_64f_4x4_S2(a[0], MATRIX, NUMBER, LINE, inverse[0], MATRIX,
                                       NUMBER, LINE, MATRICES);
    printf("status %d\n", (int)status);
    for (int k = 0; k < MATRICES; ++k)
        for (int j = 0; j < 2; ++j)
            printf("matrix %d column %d: product %.9g %.9g %.9g %.9g, inverse %.9g "
                   "%.9g %.9g %.9g\n",
                   k, j, product[k][j * N], product[k][j * N + 1],
                   product[k][j * N + 2], product[k][j * N + 3], inverse[k][j * N],
                   inverse[k][j * N + 1], inverse[k][j * N + 2], inverse[k][j * N + 3]);
    return 0;
}
