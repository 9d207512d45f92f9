/** @file
 * Subsystem vector of zelm. Written by grid/generate.py from grid/catalogue.py.
 */
#ifndef ZELM_VECTOR_H
#define ZELM_VECTOR_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup dot_product Dot product
 */
/** @{ */

/** @name zelmDotProduct_vv */
/** @{ */
/**
 * dst = sum over j of src1[j] * src2[j].
 *
 * Shapes: src1: vector; src2: vector; dst: one number per object, packed. Units: len in elements (a size in the
 * name stands for it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmDotProduct_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_3x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_4x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_5x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_6x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_3x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_4x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_5x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_6x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst);
ZELM_API ZelmStatus zelmDotProduct_vv_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst);
/** @} */

/** @name zelmDotProduct_vav */
/** @{ */
/**
 * dst[k] = sum over j of src1[k][j] * src2[j].
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: one number per object, packed.
 * Units: len in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmDotProduct_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        float *dst, uint32_t count);
/**
 * Departs from its row (adds in another order than its row, so that last bits differ): sums the products in pairs.
 *
 * @copydoc zelmDotProduct_vav_32f
 */
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *dst, uint32_t len, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): no entry of src1Table is tested.
 *
 * @copydoc zelmDotProduct_vav_32f
 */
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *src2, float *dst, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): sums the products in pairs; no entry of
 * src1Table is tested.
 *
 * @copydoc zelmDotProduct_vav_32f
 */
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *src2, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *src2, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *src2, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *dst, uint32_t len, uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): tests all entries of src1Table before it
 * writes anything.
 *
 * @copydoc zelmDotProduct_vav_32f
 */
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *src2, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *src2, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *src2, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *src2, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vav_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, uint32_t count);
/** @} */

/** @name zelmDotProduct_vava */
/** @{ */
/**
 * dst[k] = sum over j of src1[k][j] * src2[k][j].
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: one number per object, packed. Units: len in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmDotProduct_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *dst,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmDotProduct_vava_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *dst, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup cross_product Cross product
 */
/** @{ */

/** @name zelmCrossProduct_vv */
/** @{ */
/**
 * dst = src1 x src2.
 *
 * Shapes: src1: vector; src2: vector; dst: vector. Units: strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null.
 *
 * Overlap: dst may be a source in the standard and L layouts.
 */
