/** @file
 * Subsystem products of zelm. Written by grid/generate.py from grid/catalogue.py.
 */
#ifndef ZELM_PRODUCTS_H
#define ZELM_PRODUCTS_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup matrix_vector_product Product of a matrix and a vector
 *
 * For square matrices the product. In the run-time forms src1Width and src1Height are those of src1 as stored, and
 * src2Len must equal src1Width, or src1Height where src1 is used transposed: ZELM_ERR_SIZE otherwise. The loops
 * take them as those of the matrix as used: dst[i] for i below src1Height is the sum over t below src1Width of
 * src1[i][t] * src2[t], of src1[t][i] * src2[t] where src1 is used transposed. The stored element (r, c) is at
 * entry r*src1Width + c of a table, r*src1Height + c where it is used transposed. Sums run from +0 in ascending t,
 * each partial sum stored in dst. In the fixed-size forms they begin with the first product and have an order of
 * their own in the standard and L layouts (docs/products.md).
 */
/** @{ */

/** @name zelmMul_mv */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: matrix; src2: vector; dst: vector. Units: src1Width, src1Height, src2Len in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_API ZelmStatus zelmMul_mv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, uint32_t src2Len, float *dst);
ZELM_API ZelmStatus zelmMul_mv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride, uint32_t src2Len,
        float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, uint32_t src2Len, double *dst);
ZELM_API ZelmStatus zelmMul_mv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride, uint32_t src2Len,
        double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mv_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mTv */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height elements, and each sum src1Width terms, so that as many elements of src2 are read.
 *
 * Shapes: src1: matrix used transposed; src2: vector; dst: vector. Units: src1Width, src1Height, src2Len in
 * elements (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, uint32_t src2Len, float *dst);
ZELM_API ZelmStatus zelmMul_mTv_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mTv_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mTv_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_API ZelmStatus zelmMul_mTv_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2, float *dst);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride, uint32_t src2Len,
        float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, uint32_t src2Len, double *dst);
ZELM_API ZelmStatus zelmMul_mTv_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mTv_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mTv_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_API ZelmStatus zelmMul_mTv_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2, double *dst);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride, uint32_t src2Len,
        double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTv_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mv_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTv_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mva */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; dst: array of vectors. Units: src1Width,
 * src1Height, src2Len in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_API ZelmStatus zelmMul_mva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mTva */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height elements, and each sum src1Width terms, so that as many elements of src2 are read.
 *
 * Shapes: src1: matrix, the same for every object used transposed; src2: array of vectors; dst: array of vectors.
 * Units: src1Width, src1Height, src2Len in elements (a size in the name stands for them); count in objects; strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, uint32_t src2Len, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, uint32_t src2Len, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride,
        uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mva_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTva_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTva_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mav */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: array of matrices; src2: vector, the same for every object; dst: array of vectors. Units:
 * src1Width, src1Height, src2Len in elements (a size in the name stands for them); count in objects; strides and
 * shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_API ZelmStatus zelmMul_mav_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, uint32_t src2Len, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride,
        uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, uint32_t src2Len, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride,
        uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, uint32_t src2Len, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride,
        uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, uint32_t src2Len, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mav_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTv */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height elements, and each sum src1Width terms, so that as many elements of src2 are read.
 *
 * Shapes: src1: array of matrices used transposed; src2: vector, the same for every object; dst: array of vectors.
 * Units: src1Width, src1Height, src2Len in elements (a size in the name stands for them); count in objects; strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, uint32_t src2Len, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride,
        uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, uint32_t src2Len, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ElemStride,
        uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, uint32_t src2Len, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride,
        uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, uint32_t src2Len, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mav_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTv_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ElemStride,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTv_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mava */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: array of matrices; src2: array of vectors; dst: array of vectors. Units: src1Width, src1Height,
 * src2Len in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_API ZelmStatus zelmMul_mava_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, uint32_t src2Len,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, uint32_t src2Len,
        double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mava_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTva */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height elements, and each sum src1Width terms, so that as many elements of src2 are read.
 *
 * Shapes: src1: array of matrices used transposed; src2: array of vectors; dst: array of vectors. Units: src1Width,
 * src1Height, src2Len in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst may be src2 (same start, same strides) in the fixed-size standard and L forms where both are single
 * or both arrays. Otherwise dst must overlap no source.
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, uint32_t src2Len,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, uint32_t src2Len, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, uint32_t src2Len,
        double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2ElemStride, uint32_t src2Len, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Len,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Len, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mava_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTva_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, uint32_t src2Len, double *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTva_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup matrix_product Product of two matrices
 *
 * For square matrices the product. In the run-time forms the widths and heights are those of the operands as
 * stored. Two of them must be equal, ZELM_ERR_SIZE otherwise: src1Height if src1 is used transposed, else
 * src1Width; and src2Width if src2 is used transposed, else src2Height. mma and mama ask for src1Height = src2Width
 * instead. In mam a src2Width of 0 is ZELM_OK, and nothing is computed. The loops take them as those of the
 * operands as used: dst[i][j] for i below src1Height and j below src2Width is the sum over t below src2Height. So
 * mm and mam give the product of any two matrices that fit, and the other descriptors that of square ones. The
 * stored element (r, c) of a source is at entry r*Width + c of its table, r*Height + c where it is used transposed,
 * that of dst at r*src2Width + c; of dstTable as many entries are tested as the product of the two dimensions named
 * first. Sums run from +0 in ascending t, each partial sum stored in dst. In the fixed-size forms they begin with
 * the first product.
 */
