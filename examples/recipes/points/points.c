/* A rigid motion of a point cloud, once with a triple per point and once with an array
 * per coordinate. */
#include <stdio.h>
#include <zelm.h>

enum { POINTS = 4 };

int main(void) {
    const double turn[3][3] = {{0.36, 0.48, -0.8}, {-0.8, 0.6, 0}, {0.48, 0.64, 0.6}},
                 move[3] = {10, 20, 30};
    const double triples[POINTS][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 2, 3}};
    const double x[POINTS] = {1, 0, 0, 1}, y[POINTS] = {0, 1, 0, 2},
                 z[POINTS] = {0, 0, 1, 3};
    double moved[POINTS][3], u[POINTS], v[POINTS], w[POINTS];

    /* An object stride of 0 makes the one translation an array that is the same
     * everywhere. */
    ZelmStatus status =
        zelmGaxpy_va_64f_3x3(turn[0], sizeof turn[0], triples[0], sizeof triples[0],
                             move, 0, moved[0], sizeof moved[0], POINTS);
    printf("status %d\n", (int)status);
    for (int k = 0; k < POINTS; ++k)
        printf("point %.9g %.9g %.9g\n", moved[k][0], moved[k][1], moved[k][2]);

    /* In tables: PS2, as in P objects lie side by side at each position and the
     * translation has no second one. */
    const double *matrix[9];
    for (int e = 0; e < 9; ++e)
        matrix[e] = &turn[e / 3][e % 3];
    const double *const from[3] = {x, y, z}, *const by[3] = {&move[0], &move[1],
                                                             &move[2]};
    double *const to[3] = {u, v, w};
    status = zelmGaxpy_va_64f_3x3_PS2(matrix, 0, from, 0, sizeof(double), by, 0, 0, to,
                                      0, sizeof(double), POINTS);
    printf("status %d\n", (int)status);
    for (int k = 0; k < POINTS; ++k)
        printf("point %.9g %.9g %.9g\n", u[k], v[k], w[k]);
    return 0;
}
