#include <stdio.h>
#include <zelm.h>

int main(void) {
    const float a[4][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}};
    const float b[3] = {0.5f, 0, -1};
    float sum[4][3];
    ZelmStatus status = zelmAdd_vav_32f_3x1(a[0], sizeof a[0], b, sum[0], sizeof sum[0], 4);
    printf("status %d, last sum (%g, %g, %g)\n", (int)status, sum[3][0], sum[3][1], sum[3][2]);
    return status == ZELM_OK ? 0 : 1;
}
