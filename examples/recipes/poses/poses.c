/* Chains of poses: where the last joint of each of many arms is, joint by joint, all
 * arms in each call. */
#include <stdio.h>
#include <string.h>
#include <zelm.h>

enum {
    ARMS = 3,
    JOINTS = 4,
    NUMBER = sizeof(double),
    ROW = 4 * NUMBER,
    POSE = 4 * ROW
};

/* A turn about z by an angle whose cosine and sine are c and s, behind a step along x.
 */
static void setPose(double pose[4][4], double step, double c, double s) {
    const double made[4][4] = {
        {c, -s, 0, step}, {s, c, 0, 0}, {0, 0, 1, 0.125}, {0, 0, 0, 1}};
    memcpy(pose, made, sizeof made);
}

int main(void) {
    static double local[JOINTS][ARMS][4][4], world[2][ARMS][4][4];
    for (int j = 0; j < JOINTS; ++j)
        for (int arm = 0; arm < ARMS; ++arm)
            setPose(local[j][arm], 1 + 0.5 * j,
                    arm == 0   ? 1
                    : arm == 1 ? 0.6
                               : 0,
                    arm == 0   ? 0
                    : arm == 1 ? 0.8
                               : 1);

    /* The form with element strides: zelmMul_mama_64f_4x4 would take arm 0 for all arms
     * where data is aligned to 16. */
    ZelmStatus status = ZELM_OK;
    memcpy(world[0], local[0], sizeof world[0]);
    for (int j = 1; j < JOINTS; ++j)
        status |= zelmMul_mama_64f_4x4_S2(world[(j - 1) % 2][0][0], POSE, ROW, NUMBER,
                                          local[j][0][0], POSE, ROW, NUMBER,
                                          world[j % 2][0][0], POSE, ROW, NUMBER, ARMS);
    printf("status %d\n", (int)status);
    for (int arm = 0; arm < ARMS; ++arm)
        for (int i = 0; i < 3; ++i)
            printf(
                "arm %d row %d: %.9g %.9g %.9g %.9g\n", arm, i,
                world[(JOINTS - 1) % 2][arm][i][0], world[(JOINTS - 1) % 2][arm][i][1],
                world[(JOINTS - 1) % 2][arm][i][2], world[(JOINTS - 1) % 2][arm][i][3]);
    return 0;
}
