/** @file
 * Subsystem solvers of zelm. Written by grid/generate.py from grid/catalogue.py.
 */
#ifndef ZELM_SOLVERS_H
#define ZELM_SOLVERS_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup determinant Determinant
 *
 * Run-time forms: Gaussian elimination with partial pivoting in scratch, n*n elements and n numbers of 32 bits (one
 * such space for all objects), not a byte more. A pivot p with not (|p| >= e) or a last element with not (|last| >
 * e), e = 2^-23 (32f) or 2^-52 (64f), gives 0 with ZELM_OK. In an array, where a pivot fails before the last
 * element passes, that 0 has the sign of the last element times that of the row exchanges (NaN if it is infinite).
 * Fixed forms: expansion by minors along the rows, without a pivot or a test: in the element type (S2, P, PS2,
 * LS2), or in x87 extended precision (standard, L) by the kernels a6_Det_*.
 */
/** @{ */

/** @name a6_Det */
/** @{ */
/**
 * Evaluate in x87 extended precision, or in what the caller's control word says, and round to the element type at
 * the store and, in orders 4 to 6, some minors before: docs/inverse.md names them. The functions zelmDet_* of the
 * standard and L layouts call them and are what callers use: a kernel tests nothing but the entries of srcTable.
 * Result: 0, or -2 at a null entry, with the determinants before it written.
 */
ZELM_API int32_t a6_Det_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
ZELM_API int32_t a6_Det_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
ZELM_API int32_t a6_Det_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
ZELM_API int32_t a6_Det_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
ZELM_API int32_t a6_Det_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
ZELM_API int32_t a6_Det_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
ZELM_API int32_t a6_Det_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
ZELM_API int32_t a6_Det_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
ZELM_API void a6_Det_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API int32_t a6_Det_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API void a6_Det_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API void a6_Det_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API int32_t a6_Det_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API int32_t a6_Det_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
/** @} */

/** @name zelmDet_m */
/** @{ */
/**
 * dst = determinant of src.
 *
 * Shapes: src: matrix; dst: one number per object, packed. Units: n in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must overlap neither src nor scratch.
 */
