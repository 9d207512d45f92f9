/** @file
 * Subsystem elementwise of zelm. Written by grid/generate.py from grid/catalogue.py.
 */
#ifndef ZELM_ELEMENTWISE_H
#define ZELM_ELEMENTWISE_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup vector_add_sub Addition and subtraction of vectors
 *
 * Each element is one addition or subtraction, rounded to the element type. An invariant vector is read once,
 * before the first object, in the fixed-size standard and L forms (the departures named at their prototypes aside),
 * and anew for every object in all other forms.
 */
/** @{ */

/** @name zelmAdd_vv */
/** @{ */
/**
 * dst[j] = src1[j] + src2[j].
 *
 * Shapes: src1: vector; src2: vector; dst: vector. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmAdd_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_32f_3x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmAdd_vv_32f_4x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmAdd_vv_32f_5x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmAdd_vv_32f_6x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmAdd_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_64f_3x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmAdd_vv_64f_4x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmAdd_vv_64f_5x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmAdd_vv_64f_6x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmAdd_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vv_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vv_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_vc */
/** @{ */
/**
 * dst[j] = src[j] + val.
 *
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmAdd_vc_32f(const float *src, float val, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_32f_3x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmAdd_vc_32f_4x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmAdd_vc_32f_5x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmAdd_vc_32f_6x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmAdd_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_64f(const double *src, double val, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_64f_3x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmAdd_vc_64f_4x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmAdd_vc_64f_5x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmAdd_vc_64f_6x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmAdd_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_vc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmAdd_vc_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_vc_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_vav */
/** @{ */
/**
 * dst[k][j] = src1[k][j] + src2[j].
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors. Units: len in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmAdd_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmAdd_vav_32f
 */
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmAdd_vav_32f
 */
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vav_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_vac */
/** @{ */
/**
 * dst[k][j] = src[k][j] + val.
 *
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmAdd_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_3x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_4x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_5x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_32f_6x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_3x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_4x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_5x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vac_64f_6x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_vava */
/** @{ */
/**
 * dst[k][j] = src1[k][j] + src2[k][j].
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors. Units: len in elements (a size in
 * the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmAdd_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_vava_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_vv */
/** @{ */
/**
 * dst[j] = src1[j] - src2[j].
 *
 * Shapes: src1: vector; src2: vector; dst: vector. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vv_32f(const float *src1, const float *src2, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_32f_3x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSub_vv_32f_4x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSub_vv_32f_5x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSub_vv_32f_6x1(const float *src1, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSub_vv_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_64f(const double *src1, const double *src2, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_64f_3x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSub_vv_64f_4x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSub_vv_64f_5x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSub_vv_64f_6x1(const double *src1, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSub_vv_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vv_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vv_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_vc */
/** @{ */
/**
 * dst[j] = src[j] - val.
 *
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vc_32f(const float *src, float val, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_32f_3x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_vc_32f_4x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_vc_32f_5x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_vc_32f_6x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_64f(const double *src, double val, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_64f_3x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_vc_64f_4x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_vc_64f_5x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_vc_64f_6x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_vc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_vc_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_vc_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_cv */
/** @{ */
/**
 * dst[j] = val - src[j].
 *
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_cv_32f(const float *src, float val, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_32f_3x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_cv_32f_4x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_cv_32f_5x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_cv_32f_6x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmSub_cv_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_64f(const double *src, double val, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_64f_3x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_cv_64f_4x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_cv_64f_5x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_cv_64f_6x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmSub_cv_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_cv_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSub_cv_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_cv_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_vav */
/** @{ */
/**
 * dst[k][j] = src1[k][j] - src2[j].
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors. Units: len in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vav_32f(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, const float *src2,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_vav_32f
 */
ZELM_API ZelmStatus zelmSub_vav_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_vav_32f
 */
ZELM_API ZelmStatus zelmSub_vav_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, const double *src2,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const double *src2, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vav_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_vac */
/** @{ */
/**
 * dst[k][j] = src[k][j] - val.
 *
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_3x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_4x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_5x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_32f_6x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_3x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_4x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_5x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vac_64f_6x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_vava */
/** @{ */
/**
 * dst[k][j] = src1[k][j] - src2[k][j].
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors. Units: len in elements (a size in
 * the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vava_32f(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1(const float *src1, int32_t src1ObjStride, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1_L(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1(const double *src1, int32_t src1ObjStride, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1_L(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vava_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_vva */
/** @{ */
/**
 * dst[k][j] = src1[j] - src2[k][j].
 *
 * Shapes: src1: vector, the same for every object; src2: array of vectors; dst: array of vectors. Units: len in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_vva_32f(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1(const float *src1, const float *src2, int32_t src2ObjStride, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1_S2(const float *src1, int32_t src1ElemStride, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_L(const float *src1, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1_L(const float *src1, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1_L(const float *src1, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1_L(const float *src1, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1_L(const float *src1, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_LS2(const float *src1, int32_t src1ElemStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_4x1_LS2(const float *src1, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_5x1_LS2(const float *src1, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_32f_6x1_LS2(const float *src1, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
        int32_t dstObjStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_vva_32f
 */
