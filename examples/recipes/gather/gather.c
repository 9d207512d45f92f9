/* Gather, compute, scatter: a field of every record becomes an array per coordinate, is
 * computed with in that layout, and goes back to another field. */
#include <stdio.h>
#include <zelm.h>

enum { RECORDS = 3, NUMBER = sizeof(float) };

struct Particle {
    int id;
    float velocity[3], charge, force[3];
};

int main(void) {
    struct Particle p[RECORDS] = {{1, {1, 0, 0}, 2, {0, 0, 0}},
                                  {2, {0, 2, 0}, -1, {0, 0, 0}},
                                  {3, {1, 1, 1}, 0.5f, {0, 0, 0}}};
    const float field[3] = {0, 0, 2}, *const fields[3] = {&field[0], &field[1],
                                                          &field[2]};
    float vx[RECORDS], vy[RECORDS], vz[RECORDS], fx[RECORDS], fy[RECORDS], fz[RECORDS];
    float *const velocity[3] = {vx, vy, vz}, *const force[3] = {fx, fy, fz};
    const float *const v[3] = {vx, vy, vz}, *const f[3] = {fx, fy, fz};
    const int32_t record = sizeof(struct Particle);

    ZelmStatus status = zelmCopy_va_32f_SP(p[0].velocity, record, NUMBER, velocity, 0,
                                           NUMBER, 3, RECORDS);
    status |= zelmCrossProduct_vav_32f_3x1_P(v, 0, fields, 0, force, 0, RECORDS);
    status |= zelmCopy_va_32f_PS(f, 0, NUMBER, p[0].force, record, NUMBER, 3, RECORDS);
    /* Scaled where they lie: a matrix of one column would do it at once, a loop says it
     * shorter. */
    for (int k = 0; k < RECORDS; ++k)
        status |= zelmMul_vc_32f_3x1(p[k].force, p[k].charge, p[k].force);
    printf("status %d\n", (int)status);
    for (int k = 0; k < RECORDS; ++k)
        printf("particle %d: %.6g %.6g %.6g\n", p[k].id, p[k].force[0], p[k].force[1],
               p[k].force[2]);
    return 0;
}
