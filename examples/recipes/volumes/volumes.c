/* Volumes of tetrahedra with an index list, and which way they are wound: a determinant
 * of order 3 each. */
#include <stdio.h>
#include <zelm.h>

enum { TETRAHEDRA = 3, ROW = 3 * sizeof(double), MATRIX = 3 * ROW };

int main(void) {
    const double vertex[5][3] = {{0, 0, 0}, {1, 0, 0}, {0, 2, 0}, {0, 0, 3}, {1, 1, 1}};
    const int corner[TETRAHEDRA][4] = {{0, 1, 2, 3}, {0, 2, 1, 3}, {4, 1, 2, 3}};
    const double *apex[TETRAHEDRA * 3], *other[TETRAHEDRA * 3];
    double edges[TETRAHEDRA][3][3], *to[TETRAHEDRA * 3], six[TETRAHEDRA];
    for (int e = 0; e < TETRAHEDRA * 3; ++e) {
        apex[e] = vertex[corner[e / 3][0]];
        other[e] = vertex[corner[e / 3][1 + e % 3]];
        to[e] = edges[e / 3][e % 3];
    }
    ZelmStatus status =
        zelmSub_vava_64f_3x1_L(other, 0, apex, 0, to, 0, TETRAHEDRA * 3);
    status |= zelmDet_ma_64f_3x3(edges[0][0], MATRIX, ROW, six, TETRAHEDRA);
    printf("status %d\n", (int)status);
    for (int k = 0; k < TETRAHEDRA; ++k)
        printf("tetrahedron %d: volume %.9g\n", k, six[k] / 6);
    return 0;
}