/** @{ */

/** @name zelmMul_mm */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: matrix; src2: matrix; dst: matrix. Units: src1Width, src1Height, src2Width, src2Height in elements
 * (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_API ZelmStatus zelmMul_mm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mm_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mmT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms of S2 and P only where src2 is square (docs/before-you-choose.md);
 * otherwise dst has src2Width columns, each sum src2Height terms, and src2 is read as src2Width rows of src2Height
 * elements.
 *
 * Shapes: src1: matrix; src2: matrix used transposed; dst: matrix. Units: src1Width, src1Height, src2Width,
 * src2Height in elements (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_API ZelmStatus zelmMul_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where src2 is not square: dst has src2Height columns, and the sums have src2Width terms: the true
 * product by the transpose of src2.
 *
 * @copydoc zelmMul_mmT_32f_3x3
 */
ZELM_API ZelmStatus zelmMul_mmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mm_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mm_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where src2 is not square: dst has src2Height columns, and the sums have src2Width terms: the true
 * product by the transpose of src2.
 *
 * @copydoc zelmMul_mmT_32f_3x3
 */
ZELM_API ZelmStatus zelmMul_mmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mm_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mTm */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height rows, and src1 is read as a square of that order.
 *
 * Shapes: src1: matrix used transposed; src2: matrix; dst: matrix. Units: src1Width, src1Height, src2Width,
 * src2Height in elements (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mm_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTm_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mTmT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 and src2 are square (docs/before-you-choose.md);
 * otherwise dst is a square of order src1Height = src2Width, and each sum has src2Height terms.
 *
 * Shapes: src1: matrix used transposed; src2: matrix used transposed; dst: matrix. Units: src1Width, src1Height,
 * src2Width, src2Height in elements (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mm_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mam */
/** @{ */
/**
 * dst = src1 * src2.
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object; dst: array of matrices. Units:
 * src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_API ZelmStatus zelmMul_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_mam_32f
 */
ZELM_API ZelmStatus zelmMul_mam_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_mam_32f
 */
ZELM_API ZelmStatus zelmMul_mam_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no entry of src1Table or dstTable.
 *
 * @copydoc zelmMul_mam_32f
 */
ZELM_API ZelmStatus zelmMul_mam_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mam_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mamT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src2 is square (docs/before-you-choose.md); otherwise dst has
 * src2Width columns, each sum src2Height terms, and src2 is read as src2Width rows of src2Height elements.
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object used transposed; dst: array of matrices.
 * Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_mamT_32f
 */
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_mamT_32f
 */
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no entry of src1Table or dstTable.
 *
 * @copydoc zelmMul_mamT_32f
 */
ZELM_API ZelmStatus zelmMul_mamT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mama */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1Width = src2Height (docs/before-you-choose.md); otherwise
 * src1Height = src2Width is asked for, so that only square results can be had, and each sum has src2Height terms,
 * whatever src1Width is.
 *
 * Shapes: src1: array of matrices; src2: array of matrices; dst: array of matrices. Units: src1Width, src1Height,
 * src2Width, src2Height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mama_64f_3x3_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mama_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mama_64f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mama_64f_4x4_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mama_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mama_64f_4x4_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mama_64f_5x5_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mama_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mama_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mama_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mama_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mama_64f_6x6_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mama_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mama_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mamaT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src2 is square (docs/before-you-choose.md); otherwise dst has
 * src2Width columns, each sum src2Height terms, and src2 is read as src2Width rows of src2Height elements.
 *
 * Shapes: src1: array of matrices; src2: array of matrices used transposed; dst: array of matrices. Units:
 * src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: name other dimensions, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: name other dimensions, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mamaT_64f_3x3_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mamaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mamaT_64f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mamaT_64f_4x4_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mamaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mamaT_64f_4x4_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mamaT_64f_5x5_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mamaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mamaT_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_mamaT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_mamaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_mamaT_64f_6x6_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: name other dimensions, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: name other dimensions, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mamaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mamaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTm */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height rows, and src1 is read as a square of that order.
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object; dst: array of matrices.
 * Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_maTm_32f
 */
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no table entry; src2 may be read also
 * where count is 0.
 *
 * @copydoc zelmMul_maTm_32f
 */
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no entry of src1Table or dstTable.
 *
 * @copydoc zelmMul_maTm_32f
 */
ZELM_API ZelmStatus zelmMul_maTm_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTm_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTm_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTmT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 and src2 are square (docs/before-you-choose.md);
 * otherwise dst is a square of order src1Height = src2Width, and each sum has src2Height terms.
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object used transposed; dst:
 * array of matrices. Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for
 * them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests no entry of src1Table or dstTable.
 *
 * @copydoc zelmMul_maTmT_32f
 */
ZELM_API ZelmStatus zelmMul_maTmT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTma */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height rows, and src1 is read as a square of that order.
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices; dst: array of matrices. Units:
 * src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTma_64f_3x3_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTma_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTma_64f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTma_64f_4x4_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTma_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTma_64f_4x4_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTma_64f_5x5_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTma_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTma_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTma_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTma_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTma_64f_6x6_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTma_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTma_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTmaT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 and src2 are square (docs/before-you-choose.md);
 * otherwise dst is a square of order src1Height = src2Width, and each sum has src2Height terms.
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices used transposed; dst: array of matrices.
 * Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTmaT_64f_3x3_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTmaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTmaT_64f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTmaT_64f_4x4_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTmaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTmaT_64f_4x4_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTmaT_64f_5x5_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTmaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTmaT_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2, src2RowStride, dst,
 * dstObjStride and dstRowStride are multiples of 16: every object is computed from object 0 of src1. Instead:
 * zelmMul_maTmaT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmMul_maTmaT_32f
 */
ZELM_DEPARTS("where src2, src2RowStride, dst, dstObjStride and dstRowStride are multiples of 16, every object is "
        "computed from object 0 of src1: use zelmMul_maTmaT_64f_6x6_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mamaT_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_maTmaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, uint32_t src1Width, uint32_t src1Height, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTmaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mma */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1Width = src2Height (docs/before-you-choose.md); otherwise
 * src1Height = src2Width is asked for, so that only square results can be had, and each sum has src2Height terms,
 * whatever src1Width is.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of matrices; dst: array of matrices. Units:
 * src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1Width = src2Height: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mmaT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src2 is square (docs/before-you-choose.md); otherwise dst has
 * src2Width columns, each sum src2Height terms, and src2 is read as src2Width rows of src2Height elements.
 *
 * Shapes: src1: matrix, the same for every object; src2: array of matrices used transposed; dst: array of matrices.
 * Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src2 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mTma */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 is square (docs/before-you-choose.md); otherwise dst has
 * src1Height rows, and src1 is read as a square of that order.
 *
 * Shapes: src1: matrix, the same for every object used transposed; src2: array of matrices; dst: array of matrices.
 * Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 is square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mTmaT */
/** @{ */
/**
 * dst = src1 * src2, in the run-time forms only where src1 and src2 are square (docs/before-you-choose.md);
 * otherwise dst is a square of order src1Height = src2Width, and each sum has src2Height terms.
 *
 * Shapes: src1: matrix, the same for every object used transposed; src2: array of matrices used transposed; dst:
 * array of matrices. Units: src1Width, src1Height, src2Width, src2Height in elements (a size in the name stands for
 * them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero, or two that must be equal differ (run-time forms).
 *
 * Overlap: dst must overlap no source in the run-time forms; some fixed-size forms work in place
 * (docs/products.md).
 */
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f_P(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f_L(const float *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_32f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride, uint32_t src2Width,
        uint32_t src2Height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_P, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f_P(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, uint32_t src2Width,
        uint32_t src2Height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f_L(const double *src1, int32_t src1RowStride, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_PS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, uint32_t src1Width,
        uint32_t src1Height, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        uint32_t src2Width, uint32_t src2Height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_DEPARTS_UNLESS_SQUARE("the product only where src1 and src2 are square: use zelmMul_mam_64f_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmMul_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        uint32_t src1Width, uint32_t src1Height, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, uint32_t src2Width, uint32_t src2Height,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup gaxpy Product of a matrix and a vector, plus a vector
 *
 * src2 has width elements, src3 and dst have height. In the va forms src3 is an array: one vector for all objects
 * has an object stride of 0 (standard, S2, PS2; not P), or its address count times in a table (L, LS2). src3 is
 * added to the finished sum. Sums run from +0 in ascending order, each partial sum stored in dst, but in the
 * fixed-size standard and L forms, which begin with the first product and have an order of their own
 * (docs/products.md).
 */
/** @{ */

/** @name zelmGaxpy_v */
/** @{ */
/**
 * dst = src1 * src2 + src3.
 *
 * Shapes: src1: matrix; src2: vector; src3: vector; dst: vector. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must overlap no source.
 */
ZELM_API ZelmStatus zelmGaxpy_v_32f(const float *src1, int32_t src1RowStride, const float *src2, const float *src3,
        float *dst, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        const float *src3, float *dst);
ZELM_API ZelmStatus zelmGaxpy_v_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        const float *src3, float *dst);
ZELM_API ZelmStatus zelmGaxpy_v_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        const float *src3, float *dst);
ZELM_API ZelmStatus zelmGaxpy_v_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        const float *src3, float *dst);
ZELM_API ZelmStatus zelmGaxpy_v_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, const float *src3, int32_t src3ElemStride, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_64f(const double *src1, int32_t src1RowStride, const double *src2,
        const double *src3, double *dst, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        const double *src3, double *dst);
ZELM_API ZelmStatus zelmGaxpy_v_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        const double *src3, double *dst);
ZELM_API ZelmStatus zelmGaxpy_v_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        const double *src3, double *dst);
ZELM_API ZelmStatus zelmGaxpy_v_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        const double *src3, double *dst);
ZELM_API ZelmStatus zelmGaxpy_v_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, const double *src3, int32_t src3ElemStride, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmGaxpy_v_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmGaxpy_v_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmGaxpy_v_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmGaxpy_va */
/** @{ */
/**
 * dst[k] = src1 * src2[k] + src3[k].
 *
 * Shapes: src1: matrix, the same for every object; src2: array of vectors; src3: array of vectors; dst: array of
 * vectors. Units: width, height in elements (a size in the name stands for them); count in objects; strides and
 * shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must overlap no source.
 */
ZELM_API ZelmStatus zelmGaxpy_va_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, const float *src3, int32_t src3ObjStride, float *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride,
        int32_t src3ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride,
        int32_t src3ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride,
        int32_t src3ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride,
        int32_t src3ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, const float *src3, int32_t src3ObjStride,
        int32_t src3ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, const float *const *src3Table, int32_t src3Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, const float *const *src3Table, int32_t src3Shift, float *const *dstTable,
        int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, const float *const *src3Table, int32_t src3Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, const float *const *src3Table, int32_t src3Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, const float *const *src3Table, int32_t src3Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, const float *const *src3Table, int32_t src3Shift, float *const *dstTable,
        int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const float *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, const double *src3, int32_t src3ObjStride, double *dst, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3,
        int32_t src3ObjStride, int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3,
        int32_t src3ObjStride, int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3,
        int32_t src3ObjStride, int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3,
        int32_t src3ObjStride, int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, const double *src3,
        int32_t src3ObjStride, int32_t src3ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, const double *const *src3Table, int32_t src3Shift, double *const *dstTable,
        int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, const double *const *src3Table, int32_t src3Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmGaxpy_va_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, const double *const *src3Table,
        int32_t src3Shift, int32_t src3ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
