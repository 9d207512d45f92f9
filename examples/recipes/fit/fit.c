/* A parabola through each of three series of seven values, by least squares with QR:
 * better than the normal equations, whose condition is the square of this one. */
#include <stdio.h>
#include <zelm.h>

enum { SERIES = 3, VALUES = 7, TERMS = 3, ROW = TERMS * sizeof(double) };

int main(void) {
    const double value[SERIES][VALUES] = {{1, 2.1, 5.2, 9.8, 17.1, 26, 36.9},
                                          {3, 2, 1, 0.5, 1, 2, 3},
                                          {0, 1, 0, -1, 0, 1, 0}};
    double design[SERIES][VALUES][TERMS], qr[SERIES][VALUES][TERMS], scratch[VALUES],
        parabola[SERIES][TERMS];
    for (int k = 0; k < SERIES; ++k)
        for (int i = 0; i < VALUES; ++i) {
            const double t = i * (k + 1) * 0.5;
            design[k][i][0] = 1, design[k][i][1] = t, design[k][i][2] = t * t;
        }
    ZelmStatus status =
        zelmQRDecomp_ma_64f(design[0][0], sizeof design[0], ROW, scratch, qr[0][0],
                            sizeof qr[0], ROW, TERMS, VALUES, SERIES);
    if (status == ZELM_OK)
        status = zelmQRBackSubst_mava_64f(qr[0][0], sizeof qr[0], ROW, scratch,
                                          value[0], sizeof value[0], parabola[0],
                                          sizeof parabola[0], TERMS, VALUES, SERIES);
    printf("status %d\n", (int)status);
    for (int k = 0; k < SERIES; ++k)
        printf("series %d: %.9g %.9g %.9g\n", k, parabola[k][0], parabola[k][1],
               parabola[k][2]);
    return 0;
}
