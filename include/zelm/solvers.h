/* Subsystem solvers of zelm. Written by grid/generate.py from grid/catalogue.py. */
#ifndef ZELM_SOLVERS_H
#define ZELM_SOLVERS_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/*
 * ==== LU decomposition ====
 * Gaussian elimination with partial pivoting (Golub and Van Loan, Matrix Computations, section 3.4): P*A = L*U.
 *   Rows of dst stay in the order of A's rows; pivotIndex[i] is the row of dst that plays row i of P*A. With r =
 *   pivotIndex[i], dst[r][j] holds L[i][j] for j < i (its unit diagonal is not stored) and U[i][j] for j >= i.
 *   pivotIndex has n entries per object, dense in every layout, those of object k at pivotIndex + k*n. A pivot p
 *   with not (|p| >= 2^-23), in both element types, ends the call with ZELM_ERR_DIV_BY_ZERO: earlier objects are
 *   complete, the failing one stands as the elimination left it, later ones are untouched.
 */

/*
 * zelmLUDecomp_m: dst, pivotIndex = the factors L and U of src and the order of their rows
 * Shapes: src: matrix; dst: matrix; pivotIndex: n row numbers. Units: n in elements (a size in the name stands for
 *   it); strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form); ZELM_ERR_DIV_BY_ZERO: a pivot fails the threshold.
 * Overlap: dst may be src (same start, same strides, same table). Partial overlap of src and dst is not provided
 *   for.
 */
ZELM_API ZelmStatus zelmLUDecomp_m_32f(const float *src, int32_t srcRowStride, uint32_t *pivotIndex, float *dst,
        int32_t dstRowStride, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, uint32_t *pivotIndex, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, uint32_t *pivotIndex, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, uint32_t *pivotIndex, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, uint32_t *pivotIndex, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_64f(const double *src, int32_t srcRowStride, uint32_t *pivotIndex, double *dst,
        int32_t dstRowStride, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, uint32_t *pivotIndex,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, uint32_t *pivotIndex,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, uint32_t *pivotIndex,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, uint32_t *pivotIndex,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t *pivotIndex, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLUDecomp_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift);

/*
 * zelmLUDecomp_ma: dst[k], pivotIndex[k] = the factors L and U of src[k] and the order of their rows
 * Shapes: src: array of matrices; dst: array of matrices; pivotIndex: n row numbers per object. Units: n in
 *   elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form); ZELM_ERR_DIV_BY_ZERO: a pivot fails the threshold.
 * Overlap: dst may be src (same start, same strides, same table). Partial overlap of src and dst is not provided
 *   for.
 */
ZELM_API ZelmStatus zelmLUDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift, uint32_t *pivotIndex,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t *pivotIndex, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUDecomp_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, uint32_t *pivotIndex, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);

/*
 * ==== LU back substitution ====
 * Solves A*x = b by forward and back substitution (Golub and Van Loan, Matrix Computations, section 3.1): src1 and
 *   pivotIndex are as zelmLUDecomp_* left them, src2 is b and dst is x. All arithmetic is in the element type. The
 *   diagonal is not tested: a zero on it gives infinities or NaN with ZELM_OK.
 */

/*
 * zelmLUBackSubst_mv: dst = x with A*x = src2; src1 and pivotIndex hold the LU factors of A
 * Shapes: src1: matrix; src2: vector; dst: vector; pivotIndex: n row numbers. Units: n in elements (a size in the
 *   name stands for it); strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be src2 only where pivotIndex is the identity.
 */
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f(const float *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const float *src2, float *dst, uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride,
        uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f(const double *src1, int32_t src1RowStride, const uint32_t *pivotIndex,
        const double *src2, double *dst, uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, double *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, double *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, double *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, double *dst);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride,
        uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmLUBackSubst_mv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift);

/*
 * zelmLUBackSubst_mva: dst[k] = x with A*x = src2[k]; src1 and pivotIndex hold the LU factors of A
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; dst: array of vectors; pivotIndex: n row
 *   numbers. Units: n in elements (a size in the name stands for it); count in objects; strides and shifts in
 *   bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be src2 only where pivotIndex is the identity.
 */
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_LS2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);

/*
 * zelmLUBackSubst_mava: dst[k] = x with A*x = src2[k]; src1[k] and pivotIndex[k] hold the LU factors of A
 * Shapes: src1: array of matrices; src2: array of vectors; dst: array of vectors; pivotIndex: n row numbers per
 *   object. Units: n in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be src2 only where pivotIndex is the identity.
 */
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const uint32_t *pivotIndex, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLUBackSubst_mava_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const uint32_t *pivotIndex, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