ZELM_API ZelmStatus zelmCrossProduct_vv_32f_3x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmCrossProduct_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCrossProduct_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmCrossProduct_vv_64f_3x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmCrossProduct_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmCrossProduct_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmCrossProduct_vav */
/** @{ */
/**
 * dst = src1 x src2.
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors. Units: count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null.
 *
 * Overlap: dst may be a source in the standard and L layouts.
 */
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmCrossProduct_vava */
/** @{ */
/**
 * dst = src1 x src2.
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors. Units: count in objects; strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null.
 *
 * Overlap: dst may be a source in the standard and L layouts.
 */
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmCrossProduct_vva */
/** @{ */
/**
 * dst = src1 x src2.
 *
 * Shapes: src1: vector, the same for every object; src2: array of vectors; dst: array of vectors. Units: count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null.
 *
 * Overlap: dst may be a source in the standard and L layouts.
 */
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1(const float *src1, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1_L(const float *src1, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1(const double *src1, const double *src2, int32_t src2ObjStride,
        double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1_L(const double *src1, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmCrossProduct_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup l2_norm Euclidean length
 *
 * The 32f forms with a size in the name, in the standard and L layouts, take the root from the processor's
 * approximate reciprocal root and one Newton step, without a test: a zero vector gives NaN, and so does a sum of
 * squares that is infinite. All other forms take the correctly rounded root, 0 of a zero vector: the form with an
 * element stride (S2, LS2) serves where zeros can occur. Squares are not scaled against overflow. Orders of sums:
 * docs/vector.md.
 */
/** @{ */

/** @name zelmL2Norm_v */
/** @{ */
/**
 * dst = sqrt(sum over j of src[j]^2).
 *
 * Shapes: src: vector; dst: one number per object, packed. Units: len in elements (a size in the name stands for
 * it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmL2Norm_v_32f(const float *src, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_32f_3x1(const float *src, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_4x1(const float *src, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_5x1(const float *src, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_6x1(const float *src, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_S2(const float *src, int32_t srcElemStride, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_32f_3x1_S2(const float *src, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_4x1_S2(const float *src, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_5x1_S2(const float *src, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_6x1_S2(const float *src, int32_t srcElemStride, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f(const double *src, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_64f_3x1(const double *src, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_4x1(const double *src, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_5x1(const double *src, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_6x1(const double *src, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_S2(const double *src, int32_t srcElemStride, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_64f_3x1_S2(const double *src, int32_t srcElemStride, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_4x1_S2(const double *src, int32_t srcElemStride, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_5x1_S2(const double *src, int32_t srcElemStride, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_6x1_S2(const double *src, int32_t srcElemStride, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_P(const double *const *srcTable, int32_t srcShift, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmL2Norm_v_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmL2Norm_v_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double *dst);
/** @} */

/** @name zelmL2Norm_va */
/** @{ */
/**
 * dst[k] = sqrt(sum over j of src[k][j]^2).
 *
 * Shapes: src: array of vectors; dst: one number per object, packed. Units: len in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmL2Norm_va_32f(const float *src, int32_t srcObjStride, float *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1(const float *src, int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_L(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1_L(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
/**
 * Departs from its row (tests less than its row, or at another time): no entry of srcTable is tested.
 *
 * @copydoc zelmL2Norm_va_32f
 */
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1_L(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1_L(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1_L(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_3x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_4x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_5x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_32f_6x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f(const double *src, int32_t srcObjStride, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1(const double *src, int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_P(const double *const *srcTable, int32_t srcShift, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_L(const double *const *srcTable, int32_t srcShift, double *dst, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1_L(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1_L(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1_L(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1_L(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_3x1_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_4x1_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_5x1_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmL2Norm_va_64f_6x1_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcElemStride, double *dst, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup frobenius_norm Frobenius norm
 *
 * The 32f forms with a size in the name, in the standard and L layouts, take the root from the processor's
 * approximate reciprocal root and one Newton step, without a test: a zero matrix gives NaN, and so does a sum of
 * squares that is infinite. All other forms take the correctly rounded root, 0 of a zero matrix: the form with an
 * element stride (S2, LS2) serves where zeros can occur. Squares are not scaled against overflow. Orders of sums:
 * docs/vector.md.
 */
/** @{ */

/** @name zelmFrobNorm_m */
/** @{ */
/**
 * dst = sqrt(sum over i, j of src[i][j]^2).
 *
 * Shapes: src: matrix; dst: one number per object, packed. Units: width, height in elements (a size in the name
 * stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmFrobNorm_m_32f(const float *src, int32_t srcRowStride, uint32_t width, uint32_t height,
        float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t width, uint32_t height, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f(const double *src, int32_t srcRowStride, uint32_t width, uint32_t height,
        double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t width, uint32_t height, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmFrobNorm_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst);
/** @} */

/** @name zelmFrobNorm_ma */
/** @{ */
/**
 * dst[k] = sqrt(sum over i, j of src[k][i][j]^2).
 *
 * Shapes: src: array of matrices; dst: one number per object, packed. Units: width, height in elements (a size in
 * the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst is written once per object.
 */
ZELM_API ZelmStatus zelmFrobNorm_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t width, uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t width, uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t width, uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t width, uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t width, uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t width, uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmFrobNorm_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *dst, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup trace Trace
 *
 * Sums run down the diagonal. All forms but the fixed-size standard ones set dst to 0 and add in place. Arrays in P
 * and PS2 test entries 0 to n-1 of srcTable, and read those of the diagonal, i*n + i, without a test.
 */
/** @{ */

/** @name zelmTrace_m */
/** @{ */
/**
 * dst = sum over i of src[i][i].
 *
 * Shapes: src: matrix; dst: one number per object, packed. Units: n in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must not lie on the diagonal of src.
 */
ZELM_API ZelmStatus zelmTrace_m_32f(const float *src, int32_t srcRowStride, uint32_t n, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmTrace_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst);
ZELM_API ZelmStatus zelmTrace_m_64f(const double *src, int32_t srcRowStride, uint32_t n, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, uint32_t n,
        double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst);
ZELM_API ZelmStatus zelmTrace_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst);
/** @} */

/** @name zelmTrace_ma */
/** @{ */
/**
 * dst[k] = sum over i of src[k][i][i].
 *
 * Shapes: src: array of matrices; dst: one number per object, packed. Units: n in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must not lie on the diagonal of src.
 */
ZELM_API ZelmStatus zelmTrace_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t n, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, uint32_t n,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t n, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t n, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t n, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t n, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
ZELM_API ZelmStatus zelmTrace_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