ZELM_API ZelmStatus zelmDet_m_32f(const float *src, int32_t srcRowStride, uint32_t n, void *scratch, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        void *scratch, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmDet_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmDet_m_64f(const double *src, int32_t srcRowStride, uint32_t n, void *scratch, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        void *scratch, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmDet_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst);
/** @} */

/** @name zelmDet_ma */
/** @{ */
/**
 * dst[k] = determinant of src[k].
 *
 * Shapes: src: array of matrices; dst: one number per object, packed. Units: n in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must overlap neither src nor scratch.
 */
ZELM_API ZelmStatus zelmDet_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        void *scratch, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, void *scratch, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, void *scratch, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        void *scratch, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, void *scratch, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, void *scratch, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDet_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup inverse Inverse
 *
 * Run-time forms: the determinant and every cofactor by Gaussian elimination in scratch, n*n elements and n numbers
 * of 32 bits (one such space for all objects), not a byte more. With e = 2^-23 (32f) or 2^-52 (64f), a pivot p of
 * the whole matrix with not (|p| >= e) or a last element with not (|last| > e) is ZELM_ERR_DIV_BY_ZERO; in a
 * cofactor it makes the element of the inverse zero. 3x3 and 4x4: the adjugate times the reciprocal of the
 * determinant. 5x5 and 6x6: pivots searched in the first rows and a Schur complement. S2, P, PS2, LS2:
 * ZELM_ERR_DIV_BY_ZERO if a determinant lies in -b < det < b, b = 1e-7 (32f) or 1e-15 (64f); column 5 is never
 * searched. Standard, L: 3x3 and 4x4 test det = 0 exactly, but 64f 3x3, which tests 1 / det = 0: there a det of 0
 * gives infinities and NaN with ZELM_OK. 5x5 and 6x6 test their pivots against the band, and what remains exactly
 * (docs/inverse.md). Reciprocals of 32f are the processor's approximation with one Newton step. A NaN is never
 * singular in the fixed forms. A singular matrix ends the call: earlier objects are complete, its own dst and later
 * ones are untouched (but for the standard and L forms of 32f 5x5 and 6x6, which leave working rows in row 0, in
 * 6x6 rows 0 and 1).
 */
/** @{ */

/** @name zelmInvert_m */
/** @{ */
/**
 * dst = inverse of src.
 *
 * Shapes: src: matrix; dst: matrix. Units: n in elements (a size in the name stands for it); strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a matrix is singular by the test of
 * its form.
 *
 * Overlap: dst must not overlap src.
 */
ZELM_API ZelmStatus zelmInvert_m_32f(const float *src, int32_t srcRowStride, uint32_t n, void *scratch, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        void *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_64f(const double *src, int32_t srcRowStride, uint32_t n, void *scratch,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmInvert_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        void *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmInvert_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *const *dstTable,
        int32_t dstShift);
ZELM_API ZelmStatus zelmInvert_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *const *dstTable,
        int32_t dstShift);
/** @} */

/** @name zelmInvert_ma */
/** @{ */
/**
 * dst[k] = inverse of src[k].
 *
 * Shapes: src: array of matrices; dst: array of matrices. Units: n in elements (a size in the name stands for it);
 * count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a matrix is singular by the test of
 * its form.
 *
 * Overlap: dst must not overlap src.
 */
ZELM_API ZelmStatus zelmInvert_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        void *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, void *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, void *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        void *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, void *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, void *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, void *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, void *scratch, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmInvert_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup lu_decomposition LU decomposition
 *
 * Gaussian elimination with partial pivoting (Golub and Van Loan, Matrix Computations, section 3.4): P*A = L*U.
 * Rows of dst stay in the order of A's rows; pivotIndex[i] is the row of dst that plays row i of P*A. With r =
 * pivotIndex[i], dst[r][j] holds L[i][j] for j < i (its unit diagonal is not stored) and U[i][j] for j >= i.
 * pivotIndex has n entries per object, dense in every layout, those of object k at pivotIndex + k*n. A pivot p with
 * not (|p| >= 2^-23), in both element types, ends the call with ZELM_ERR_DIV_BY_ZERO: earlier objects are complete,
 * the failing one stands as the elimination left it, later ones are untouched.
 */
/** @{ */

/** @name zelmLUDecomp_m */
/** @{ */
/**
 * dst, pivotIndex = the factors L and U of src and the order of their rows.
 *
 * Shapes: src: matrix; dst: matrix; pivotIndex: n row numbers. Units: n in elements (a size in the name stands for
 * it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a pivot fails the threshold.
 *
 * Overlap: dst may be src (same start, same strides, same table). Partial overlap of src and dst is not provided
 * for.
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
/** @} */

/** @name zelmLUDecomp_ma */
/** @{ */
/**
 * dst[k], pivotIndex[k] = the factors L and U of src[k] and the order of their rows.
 *
 * Shapes: src: array of matrices; dst: array of matrices; pivotIndex: n row numbers per object. Units: n in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a pivot fails the threshold.
 *
 * Overlap: dst may be src (same start, same strides, same table). Partial overlap of src and dst is not provided
 * for.
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
/** @} */

/** @} */

/**
 * @defgroup lu_back_substitution LU back substitution
 *
 * Solves A*x = b by forward and back substitution (Golub and Van Loan, Matrix Computations, section 3.1): src1 and
 * pivotIndex are as zelmLUDecomp_* left them, src2 is b and dst is x. All arithmetic is in the element type. The
 * diagonal is not tested: a zero on it gives infinities or NaN with ZELM_OK.
 */
/** @{ */

/** @name zelmLUBackSubst_mv */
/** @{ */
/**
 * dst = x with A*x = src2; src1 and pivotIndex hold the LU factors of A.
 *
 * Shapes: src1: matrix; src2: vector; dst: vector; pivotIndex: n row numbers. Units: n in elements (a size in the
 * name stands for it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
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
/** @} */

/** @name zelmLUBackSubst_mva */
/** @{ */
/**
 * dst[k] = x with A*x = src2[k]; src1 and pivotIndex hold the LU factors of A.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; dst: array of vectors; pivotIndex: n row
 * numbers. Units: n in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
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
/** @} */

/** @name zelmLUBackSubst_mava */
/** @{ */
/**
 * dst[k] = x with A*x = src2[k]; src1[k] and pivotIndex[k] hold the LU factors of A.
 *
 * Shapes: src1: array of matrices; src2: array of vectors; dst: array of vectors; pivotIndex: n row numbers per
 * object. Units: n in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
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
/** @} */

/** @} */

/**
 * @defgroup cholesky_decomposition Cholesky decomposition
 *
 * A = L*L^T for a symmetric positive definite A (Golub and Van Loan, Matrix Computations, section 4.2). dst[i][j]
 * holds L[i][j] for j < i and dst[i][i] holds 1 / L[i][i]. Only lower triangles, diagonals included, are read and
 * written. A pivot d with not (d > 0) ends the call with ZELM_ERR_NOT_POS_DEF: earlier objects are complete, of the
 * failing one everything ahead of its pivot is written, later ones are untouched. The 32f forms compute 1 / sqrt(d)
 * in 64-bit float and round it once, but in P and PS2 in 32-bit float. In S2 and LS2 element strides are rounded
 * down to whole elements where n is 3 to 6. Table entries are not tested. A count of zero is ZELM_ERR_SIZE; where
 * count is signed, one below zero does nothing. An object of an array whose start comes to null ends the call there
 * with ZELM_ERR_NULL_PTR.
 */
/** @{ */

/** @name zelmCholeskyDecomp_m */
/** @{ */
/**
 * dst = the factor L of src.
 *
 * Shapes: src: matrix; dst: matrix. Units: n in elements (a size in the name stands for it); strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null, or an object of an array
 * starts at null (entries of tables are not tested); ZELM_ERR_SIZE: n or count is zero; ZELM_ERR_NOT_POS_DEF: a
 * pivot is not positive.
 *
 * Overlap: dst may be src (same start, same strides, same table). Any other overlap is not provided for.
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride, uint32_t n);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t n);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride, uint32_t n);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t n);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_m_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t n);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyDecomp_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmCholeskyDecomp_ma */
/** @{ */
/**
 * dst[k] = the factor L of src[k].
 *
 * Shapes: src: array of matrices; dst: array of matrices. Units: n in elements (a size in the name stands for it);
 * count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null, or an object of an array
 * starts at null (entries of tables are not tested); ZELM_ERR_SIZE: n or count is zero; ZELM_ERR_NOT_POS_DEF: a
 * pivot is not positive.
 *
 * Overlap: dst may be src (same start, same strides, same table). Any other overlap is not provided for.
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t n, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_L(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t n, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t n, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t n, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t n,
        uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements, where n is 3 to 6.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t n, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, int32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where an element stride is not a multiple of the element's size: element strides are rounded down to
 * whole elements.
 *
 * @copydoc zelmCholeskyDecomp_ma_32f
 */
ZELM_API ZelmStatus zelmCholeskyDecomp_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup cholesky_back_substitution Cholesky back substitution
 *
 * Solves A*x = b by forward and back substitution: src1 is as zelmCholeskyDecomp_* left it, src2 is b and dst is x.
 * All arithmetic is in the element type, and nothing is divided: the diagonal of src1 holds reciprocals. It is not
 * tested. Table entries are not tested. A count of zero is ZELM_ERR_SIZE; an n or a count below zero does nothing.
 * An object of an array whose start comes to null is passed over.
 */
/** @{ */

/** @name zelmCholeskyBackSubst_mv */
/** @{ */
/**
 * dst = x with A*x = src2; src1 holds the Cholesky factor of A.
 *
 * Shapes: src1: matrix; src2: vector; dst: vector. Units: n in elements (a size in the name stands for it); strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: n or count is zero.
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1.
 */
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f(const float *src1, int32_t src1RowStride, const float *src2,
        float *dst, int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        float *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        float *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        float *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        float *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride,
        int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f(const double *src1, int32_t src1RowStride, const double *src2,
        double *dst, int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        double *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        double *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        double *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        double *dst);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride,
        int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t n);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmCholeskyBackSubst_mva */
/** @{ */
/**
 * dst[k] = x with A*x = src2[k]; src1 holds the Cholesky factor of A.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; dst: array of vectors. Units: n in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: n or count is zero.
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1.
 */
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_L(const float *src1, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_LS2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_LS2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
/** @} */

/** @name zelmCholeskyBackSubst_mava */
/** @{ */
/**
 * dst[k] = x with A*x = src2[k]; src1[k] holds the Cholesky factor of A.
 *
 * Shapes: src1: array of matrices; src2: array of vectors; dst: array of vectors. Units: n in elements (a size in
 * the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: n or count is zero.
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1.
 */
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t n, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t n,
        int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
ZELM_API ZelmStatus zelmCholeskyBackSubst_mava_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, int32_t count);
/** @} */

/** @} */

/**
 * @defgroup qr_decomposition QR decomposition
 *
 * A = Q*R by Householder reflections (Golub and Van Loan, Matrix Computations, section 5.2), A of height rows and
 * width columns. dst[i][j] holds R[i][j] for j >= i, and below the diagonal of column k the reflector vector v of H
 * = I - (2 / v.v) * v * v^T whose element k is 1 and not stored. A square matrix has no reflector for its last
 * column. scratch takes height elements, also in array forms; its contents don't matter. A column whose sum of
 * squares q, from the diagonal down, has not (q >= 2^-23), in both element types, ends the call with
 * ZELM_ERR_DIV_BY_ZERO: earlier objects are complete, the failing one stands as the earlier reflectors left it,
 * later ones are untouched. A width above height always ends so.
 */
/** @{ */

/** @name zelmQRDecomp_m */
/** @{ */
/**
 * dst = R and the reflectors of src.
 *
 * Shapes: src: matrix; dst: matrix. Units: width, height in elements (a size in the name stands for them); strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a column fails the threshold, or width
 * is above height.
 *
 * Overlap: dst may be src (same start, same strides, same table). Any other overlap is not provided for.
 */
ZELM_API ZelmStatus zelmQRDecomp_m_32f(const float *src, int32_t srcRowStride, float *scratch, float *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_3x3(const float *src, int32_t srcRowStride, float *scratch, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_4x4(const float *src, int32_t srcRowStride, float *scratch, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_5x5(const float *src, int32_t srcRowStride, float *scratch, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_6x6(const float *src, int32_t srcRowStride, float *scratch, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *scratch, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_64f(const double *src, int32_t srcRowStride, double *scratch, double *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_3x3(const double *src, int32_t srcRowStride, double *scratch, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_4x4(const double *src, int32_t srcRowStride, double *scratch, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_5x5(const double *src, int32_t srcRowStride, double *scratch, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_6x6(const double *src, int32_t srcRowStride, double *scratch, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *scratch, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRDecomp_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmQRDecomp_ma */
/** @{ */
/**
 * dst[k] = R and the reflectors of src[k].
 *
 * Shapes: src: array of matrices; dst: array of matrices. Units: width, height in elements (a size in the name
 * stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms); ZELM_ERR_DIV_BY_ZERO: a column fails the threshold, or width
 * is above height.
 *
 * Overlap: dst may be src (same start, same strides, same table). Any other overlap is not provided for.
 */
ZELM_API ZelmStatus zelmQRDecomp_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *scratch,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *scratch, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *scratch, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *scratch, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *scratch, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *scratch, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *scratch,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *scratch, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *scratch, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *scratch, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *scratch, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRDecomp_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *scratch, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup qr_back_substitution QR back substitution
 *
 * Solves A*x = b, for a height above width in the sense of least squares: src1 is as zelmQRDecomp_* left it, src2
 * is b with height elements and dst is x with width elements. scratch takes height elements, also in array forms;
 * its contents don't matter. All arithmetic is in the element type. The diagonal of R is not tested: a zero on it
 * gives infinities or NaN with ZELM_OK. Of src2Table in P and PS2, and of dstTable, the first width entries are
 * tested. A width above height is not refused, and reads scratch behind its height elements.
 */
/** @{ */

/** @name zelmQRBackSubst_mv */
/** @{ */
/**
 * dst = x that minimises |A*x - src2|; src1 holds the QR factors of A.
 *
 * Shapes: src1: matrix; src2: vector; dst: vector. Units: width, height in elements (a size in the name stands for
 * them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1, nor scratch any
 * operand.
 */
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f(const float *src1, int32_t src1RowStride, float *scratch,
        const float *src2, float *dst, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_3x3(const float *src1, int32_t src1RowStride, float *scratch,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_4x4(const float *src1, int32_t src1RowStride, float *scratch,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_5x5(const float *src1, int32_t src1RowStride, float *scratch,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_6x6(const float *src1, int32_t src1RowStride, float *scratch,
        const float *src2, float *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        float *scratch, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        float *scratch, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        float *scratch, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        float *scratch, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        float *scratch, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f(const double *src1, int32_t src1RowStride, double *scratch,
        const double *src2, double *dst, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_3x3(const double *src1, int32_t src1RowStride, double *scratch,
        const double *src2, double *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_4x4(const double *src1, int32_t src1RowStride, double *scratch,
        const double *src2, double *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_5x5(const double *src1, int32_t src1RowStride, double *scratch,
        const double *src2, double *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_6x6(const double *src1, int32_t src1RowStride, double *scratch,
        const double *src2, double *dst);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        double *scratch, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        double *scratch, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        double *scratch, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        double *scratch, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        double *scratch, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmQRBackSubst_mv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmQRBackSubst_mva */
/** @{ */
/**
 * dst[k] = x that minimises |A*x - src2[k]|; src1 holds the QR factors of A.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; dst: array of vectors. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1, nor scratch any
 * operand.
 */
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6_L(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_PS2(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        float *scratch, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        float *scratch, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        float *scratch, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        float *scratch, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_3x3_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_4x4_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_5x5_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_32f_6x6_LS2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6_L(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_PS2(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_LS2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_3x3_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_4x4_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_5x5_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mva_64f_6x6_LS2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
/** @} */

/** @name zelmQRBackSubst_mava */
/** @{ */
/**
 * dst[k] = x that minimises |A*x - src2[k]|; src1[k] holds the QR factors of A.
 *
 * Shapes: src1: array of matrices; src2: array of vectors; dst: array of vectors. Units: width, height in elements
 * (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides, same table). It must not overlap src1, nor scratch any
 * operand.
 */
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        float *scratch, const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, float *scratch, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6_P(const float *const *src1Table, int32_t src1Shift, float *scratch,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float *scratch, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, float *scratch, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, float *scratch, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, float *scratch, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, float *scratch, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, float *scratch, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        double *scratch, const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_P(const double *const *src1Table, int32_t src1Shift, double *scratch,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        double *scratch, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double *scratch, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmQRBackSubst_mava_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, double *scratch, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
