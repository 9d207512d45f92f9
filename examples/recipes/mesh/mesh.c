/* Normals and areas of the faces of a mesh with an index list: a table per corner takes
 * the vertices where they lie. */
#include <stdio.h>
#include <zelm.h>

enum { VERTICES = 5, FACES = 5, VECTOR = 3 * sizeof(float) };

int main(void) {
    const float vertex[VERTICES][3] = {
        {0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 1, 1.5f}};
    const int face[FACES][3] = {{0, 1, 4},
                                {1, 2, 4},
                                {2, 3, 4},
                                {3, 0, 4},
                                {0, 1, 1}}; /* the last has no area */
    const float *corner[3][FACES];
    float edge[2][FACES][3], *to[2][FACES], normal[FACES][3], length[FACES];
    for (int k = 0; k < FACES; ++k) {
        for (int c = 0; c < 3; ++c)
            corner[c][k] = vertex[face[k][c]];
        to[0][k] = edge[0][k], to[1][k] = edge[1][k];
    }
    ZelmStatus status =
        zelmSub_vava_32f_3x1_L(corner[1], 0, corner[0], 0, to[0], 0, FACES);
    status |= zelmSub_vava_32f_3x1_L(corner[2], 0, corner[0], 0, to[1], 0, FACES);
    status |= zelmCrossProduct_vava_32f_3x1(edge[0][0], VECTOR, edge[1][0], VECTOR,
                                            normal[0], VECTOR, FACES);
    /* The form with element strides: its root is the true one, and the length of a zero
     * vector is 0, not NaN.
     */
    status |= zelmL2Norm_va_32f_3x1_S2(normal[0], VECTOR, sizeof(float), length, FACES);
    printf("status %d\n", (int)status);
    for (int k = 0; k < FACES; ++k) {
        const float scale = length[k] > 0 ? 1 / length[k] : 0;
        printf("face %d: area %.6g, normal %.6g %.6g %.6g\n", k, length[k] / 2,
               normal[k][0] * scale, normal[k][1] * scale, normal[k][2] * scale);
    }
    return 0;
}
