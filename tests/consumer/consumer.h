/* What both consumers do: a sum of vectors and a system of order 3, through the installed library. */
#ifndef CONSUMER_H
#define CONSUMER_H

#include <zelm.h>

#include <stdio.h>
#include <string.h>

/* The number of wrong results. */
static int consume(const char *target) {
    const float a[3] = {1, 2, 3}, b[3] = {4, 5, 6};
    const double system[9] = {0, 2, 1, 4, 0, 2, 0, 0, 2}, right[3] = {7, 10, 6};
    double factors[9], solution[3];
    uint32_t pivotIndex[3];
    float sum[3];
    int wrong = 0;

    wrong += strcmp(zelmGetLibVersion()->targetCode, target) != 0;
    wrong += zelmAdd_vv_32f_3x1(a, b, sum) != ZELM_OK;
    wrong += !(sum[0] > 4.9f && sum[0] < 5.1f && sum[2] > 8.9f && sum[2] < 9.1f);
    wrong += zelmLUDecomp_m_64f_3x3(system, 3 * sizeof(double), pivotIndex, factors, 3 * sizeof(double)) !=
             ZELM_OK;
    wrong += zelmLUBackSubst_mv_64f_3x3(factors, 3 * sizeof(double), pivotIndex, right, solution) != ZELM_OK;
    wrong += !(solution[0] > 0.9 && solution[0] < 1.1 && solution[1] > 1.9 && solution[1] < 2.1);
    wrong += !(solution[2] > 2.9 && solution[2] < 3.1);
    wrong += zelmAdd_vv_32f(a, NULL, sum, 3) != ZELM_ERR_NULL_PTR;
    wrong += zelmAdd_vv_32f(a, b, sum, 0) != ZELM_ERR_SIZE;
    printf("target %s, x = {%g, %g, %g}, %d wrong\n", zelmGetLibVersion()->targetCode, solution[0],
           solution[1], solution[2], wrong);
    return wrong;
}

#endif
