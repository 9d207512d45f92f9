/* A system in small units: its pivots lie under 2^-23, and the decomposition takes it
 * for singular. Scaled by powers of two it is solved, and no bit of the matrix changes
 * but the exponents. */
#include <math.h>
#include <stdio.h>
#include <zelm.h>

enum { N = 4, ROW = N * sizeof(double) };

int main(void) {
    const double a[N][N] = {{4e-9, 1e-9, 0, 2e-3},
                            {1e-9, 3e-9, 1e-9, 1e-3},
                            {0, 1e-9, 5e-9, 4e-3},
                            {2e-10, 1e-10, 3e-10, 5e-4}};
    const double b[N] = {8.006e-3, 4.010e-3, 16.017e-3, 2.0013e-3};
    double lu[N][N], scaled[N][N], right[N], x[N];
    uint32_t pivotIndex[N];
    ZelmStatus status = zelmLUDecomp_m_64f_4x4(a[0], ROW, pivotIndex, lu[0], ROW);
    printf("as it is: status %d\n", (int)status);

    /* Each column by the power of two that brings its largest element to 1/2 or above,
     * then each row in the same way. */
    int column[N];
    for (int j = 0; j < N; ++j) {
        double largest = 0;
        for (int i = 0; i < N; ++i)
            largest = fmax(largest, fabs(a[i][j]));
        frexp(largest, &column[j]);
        for (int i = 0; i < N; ++i)
            scaled[i][j] = ldexp(a[i][j], -column[j]);
    }
    for (int i = 0; i < N; ++i) {
        double largest = 0;
        int row;
        for (int j = 0; j < N; ++j)
            largest = fmax(largest, fabs(scaled[i][j]));
        frexp(largest, &row);
        for (int j = 0; j < N; ++j)
            scaled[i][j] = ldexp(scaled[i][j], -row);
        right[i] = ldexp(b[i], -row);
    }
    status = zelmLUDecomp_m_64f_4x4(scaled[0], ROW, pivotIndex, lu[0], ROW);
    if (status == ZELM_OK)
        status = zelmLUBackSubst_mv_64f_4x4(lu[0], ROW, pivotIndex, right, x);
    printf("scaled: status %d\n", (int)status);
    for (int j = 0; j < N; ++j) /* the columns' scale is that of the unknowns */
        printf("x %.9g\n", ldexp(x[j], -column[j]));
    return 0;
}
