/* Bodies that lie scattered in memory, each with a spatial inertia, a frame and a
 * motion: momentum, energy, and the inertia in another frame, without moving a body. */
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <zelm.h>

enum { BODIES = 3, ROW = 6 * sizeof(double) };

struct Body {
    int id;
    double inertia[6][6], frame[6][6], motion[6];
    double momentum[6], turned[6][6], product[6][6];
};

static struct Body *makeBody(int id) {
    struct Body *body = calloc(1, sizeof *body);
    if (!body)
        exit(1);
    body->id = id;
    for (int i = 0; i < 6; ++i) {
        for (int j = 0; j < 6; ++j) {
            body->inertia[i][j] = i == j ? 2.0 + id + i : 0.125 * (i + j);
            body->frame[i][j] = i == j ? 1 : i > j ? 0.25 * id : 0;
        }
        body->motion[i] = 1 - 0.5 * i + id;
    }
    return body;
}

int main(void) {
    struct Body *bodies[BODIES];
    for (int k = 0; k < BODIES; ++k)
        bodies[k] = makeBody(k);
    /* One table serves every field: the shift says which. The library adds bytes to the
     * entries and no more.
     */
    const double *const *from = (const double *const *)(const void *)bodies;
    double *const *to = (double *const *)(void *)bodies;
    const int32_t inertia = offsetof(struct Body, inertia),
                  frame = offsetof(struct Body, frame);
    const int32_t motion = offsetof(struct Body, motion),
                  momentum = offsetof(struct Body, momentum);
    const int32_t turned = offsetof(struct Body, turned),
                  product = offsetof(struct Body, product);
    double twiceEnergy[BODIES];

    ZelmStatus status =
        zelmMul_mava_64f_6x6_L(from, inertia, ROW, from, motion, to, momentum, BODIES);
    status |= zelmDotProduct_vava_64f_6x1_L(from, motion, from, momentum, twiceEnergy,
                                            BODIES);
    /* X' I X */
    status |= zelmMul_mama_64f_6x6_L(from, inertia, ROW, from, frame, ROW, to, product,
                                     ROW, BODIES);
    status |= zelmMul_maTma_64f_6x6_L(from, frame, ROW, from, product, ROW, to, turned,
                                      ROW, BODIES);

    printf("status %d\n", (int)status);
    for (int k = 0; k < BODIES; ++k) {
        printf("energy %.9g momentum", twiceEnergy[k] / 2);
        for (int i = 0; i < 6; ++i)
            printf(" %.9g", bodies[k]->momentum[i]);
        printf("\nturned");
        for (int i = 0; i < 6; ++i)
            printf(" %.9g", bodies[k]->turned[i][5 - i]);
        printf("\n");
        free(bodies[k]);
    }
    return 0;
}