ZELM_API ZelmStatus zelmSub_vva_64f_6x1(const double *src1, const double *src2, int32_t src2ObjStride, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_6x1_S2(const double *src1, int32_t src1ElemStride, const double *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_6x1_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_L(const double *src1, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1_L(const double *src1, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1_L(const double *src1, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1_L(const double *src1, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_vva_32f
 */
ZELM_API ZelmStatus zelmSub_vva_64f_6x1_L(const double *src1, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_LS2(const double *src1, int32_t src1ElemStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_4x1_LS2(const double *src1, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_5x1_LS2(const double *src1, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_vva_64f_6x1_LS2(const double *src1, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_cva */
/** @{ */
/**
 * dst[k][j] = val - src[k][j].
 *
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 * inside it over elements, gives in ascending order.
 */
ZELM_API ZelmStatus zelmSub_cva_32f(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_3x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_4x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_5x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_32f_6x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_3x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_4x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_5x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_cva_64f_6x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup matrix_add_sub Addition and subtraction of matrices
 */
/** @{ */

/** @name zelmAdd_mm */
/** @{ */
/**
 * dst[i][j] = src1[i][j] + src2[i][j].
 *
 * Shapes: src1: matrix; src2: matrix; dst: matrix. Units: width, height in elements (a size in the name stands for
 * them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mm_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_mmT */
/** @{ */
/**
 * dst[i][j] = src1[i][j] + src2[j][i].
 *
 * Shapes: src1: matrix; src2: matrix used transposed; dst: matrix. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_mamT_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mmT_32f
 */
ZELM_API ZelmStatus zelmAdd_mmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_mamT_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mmT_32f
 */
ZELM_API ZelmStatus zelmAdd_mmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_mTm */
/** @{ */
/**
 * dst[i][j] = src1[j][i] + src2[i][j].
 *
 * Shapes: src1: matrix used transposed; src2: matrix; dst: matrix. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_maTm_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mTm_32f
 */
ZELM_API ZelmStatus zelmAdd_mTm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_maTm_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mTm_32f
 */
ZELM_API ZelmStatus zelmAdd_mTm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_mTmT */
/** @{ */
/**
 * dst[i][j] = src1[j][i] + src2[j][i].
 *
 * Shapes: src1: matrix used transposed; src2: matrix used transposed; dst: matrix. Units: width, height in elements
 * (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_maTmT_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mTmT_32f
 */
ZELM_API ZelmStatus zelmAdd_mTmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmAdd_maTmT_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmAdd_mTmT_32f
 */
ZELM_API ZelmStatus zelmAdd_mTmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmAdd_mTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmAdd_mam */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] + src2[i][j].
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where count
 * is 0, or dst overlaps a later object of src1: reads object k+1 before it stores object k; a count of 0 counts as
 * 1. Instead: zelmAdd_mam_32f_3x3_S2(src1, src1ObjStride, src1RowStride, 4, src2, src2RowStride, 4, dst,
 * dstObjStride, dstRowStride, 4, count).
 *
 * @copydoc zelmAdd_mam_32f
 */
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where count
 * is 0, or dst overlaps a later object of src1: reads object k+1 before it stores object k; a count of 0 counts as
 * 1. Instead: zelmAdd_mam_32f_3x3_LS2(src1Table, src1Shift, src1RowStride, 4, src2, src2RowStride, 4, dstTable,
 * dstShift, dstRowStride, 4, count).
 *
 * @copydoc zelmAdd_mam_32f
 */
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmAdd_mam_64f_5x5_S2(src1, src1ObjStride,
 * src1RowStride, 8, src2, src2RowStride, 8, dst, dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mam_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmAdd_mam_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2 and src2RowStride are
 * multiples of 16, and an object of src1 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmAdd_mam_64f_3x3_LS2(src1Table, src1Shift, src1RowStride, 8,
 * src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mam_32f
 */
ZELM_DEPARTS("where src2 and src2RowStride are multiples of 16, and an object of src1 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use zelmAdd_mam_64f_3x3_LS2, "
        "see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmAdd_mam_64f_5x5_LS2(src1Table, src1Shift,
 * src1RowStride, 8, src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mam_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmAdd_mam_64f_5x5_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mam_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_mamT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] + src2[j][i].
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object used transposed; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2RowStride differs from
 * src1RowStride: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores
 * object k; a count of 0 counts as 1. Instead: zelmAdd_mamT_32f_3x3_S2(src1, src1ObjStride, src1RowStride, 4, src2,
 * src2RowStride, 4, dst, dstObjStride, dstRowStride, 4, count).
 *
 * @copydoc zelmAdd_mamT_32f
 */
ZELM_DEPARTS("where src2RowStride differs from src1RowStride, src2RowStride is not read, rows of src2 lie at "
        "src1RowStride: use zelmAdd_mamT_32f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2RowStride differs from
 * src1RowStride: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores
 * object k; a count of 0 counts as 1. Instead: zelmAdd_mamT_32f_3x3_LS2(src1Table, src1Shift, src1RowStride, 4,
 * src2, src2RowStride, 4, dstTable, dstShift, dstRowStride, 4, count).
 *
 * @copydoc zelmAdd_mamT_32f
 */
ZELM_DEPARTS("where src2RowStride differs from src1RowStride, src2RowStride is not read, rows of src2 lie at "
        "src1RowStride: use zelmAdd_mamT_32f_3x3_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmAdd_mamT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mamT_32f
 */
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2 and src2RowStride are
 * multiples of 16, and an object of src1 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmAdd_mamT_64f_3x3_LS2(src1Table, src1Shift, src1RowStride, 8,
 * src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mamT_32f
 */
ZELM_DEPARTS("where src2 and src2RowStride are multiples of 16, and an object of src1 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use "
        "zelmAdd_mamT_64f_3x3_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_mama */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] + src2[k][i][j].
 *
 * Shapes: src1: array of matrices; src2: array of matrices; dst: array of matrices. Units: width, height in
 * elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmAdd_mama_64f_5x5_S2(src1, src1ObjStride,
 * src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst, dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mama_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmAdd_mama_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmAdd_mama_64f_5x5_LS2(src1Table, src1Shift,
 * src1RowStride, 8, src2Table, src2Shift, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_mama_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmAdd_mama_64f_5x5_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mama_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_mamaT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] + src2[k][j][i].
 *
 * Shapes: src1: array of matrices; src2: array of matrices used transposed; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_mamaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_maTm */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] + src2[i][j].
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmAdd_maTm_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_maTm_32f
 */
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTm_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_maTmT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] + src2[j][i].
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object used transposed; dst:
 * array of matrices. Units: width, height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmAdd_maTmT_32f
 */
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmAdd_maTmT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmAdd_maTmT_32f
 */
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_maTma */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] + src2[k][i][j].
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTma_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmAdd_maTmaT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] + src2[k][j][i].
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices used transposed; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmAdd_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmAdd_maTmaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mm */
/** @{ */
/**
 * dst[i][j] = src1[i][j] - src2[i][j].
 *
 * Shapes: src1: matrix; src2: matrix; dst: matrix. Units: width, height in elements (a size in the name stands for
 * them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mm_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_mmT */
/** @{ */
/**
 * dst[i][j] = src1[i][j] - src2[j][i].
 *
 * Shapes: src1: matrix; src2: matrix used transposed; dst: matrix. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mmT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_mamT_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mmT_32f
 */
ZELM_API ZelmStatus zelmSub_mmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_mamT_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mmT_32f
 */
ZELM_API ZelmStatus zelmSub_mmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_mTm */
/** @{ */
/**
 * dst[i][j] = src1[j][i] - src2[i][j].
 *
 * Shapes: src1: matrix used transposed; src2: matrix; dst: matrix. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mTm_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTm_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_maTm_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mTm_32f
 */
ZELM_API ZelmStatus zelmSub_mTm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTm_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2ElemStride differs from
 * src1ElemStride: src2ElemStride is not read, elements of src2 lie at src1ElemStride. Instead:
 * zelmSub_mTm_64f_S2(src1, src1RowStride, src1ElemStride, src2, src2RowStride, src2ElemStride, dst, dstRowStride,
 * dstElemStride, 6, 6).
 *
 * @copydoc zelmSub_mTm_32f
 */
ZELM_DEPARTS("where src2ElemStride differs from src1ElemStride, src2ElemStride is not read, elements of src2 lie at "
        "src1ElemStride: use zelmSub_mTm_64f_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mTm_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_maTm_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mTm_32f
 */
ZELM_API ZelmStatus zelmSub_mTm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_mTmT */
/** @{ */
/**
 * dst[i][j] = src1[j][i] - src2[j][i].
 *
 * Shapes: src1: matrix used transposed; src2: matrix used transposed; dst: matrix. Units: width, height in elements
 * (a size in the name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mTmT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
/**
 * Departs from its row (gives other values than its formula on ordinary data): row 3 of dst receives the values of
 * row 2. Instead: zelmSub_mTmT_32f_6x6_S2(src1, src1RowStride, 4, src2, src2RowStride, 4, dst, dstRowStride, 4).
 *
 * @copydoc zelmSub_mTmT_32f
 */
ZELM_DEPARTS("row 3 of dst receives the values of row 2: use zelmSub_mTmT_32f_6x6_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mTmT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2RowStride, float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_maTmT_32f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mTmT_32f
 */
ZELM_API ZelmStatus zelmSub_mTmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2RowStride, double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmSub_mTmT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst, int32_t dstRowStride,
        int32_t dstElemStride);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where width
 * is less than height: entries behind the table are tested: tests entry i*height + j of a transposed operand and
 * reads j*height + i. Instead: zelmSub_maTmT_64f_P(src1Table, src1Shift, src2Table, src2Shift, dstTable, dstShift,
 * width, height, 1).
 *
 * @copydoc zelmSub_mTmT_32f
 */
ZELM_API ZelmStatus zelmSub_mTmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmSub_mTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSub_mTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSub_mam */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] - src2[i][j].
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mam_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where count
 * is 0, or dst overlaps a later object of src1: reads object k+1 before it stores object k; a count of 0 counts as
 * 1. Instead: zelmSub_mam_32f_3x3_S2(src1, src1ObjStride, src1RowStride, 4, src2, src2RowStride, 4, dst,
 * dstObjStride, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_mam_32f
 */
ZELM_API ZelmStatus zelmSub_mam_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where count
 * is 0, or dst overlaps a later object of src1: reads object k+1 before it stores object k; a count of 0 counts as
 * 1. Instead: zelmSub_mam_32f_3x3_LS2(src1Table, src1Shift, src1RowStride, 4, src2, src2RowStride, 4, dstTable,
 * dstShift, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_mam_32f
 */
ZELM_API ZelmStatus zelmSub_mam_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmSub_mam_64f_5x5_S2(src1, src1ObjStride,
 * src1RowStride, 8, src2, src2RowStride, 8, dst, dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mam_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmSub_mam_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mam_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2 and src2RowStride are
 * multiples of 16, and an object of src1 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmSub_mam_64f_3x3_LS2(src1Table, src1Shift, src1RowStride, 8,
 * src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mam_32f
 */
ZELM_DEPARTS("where src2 and src2RowStride are multiples of 16, and an object of src1 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use zelmSub_mam_64f_3x3_LS2, "
        "see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mam_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmSub_mam_64f_5x5_LS2(src1Table, src1Shift,
 * src1RowStride, 8, src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mam_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmSub_mam_64f_5x5_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mam_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mam_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mamT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] - src2[j][i].
 *
 * Shapes: src1: array of matrices; src2: matrix, the same for every object used transposed; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mamT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2RowStride differs from
 * src1RowStride: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores
 * object k; a count of 0 counts as 1. Instead: zelmSub_mamT_32f_3x3_S2(src1, src1ObjStride, src1RowStride, 4, src2,
 * src2RowStride, 4, dst, dstObjStride, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_mamT_32f
 */
ZELM_DEPARTS("where src2RowStride differs from src1RowStride, src2RowStride is not read, rows of src2 lie at "
        "src1RowStride: use zelmSub_mamT_32f_3x3_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2RowStride differs from
 * src1RowStride: src2RowStride is not read, rows of src2 lie at src1RowStride; reads object k+1 before it stores
 * object k; a count of 0 counts as 1. Instead: zelmSub_mamT_32f_3x3_LS2(src1Table, src1Shift, src1RowStride, 4,
 * src2, src2RowStride, 4, dstTable, dstShift, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_mamT_32f
 */
ZELM_DEPARTS("where src2RowStride differs from src1RowStride, src2RowStride is not read, rows of src2 lie at "
        "src1RowStride: use zelmSub_mamT_32f_3x3_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_mamT_64f_3x3_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mamT_32f
 */
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_mamT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mamT_32f
 */
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src2 and src2RowStride are
 * multiples of 16, and an object of src1 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmSub_mamT_64f_3x3_LS2(src1Table, src1Shift, src1RowStride, 8,
 * src2, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mamT_32f
 */
ZELM_DEPARTS("where src2 and src2RowStride are multiples of 16, and an object of src1 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use "
        "zelmSub_mamT_64f_3x3_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mama */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] - src2[k][i][j].
 *
 * Shapes: src1: array of matrices; src2: array of matrices; dst: array of matrices. Units: width, height in
 * elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mama_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmSub_mama_64f_5x5_S2(src1, src1ObjStride,
 * src1RowStride, 8, src2, src2ObjStride, src2RowStride, 8, dst, dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mama_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmSub_mama_64f_5x5_S2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mama_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_mama_64f_4x4_LS2(src1Table, src1Shift, src1RowStride, 8, src2Table, src2Shift, src2RowStride, 8,
 * dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mama_32f
 */
ZELM_API ZelmStatus zelmSub_mama_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1RowStride differs from
 * src2RowStride: reads column 4 of src1 at src2RowStride. Instead: zelmSub_mama_64f_5x5_LS2(src1Table, src1Shift,
 * src1RowStride, 8, src2Table, src2Shift, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mama_32f
 */
ZELM_DEPARTS("where src1RowStride differs from src2RowStride, reads column 4 of src1 at src2RowStride: use "
        "zelmSub_mama_64f_5x5_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mama_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mama_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mamaT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][i][j] - src2[k][j][i].
 *
 * Shapes: src1: array of matrices; src2: array of matrices used transposed; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mamaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_mamaT_64f_4x4_LS2(src1Table, src1Shift, src1RowStride, 8, src2Table, src2Shift, src2RowStride,
 * 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mamaT_32f
 */
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mamaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_maTm */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] - src2[i][j].
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_maTm_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTm_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_maTmT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] - src2[j][i].
 *
 * Shapes: src1: array of matrices used transposed; src2: matrix, the same for every object used transposed; dst:
 * array of matrices. Units: width, height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_maTmT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *src2, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *src2, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_maTmT_64f_6x6_S2(src1, src1ObjStride, src1RowStride, 8, src2, src2RowStride, 8, dst,
 * dstObjStride, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_maTmT_32f
 */
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *src2, int32_t src2RowStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *src2, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_maTma */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] - src2[k][i][j].
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_maTma_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (accesses memory that its arguments do not name, or raises an alignment fault) where object
 * 0 of every operand is at a multiple of 16 and a later object of dst is not: an alignment fault is raised.
 * Instead: zelmSub_maTma_64f_5x5_LS2(src1Table, src1Shift, src1RowStride, 8, src2Table, src2Shift, src2RowStride,
 * 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_maTma_32f
 */
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTma_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_maTmaT */
/** @{ */
/**
 * dst[k][i][j] = src1[k][j][i] - src2[k][j][i].
 *
 * Shapes: src1: array of matrices used transposed; src2: array of matrices used transposed; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_maTmaT_32f(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): takes its elements from the stored
 * places that a table names. Instead: zelmSub_maTmaT_32f_6x6_S2(src1, src1ObjStride, src1RowStride, 4, src2,
 * src2ObjStride, src2RowStride, 4, dst, dstObjStride, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_maTmaT_32f
 */
ZELM_DEPARTS("takes its elements from the stored places that a table names: use zelmSub_maTmaT_32f_6x6_S2, see "
        "docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6_S2(const float *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const float *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_L(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, float *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): takes its elements from the stored
 * places that a table names. Instead: zelmSub_maTmaT_32f_6x6_LS2(src1Table, src1Shift, src1RowStride, 4, src2Table,
 * src2Shift, src2RowStride, 4, dstTable, dstShift, dstRowStride, 4, count).
 *
 * @copydoc zelmSub_maTmaT_32f
 */
ZELM_DEPARTS("takes its elements from the stored places that a table names: use zelmSub_maTmaT_32f_6x6_LS2, see "
        "docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6_L(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_3x3_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_4x4_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_5x5_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_32f_6x6_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const float *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6_S2(const double *src1, int32_t src1ObjStride, int32_t src1RowStride,
        int32_t src1ElemStride, const double *src2, int32_t src2ObjStride, int32_t src2RowStride,
        int32_t src2ElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_L(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6_L(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1RowStride,
        int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_3x3_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_4x4_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_5x5_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_maTmaT_64f_6x6_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1RowStride, int32_t src1ElemStride, const double *const *src2Table, int32_t src2Shift,
        int32_t src2RowStride, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mma */
/** @{ */
/**
 * dst[k][i][j] = src1[i][j] - src2[k][i][j].
 *
 * Shapes: src1: matrix, the same for every object; src2: array of matrices; dst: array of matrices. Units: width,
 * height in elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mma_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mma_32f
 */
ZELM_API ZelmStatus zelmSub_mma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mma_32f
 */
ZELM_API ZelmStatus zelmSub_mma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mma_32f
 */
ZELM_API ZelmStatus zelmSub_mma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1 and src1RowStride are
 * multiples of 16, and an object of src2 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmSub_mma_64f_3x3_LS2(src1, src1RowStride, 8, src2Table,
 * src2Shift, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mma_32f
 */
ZELM_DEPARTS("where src1 and src1RowStride are multiples of 16, and an object of src2 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use zelmSub_mma_64f_3x3_LS2, "
        "see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mma_64f_3x3_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mma_32f
 */
ZELM_API ZelmStatus zelmSub_mma_64f_6x6_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mmaT */
/** @{ */
/**
 * dst[k][i][j] = src1[i][j] - src2[k][j][i].
 *
 * Shapes: src1: matrix, the same for every object; src2: array of matrices used transposed; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mmaT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mTma */
/** @{ */
/**
 * dst[k][i][j] = src1[j][i] - src2[k][i][j].
 *
 * Shapes: src1: matrix, the same for every object used transposed; src2: array of matrices; dst: array of matrices.
 * Units: width, height in elements (a size in the name stands for them); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mTma_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mTma_32f
 */
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where src1 and src1RowStride are
 * multiples of 16, and an object of src2 or dst or their row strides are not, or the other way round: pairs the
 * elements of the invariant with others. Instead: zelmSub_mTma_64f_3x3_LS2(src1, src1RowStride, 8, src2Table,
 * src2Shift, src2RowStride, 8, dstTable, dstShift, dstRowStride, 8, count).
 *
 * @copydoc zelmSub_mTma_32f
 */
ZELM_DEPARTS("where src1 and src1RowStride are multiples of 16, and an object of src2 or dst or their row strides are "
        "not, or the other way round, pairs the elements of the invariant with others: use "
        "zelmSub_mTma_64f_3x3_LS2, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mTma_32f
 */
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTma_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSub_mTmaT */
/** @{ */
/**
 * dst[k][i][j] = src1[j][i] - src2[k][j][i].
 *
 * Shapes: src1: matrix, the same for every object used transposed; src2: array of matrices used transposed; dst:
 * array of matrices. Units: width, height in elements (a size in the name stands for them); count in objects;
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmSub_mTmaT_32f(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6(const float *src1, int32_t src1RowStride, const float *src2,
        int32_t src2ObjStride, int32_t src2RowStride, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6_S2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6_P(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6_L(const float *src1, int32_t src1RowStride, const float *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6_PS2(const float *const *src1Table, int32_t src1Shift,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_3x3_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_4x4_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_5x5_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_32f_6x6_LS2(const float *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const float *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mTmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6(const double *src1, int32_t src1RowStride, const double *src2,
        int32_t src2ObjStride, int32_t src2RowStride, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6_S2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *src2, int32_t src2ObjStride, int32_t src2RowStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6_P(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_L(const double *src1, int32_t src1RowStride, const double *const *src2Table,
        int32_t src2Shift, int32_t src2RowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst overlaps the invariant operand: reads the invariant operand anew for every object.
 *
 * @copydoc zelmSub_mTmaT_32f
 */
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6_L(const double *src1, int32_t src1RowStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, double *const *dstTable,
        int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6_PS2(const double *const *src1Table, int32_t src1Shift,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_3x3_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_4x4_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_5x5_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSub_mTmaT_64f_6x6_LS2(const double *src1, int32_t src1RowStride, int32_t src1ElemStride,
        const double *const *src2Table, int32_t src2Shift, int32_t src2RowStride, int32_t src2ElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup scaling Scaling by a constant
 */
/** @{ */

/** @name zelmMul_vc */
/** @{ */
/**
 * dst[j] = src[j] * val.
 *
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_vc_32f(const float *src, float val, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_32f_3x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmMul_vc_32f_4x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmMul_vc_32f_5x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmMul_vc_32f_6x1(const float *src, float val, float *dst);
ZELM_API ZelmStatus zelmMul_vc_32f_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_32f_3x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_32f_4x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_32f_5x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_32f_6x1_S2(const float *src, int32_t srcElemStride, float val, float *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_64f(const double *src, double val, double *dst, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_64f_3x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmMul_vc_64f_4x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmMul_vc_64f_5x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmMul_vc_64f_6x1(const double *src, double val, double *dst);
ZELM_API ZelmStatus zelmMul_vc_64f_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_64f_3x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_64f_4x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_64f_5x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_64f_6x1_S2(const double *src, int32_t srcElemStride, double val, double *dst,
        int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_vc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmMul_vc_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_vc_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_vac */
/** @{ */
/**
 * dst[k][j] = src[k][j] * val.
 *
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 * stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_vac_32f(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1(const float *src, int32_t srcObjStride, float val, float *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1_L(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_3x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_4x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_5x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_32f_6x1_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1(const double *src, int32_t srcObjStride, double val, double *dst,
        int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1_L(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_3x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_4x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_5x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_vac_64f_6x1_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_mc */
/** @{ */
/**
 * dst[i][j] = src[i][j] * val.
 *
 * Shapes: src: matrix; dst: matrix; val: by value. Units: width, height in elements (a size in the name stands for
 * them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_mc_32f(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_64f(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mc_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mc_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mTc */
/** @{ */
/**
 * dst[i][j] = src[j][i] * val.
 *
 * Shapes: src: matrix used transposed; dst: matrix; val: by value. Units: width, height in elements (a size in the
 * name stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_mTc_32f(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_32f_3x3(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads the whole matrix first: dst may be src.
 *
 * @copydoc zelmMul_mTc_32f
 */
ZELM_API ZelmStatus zelmMul_mTc_32f_4x4(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_5x5(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_6x6(const float *src, int32_t srcRowStride, float val, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float val,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_64f(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_64f_3x3(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads the whole matrix first: dst may be src.
 *
 * @copydoc zelmMul_mTc_32f
 */
ZELM_API ZelmStatus zelmMul_mTc_64f_4x4(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_5x5(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_6x6(const double *src, int32_t srcRowStride, double val, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride, double val,
        double *dst, int32_t dstRowStride, int32_t dstElemStride, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double val, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmMul_mTc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height);
ZELM_API ZelmStatus zelmMul_mTc_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmMul_mTc_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmMul_mac */
/** @{ */
/**
 * dst[k][i][j] = src[k][i][j] * val.
 *
 * Shapes: src: array of matrices; dst: array of matrices; val: by value. Units: width, height in elements (a size
 * in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_mac_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_mac_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmMul_maTc */
/** @{ */
/**
 * dst[k][i][j] = src[k][j][i] * val.
 *
 * Shapes: src: array of matrices used transposed; dst: array of matrices; val: by value. Units: width, height in
 * elements (a size in the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be src of the same addressing, for rows without T.
 */
ZELM_API ZelmStatus zelmMul_maTc_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads the whole matrix first: dst may be src.
 *
 * @copydoc zelmMul_maTc_32f
 */
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride, float val,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6_P(const float *const *srcTable, int32_t srcShift, float val,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads the whole matrix first: dst may be src.
 *
 * @copydoc zelmMul_maTc_32f
 */
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float val, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float val, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads the whole matrix first: dst may be src.
 *
 * @copydoc zelmMul_maTc_32f
 */
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride, double val,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6_P(const double *const *srcTable, int32_t srcShift, double val,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double val, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmMul_maTc_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double val, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup saxpy_lcomb Scaled sums of vectors
 */
/** @{ */

/** @name zelmSaxpy_vv */
/** @{ */
/**
 * dst[j] = src1[j] * scale + src2[j].
 *
 * Shapes: src1: vector; src2: vector; dst: vector; scale: by value. Units: len in elements (a size in the name
 * stands for it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmSaxpy_vv_32f(const float *src1, float scale, const float *src2, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_3x1(const float *src1, float scale, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_4x1(const float *src1, float scale, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_5x1(const float *src1, float scale, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_6x1(const float *src1, float scale, const float *src2, float *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_S2(const float *src1, int32_t src1ElemStride, float scale, const float *src2,
        int32_t src2ElemStride, float *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ElemStride, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_64f(const double *src1, double scale, const double *src2, double *dst,
        uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_3x1(const double *src1, double scale, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_4x1(const double *src1, double scale, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_5x1(const double *src1, double scale, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_6x1(const double *src1, double scale, const double *src2, double *dst);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ElemStride, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmSaxpy_vv_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmSaxpy_vav */
/** @{ */
/**
 * dst[k][j] = src1[k][j] * scale + src2[j].
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors; scale: by value.
 * Units: len in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmSaxpy_vav_32f(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *src2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        float scale, const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ElemStride, float *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *src2, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *src2, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *src2, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *src2, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f(const double *src1, int32_t src1ObjStride, double scale, const double *src2,
        double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *src2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        double scale, const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vav_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *src2, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSaxpy_vava */
/** @{ */
/**
 * dst[k][j] = src1[k][j] * scale + src2[k][j].
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors; scale: by value. Units: len in
 * elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmSaxpy_vava_32f(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1(const float *src1, int32_t src1ObjStride, float scale, const float *src2,
        int32_t src2ObjStride, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        float scale, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f(const double *src1, int32_t src1ObjStride, double scale, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1(const double *src1, int32_t src1ObjStride, double scale,
        const double *src2, int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        double scale, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vava_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmSaxpy_vva */
/** @{ */
/**
 * dst[k][j] = src1[j] * scale + src2[k][j].
 *
 * Shapes: src1: vector, the same for every object; src2: array of vectors; dst: array of vectors; scale: by value.
 * Units: len in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmSaxpy_vva_32f(const float *src1, float scale, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1(const float *src1, float scale, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1(const float *src1, float scale, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1(const float *src1, float scale, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1(const float *src1, float scale, const float *src2, int32_t src2ObjStride,
        float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_S2(const float *src1, int32_t src1ElemStride, float scale, const float *src2,
        int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float scale,
        const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_L(const float *src1, float scale, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1_L(const float *src1, float scale, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1_L(const float *src1, float scale, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1_L(const float *src1, float scale, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1_L(const float *src1, float scale, const float *const *src2Table,
        int32_t src2Shift, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_PS2(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_LS2(const float *src1, int32_t src1ElemStride, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_3x1_LS2(const float *src1, int32_t src1ElemStride, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_4x1_LS2(const float *src1, int32_t src1ElemStride, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_5x1_LS2(const float *src1, int32_t src1ElemStride, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_32f_6x1_LS2(const float *src1, int32_t src1ElemStride, float scale,
        const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f(const double *src1, double scale, const double *src2, int32_t src2ObjStride,
        double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1(const double *src1, double scale, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1(const double *src1, double scale, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1(const double *src1, double scale, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1(const double *src1, double scale, const double *src2,
        int32_t src2ObjStride, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double scale,
        const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_L(const double *src1, double scale, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1_L(const double *src1, double scale, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1_L(const double *src1, double scale, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1_L(const double *src1, double scale, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1_L(const double *src1, double scale, const double *const *src2Table,
        int32_t src2Shift, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_PS2(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_LS2(const double *src1, int32_t src1ElemStride, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_3x1_LS2(const double *src1, int32_t src1ElemStride, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_4x1_LS2(const double *src1, int32_t src1ElemStride, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_5x1_LS2(const double *src1, int32_t src1ElemStride, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmSaxpy_vva_64f_6x1_LS2(const double *src1, int32_t src1ElemStride, double scale,
        const double *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmLComb_vv */
/** @{ */
/**
 * dst[j] = src1[j] * scale1 + src2[j] * scale2.
 *
 * Shapes: src1: vector; src2: vector; dst: vector; scale1, scale2: by value. Units: len in elements (a size in the
 * name stands for it); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmLComb_vv_32f(const float *src1, float scale1, const float *src2, float scale2, float *dst,
        uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_32f_3x1(const float *src1, float scale1, const float *src2, float scale2,
        float *dst);
ZELM_API ZelmStatus zelmLComb_vv_32f_4x1(const float *src1, float scale1, const float *src2, float scale2,
        float *dst);
ZELM_API ZelmStatus zelmLComb_vv_32f_5x1(const float *src1, float scale1, const float *src2, float scale2,
        float *dst);
ZELM_API ZelmStatus zelmLComb_vv_32f_6x1(const float *src1, float scale1, const float *src2, float scale2,
        float *dst);
ZELM_API ZelmStatus zelmLComb_vv_32f_S2(const float *src1, int32_t src1ElemStride, float scale1, const float *src2,
        int32_t src2ElemStride, float scale2, float *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_32f_3x1_S2(const float *src1, int32_t src1ElemStride, float scale1,
        const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_32f_4x1_S2(const float *src1, int32_t src1ElemStride, float scale1,
        const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_32f_5x1_S2(const float *src1, int32_t src1ElemStride, float scale1,
        const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_32f_6x1_S2(const float *src1, int32_t src1ElemStride, float scale1,
        const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_32f_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_64f(const double *src1, double scale1, const double *src2, double scale2,
        double *dst, uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_64f_3x1(const double *src1, double scale1, const double *src2, double scale2,
        double *dst);
ZELM_API ZelmStatus zelmLComb_vv_64f_4x1(const double *src1, double scale1, const double *src2, double scale2,
        double *dst);
ZELM_API ZelmStatus zelmLComb_vv_64f_5x1(const double *src1, double scale1, const double *src2, double scale2,
        double *dst);
ZELM_API ZelmStatus zelmLComb_vv_64f_6x1(const double *src1, double scale1, const double *src2, double scale2,
        double *dst);
ZELM_API ZelmStatus zelmLComb_vv_64f_S2(const double *src1, int32_t src1ElemStride, double scale1,
        const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstElemStride, uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_64f_3x1_S2(const double *src1, int32_t src1ElemStride, double scale1,
        const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_64f_4x1_S2(const double *src1, int32_t src1ElemStride, double scale1,
        const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_64f_5x1_S2(const double *src1, int32_t src1ElemStride, double scale1,
        const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_64f_6x1_S2(const double *src1, int32_t src1ElemStride, double scale1,
        const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstElemStride);
ZELM_API ZelmStatus zelmLComb_vv_64f_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t len);
ZELM_API ZelmStatus zelmLComb_vv_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmLComb_vv_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmLComb_vav */
/** @{ */
/**
 * dst[k][j] = src1[k][j] * scale1 + src2[j] * scale2.
 *
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors; scale1, scale2:
 * by value. Units: len in elements (a size in the name stands for it); count in objects; strides and shifts in
 * bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmLComb_vav_32f(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        float scale2, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *src2, float scale2, float *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *src2, float scale2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *src2, float scale2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *src2, float scale2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *src2, float scale2, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        float scale1, const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ElemStride, float scale2, float *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *src2, int32_t src2ElemStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *src2, int32_t src2ElemStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *src2, int32_t src2ElemStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *src2, int32_t src2ElemStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f(const double *src1, int32_t src1ObjStride, double scale1, const double *src2,
        double scale2, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *dst, int32_t dstObjStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *src2, double scale2, double *const *dstTable, int32_t dstShift, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *src2, double scale2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *src2, double scale2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *src2, double scale2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *src2, double scale2, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        double scale1, const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable,
        int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_LS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ElemStride, double scale2, double *const *dstTable,
        int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *src2, int32_t src2ElemStride, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *src2, int32_t src2ElemStride, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *src2, int32_t src2ElemStride, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vav_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *src2, int32_t src2ElemStride, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t count);
/** @} */

/** @name zelmLComb_vava */
/** @{ */
/**
 * dst[k][j] = src1[k][j] * scale1 + src2[k][j] * scale2.
 *
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors; scale1, scale2: by value. Units:
 * len in elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst may be a source; partial overlap gives what the ascending loop gives.
 */
ZELM_API ZelmStatus zelmLComb_vava_32f(const float *src1, int32_t src1ObjStride, float scale1, const float *src2,
        int32_t src2ObjStride, float scale2, float *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1(const float *src1, int32_t src1ObjStride, float scale1,
        const float *src2, int32_t src2ObjStride, float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1(const float *src1, int32_t src1ObjStride, float scale1,
        const float *src2, int32_t src2ObjStride, float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1(const float *src1, int32_t src1ObjStride, float scale1,
        const float *src2, int32_t src2ObjStride, float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1(const float *src1, int32_t src1ObjStride, float scale1,
        const float *src2, int32_t src2ObjStride, float scale2, float *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float scale2, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float scale2, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float scale2, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float scale2, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1_S2(const float *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        float scale1, const float *src2, int32_t src2ObjStride, int32_t src2ElemStride, float scale2, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1_P(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1_L(const float *const *src1Table, int32_t src1Shift, float scale1,
        const float *const *src2Table, int32_t src2Shift, float scale2, float *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_PS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        float scale1, const float *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1_PS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_LS2(const float *const *src1Table, int32_t src1Shift, int32_t src1ElemStride,
        float scale1, const float *const *src2Table, int32_t src2Shift, int32_t src2ElemStride, float scale2,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_3x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_4x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_5x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_32f_6x1_LS2(const float *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, float scale1, const float *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, float scale2, float *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f(const double *src1, int32_t src1ObjStride, double scale1, const double *src2,
        int32_t src2ObjStride, double scale2, double *dst, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, int32_t src2ObjStride, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, int32_t src2ObjStride, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, int32_t src2ObjStride, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1(const double *src1, int32_t src1ObjStride, double scale1,
        const double *src2, int32_t src2ObjStride, double scale2, double *dst, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double scale2,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double scale2,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double scale2,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double scale2,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1_S2(const double *src1, int32_t src1ObjStride, int32_t src1ElemStride,
        double scale1, const double *src2, int32_t src2ObjStride, int32_t src2ElemStride, double scale2,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1_P(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1_L(const double *const *src1Table, int32_t src1Shift, double scale1,
        const double *const *src2Table, int32_t src2Shift, double scale2, double *const *dstTable, int32_t dstShift,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_PS2(const double *const *src1Table, int32_t src1Shift, int32_t src1ObjStride,
        double scale1, const double *const *src2Table, int32_t src2Shift, int32_t src2ObjStride, double scale2,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1_PS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ObjStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ObjStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_3x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_4x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_5x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmLComb_vava_64f_6x1_LS2(const double *const *src1Table, int32_t src1Shift,
        int32_t src1ElemStride, double scale1, const double *const *src2Table, int32_t src2Shift,
        int32_t src2ElemStride, double scale2, double *const *dstTable, int32_t dstShift, int32_t dstElemStride,
        uint32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
