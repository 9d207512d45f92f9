/* Subsystem elementwise of zelm. Written by grid/generate.py from grid/catalogue.py. */
#ifndef ZELM_ELEMENTWISE_H
#define ZELM_ELEMENTWISE_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/*
 * ==== Addition and subtraction of vectors ====
 * Each element is one addition or subtraction, rounded to the element type. An invariant vector is read once,
 *   before the first object, in the fixed-size standard and L forms (the departures named at their prototypes
 *   aside), and anew for every object in all other forms.
 */

/*
 * zelmAdd_vv: dst[j] = src1[j] + src2[j]
 * Shapes: src1: vector; src2: vector; dst: vector. Units: len in elements (a size in the name stands for it);
 *   strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmAdd_vc: dst[j] = src[j] + val
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 *   strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmAdd_vav: dst[k][j] = src1[k][j] + src2[j]
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors. Units: len in
 *   elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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
/* departs from its row: reads the invariant operand anew for every object */
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
/* departs from its row: reads the invariant operand anew for every object */
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

/*
 * zelmAdd_vac: dst[k][j] = src[k][j] + val
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 *   stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmAdd_vava: dst[k][j] = src1[k][j] + src2[k][j]
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors. Units: len in elements (a size in
 *   the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_vv: dst[j] = src1[j] - src2[j]
 * Shapes: src1: vector; src2: vector; dst: vector. Units: len in elements (a size in the name stands for it);
 *   strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_vc: dst[j] = src[j] - val
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 *   strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_cv: dst[j] = val - src[j]
 * Shapes: src: vector; dst: vector; val: by value. Units: len in elements (a size in the name stands for it);
 *   strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_vav: dst[k][j] = src1[k][j] - src2[j]
 * Shapes: src1: array of vectors; src2: vector, the same for every object; dst: array of vectors. Units: len in
 *   elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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
/* departs from its row: reads the invariant operand anew for every object */
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
/* departs from its row: reads the invariant operand anew for every object */
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

/*
 * zelmSub_vac: dst[k][j] = src[k][j] - val
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 *   stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_vava: dst[k][j] = src1[k][j] - src2[k][j]
 * Shapes: src1: array of vectors; src2: array of vectors; dst: array of vectors. Units: len in elements (a size in
 *   the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

/*
 * zelmSub_vva: dst[k][j] = src1[j] - src2[k][j]
 * Shapes: src1: vector, the same for every object; src2: array of vectors; dst: array of vectors. Units: len in
 *   elements (a size in the name stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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
/* departs from its row: reads the invariant operand anew for every object */
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
/* departs from its row: reads the invariant operand anew for every object */
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

/*
 * zelmSub_cva: dst[k][j] = val - src[k][j]
 * Shapes: src: array of vectors; dst: array of vectors; val: by value. Units: len in elements (a size in the name
 *   stands for it); count in objects; strides and shifts in bytes.
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 *   ZELM_ERR_SIZE: a dimension is zero (run-time form).
 * Overlap: dst may be a source (same start, same strides). Any other overlap gives what the loop over objects, and
 *   inside it over elements, gives in ascending order.
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

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
