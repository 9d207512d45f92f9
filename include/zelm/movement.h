/** @file
 * Subsystem movement of zelm. Written by grid/generate.py from grid/catalogue.py.
 */
#ifndef ZELM_MOVEMENT_H
#define ZELM_MOVEMENT_H

#include "types.h"

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup transpose Transpose
 *
 * Elements are moved bit for bit. width and height are those of src as stored. In the run-time P and PS2 forms the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j]
 * and its place in dst at dstTable[j*width + i]. For square matrices that is the ordinary table; for others the
 * numbers reach behind the width*height entries that are tested.
 */
/** @{ */

/** @name zelmTranspose_m */
/** @{ */
/**
 * dst[j][i] = src[i][j].
 *
 * Shapes: src: matrix; dst: matrix. Units: width, height in elements (a size in the name stands for them); strides
 * and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must not overlap src.
 */
ZELM_API ZelmStatus zelmTranspose_m_32f(const float *src, int32_t srcRowStride, uint32_t width, uint32_t height,
        float *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_3x3(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads a whole matrix first: dst may be src.
 *
 * @copydoc zelmTranspose_m_32f
 */
ZELM_API ZelmStatus zelmTranspose_m_32f_4x4(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_5x5(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_6x6(const float *src, int32_t srcRowStride, float *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t width, uint32_t height, float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_3x3_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_4x4_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_5x5_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_32f_6x6_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride,
        float *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_32f_PP(srcTable, srcShift, 0, dstTransposed, dstShift, 0, width, height, 1), dstTransposed:
 * a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_m_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_32f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_m_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_32f_3x3_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_32f_4x4_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_32f_5x5_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_32f_6x6_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_64f(const double *src, int32_t srcRowStride, uint32_t width, uint32_t height,
        double *dst, int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_3x3(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads a whole matrix first: dst may be src.
 *
 * @copydoc zelmTranspose_m_32f
 */
ZELM_API ZelmStatus zelmTranspose_m_64f_4x4(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_5x5(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_6x6(const double *src, int32_t srcRowStride, double *dst,
        int32_t dstRowStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        uint32_t width, uint32_t height, double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_3x3_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_4x4_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_5x5_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
ZELM_API ZelmStatus zelmTranspose_m_64f_6x6_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, int32_t dstRowStride, int32_t dstElemStride);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_64f_PP(srcTable, srcShift, 0, dstTransposed, dstShift, 0, width, height, 1), dstTransposed:
 * a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_m_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_64f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_m_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_64f_3x3_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_64f_4x4_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_64f_5x5_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
ZELM_API ZelmStatus zelmTranspose_m_64f_6x6_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift);
/** @} */

/** @name zelmTranspose_ma */
/** @{ */
/**
 * dst[k][j][i] = src[k][i][j].
 *
 * Shapes: src: array of matrices; dst: array of matrices. Units: width, height in elements (a size in the name
 * stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer, a table or an entry of a table is null;
 * ZELM_ERR_SIZE: a dimension is zero (run-time forms).
 *
 * Overlap: dst must not overlap src.
 */
ZELM_API ZelmStatus zelmTranspose_ma_32f(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t width, uint32_t height, float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (differs only where operands overlap, lie at odd addresses or have shapes that its row
 * leaves out) where dst is src: reads a whole matrix first: dst may be src.
 *
 * @copydoc zelmTranspose_ma_32f
 */
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, float *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_32f_PP(srcTable, srcShift, 4, dstTransposed, dstShift, 4, width, height, count),
 * dstTransposed: a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_ma_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_32f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_ma_32f_P(const float *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6_P(const float *const *srcTable, int32_t srcShift,
        float *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t width, uint32_t height, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6_L(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_32f_PP(srcTable, srcShift, srcObjStride, dstTransposed, dstShift, dstObjStride, width,
 * height, count), dstTransposed: a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_ma_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_32f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t width, uint32_t height, float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6_PS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, float *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_3x3_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_4x4_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_5x5_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_32f_6x6_LS2(const float *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        uint32_t width, uint32_t height, double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, double *dst, int32_t dstObjStride,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_64f_PP(srcTable, srcShift, 8, dstTransposed, dstShift, 8, width, height, count),
 * dstTransposed: a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_ma_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_64f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_ma_64f_P(const double *const *srcTable, int32_t srcShift, uint32_t width,
        uint32_t height, double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6_P(const double *const *srcTable, int32_t srcShift,
        double *const *dstTable, int32_t dstShift, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_L(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        uint32_t width, uint32_t height, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6_L(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height: the
 * tables are numbered with the row length of the other operand: element (i, j) of src is at srcTable[i*height + j].
 * Instead: zelmCopy_ma_64f_PP(srcTable, srcShift, srcObjStride, dstTransposed, dstShift, dstObjStride, width,
 * height, count), dstTransposed: a table with the entries of dstTable in the order of src's elements.
 *
 * @copydoc zelmTranspose_ma_32f
 */
ZELM_DEPARTS("where width differs from height, the tables are numbered with the row length of the other operand: element "
        "(i, j) of src is at srcTable[i*height + j]: use zelmCopy_ma_64f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmTranspose_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        uint32_t width, uint32_t height, double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6_PS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcObjStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, uint32_t width, uint32_t height, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_3x3_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_4x4_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_5x5_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
ZELM_API ZelmStatus zelmTranspose_ma_64f_6x6_LS2(const double *const *srcTable, int32_t srcShift,
        int32_t srcRowStride, int32_t srcElemStride, double *const *dstTable, int32_t dstShift,
        int32_t dstRowStride, int32_t dstElemStride, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup copy Copy between layouts
 *
 * Elements are moved bit for bit. The two letters of the name are the layouts of src and dst: S for S2, P for PS2,
 * L for LS2. Table entries are not tested, and neither are the width and height of matrices: zero copies nothing.
 */
/** @{ */

/** @name zelmCopy_va */
/** @{ */
/**
 * dst[k][j] = src[k][j].
 *
 * Shapes: src: array of vectors; dst: array of vectors. Units: len in elements (a size in the name stands for it);
 * count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: len is zero.
 *
 * Overlap: src and dst must not overlap partly.
 */
ZELM_API ZelmStatus zelmCopy_va_32f_SS(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_SP(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_SL(const float *src, int32_t srcObjStride, int32_t srcElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_PS(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): takes the pointers of both sides
 * from dstTable; srcTable is tested and otherwise not read. Instead: zelmCopy_ma_32f_PP(srcTable, srcShift,
 * srcObjStride, dstTable, dstShift, dstObjStride, len, 1, count).
 *
 * @copydoc zelmCopy_va_32f_SS
 */
ZELM_DEPARTS("takes the pointers of both sides from dstTable: use zelmCopy_ma_32f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmCopy_va_32f_PP(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_PL(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_LS(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_LP(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_32f_LL(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_SS(const double *src, int32_t srcObjStride, int32_t srcElemStride, double *dst,
        int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_SP(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_SL(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_PS(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): takes the pointers of both sides
 * from dstTable; srcTable is tested and otherwise not read. Instead: zelmCopy_ma_64f_PP(srcTable, srcShift,
 * srcObjStride, dstTable, dstShift, dstObjStride, len, 1, count).
 *
 * @copydoc zelmCopy_va_32f_SS
 */
ZELM_DEPARTS("takes the pointers of both sides from dstTable: use zelmCopy_ma_64f_PP, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmCopy_va_64f_PP(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_PL(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_LS(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double *dst, int32_t dstObjStride, int32_t dstElemStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_LP(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmCopy_va_64f_LL(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double *const *dstTable, int32_t dstShift, int32_t dstElemStride, uint32_t len, uint32_t count);
/** @} */

/** @name zelmCopy_ma */
/** @{ */
/**
 * dst[k][i][j] = src[k][i][j].
 *
 * Shapes: src: array of matrices; dst: array of matrices. Units: width, height in elements (a size in the name
 * stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested).
 *
 * Overlap: src and dst must not overlap partly.
 */
ZELM_API ZelmStatus zelmCopy_ma_32f_SS(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_SP(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_SL(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_PS(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_PP(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_PL(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_LS(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_LP(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_32f_LL(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_SS(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_SP(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_SL(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_PS(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_PP(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width, uint32_t height,
        uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_PL(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *const *dstTable, int32_t dstShift, int32_t dstRowStride, int32_t dstElemStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_LS(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, int32_t dstObjStride, int32_t dstRowStride, int32_t dstElemStride,
        uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_LP(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstObjStride, uint32_t width,
        uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmCopy_ma_64f_LL(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, uint32_t width, uint32_t height, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup extract Extraction to a packed buffer
 *
 * Elements are moved bit for bit. The packed position of element (i, j) of object k is k*width*height + i*width +
 * j, in elements; width and height are those of the packed matrices. Table entries are not tested. A count of zero
 * is ZELM_ERR_SIZE.
 */
/** @{ */

/** @name zelmExtract_v */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: vector; dst: a packed buffer. Units: len in elements (a size in the name stands for it); strides and
 * shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_v_32f_S2(const float *src, int32_t srcElemStride, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmExtract_v_32f_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t len);
ZELM_API ZelmStatus zelmExtract_v_64f_S2(const double *src, int32_t srcElemStride, double *dst, uint32_t len);
/**
 * Departs from its row (tests less than its row, or at another time): tests nothing; a dimension of zero moves
 * nothing.
 *
 * @copydoc zelmExtract_v_32f_S2
 */
ZELM_API ZelmStatus zelmExtract_v_64f_P(const double *const *srcTable, int32_t srcShift, double *dst, uint32_t len);
/** @} */

/** @name zelmExtract_m */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: matrix; dst: a packed buffer. Units: width, height in elements (a size in the name stands for them);
 * strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_m_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
        uint32_t width, uint32_t height);
/**
 * Departs from its row (tests less than its row, or at another time): tests nothing; a dimension of zero moves
 * nothing.
 *
 * @copydoc zelmExtract_m_32f_S2
 */
ZELM_API ZelmStatus zelmExtract_m_32f_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmExtract_m_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, uint32_t width, uint32_t height);
/**
 * Departs from its row (tests less than its row, or at another time): tests nothing; a dimension of zero moves
 * nothing.
 *
 * @copydoc zelmExtract_m_32f_S2
 */
ZELM_API ZelmStatus zelmExtract_m_64f_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t width, uint32_t height);
/** @} */

/** @name zelmExtract_mT */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: matrix used transposed; dst: a packed buffer. Units: width, height in elements (a size in the name
 * stands for them); strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_mT_32f_S2(const float *src, int32_t srcRowStride, int32_t srcElemStride, float *dst,
        uint32_t width, uint32_t height);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height, or
 * srcShift is not 0: tests nothing; srcShift is not read; takes srcTable as height rows of width entries and packs
 * width rows of height elements. Instead: zelmCopy_ma_32f_PS(srcTable, srcShift, 0, dst, width * height * 4, 4,
 * width * 4, height, width, 1).
 *
 * @copydoc zelmExtract_mT_32f_S2
 */
ZELM_DEPARTS("where width differs from height, or srcShift is not 0, tests nothing: use zelmCopy_ma_32f_PS, see "
        "docs/before-you-choose.md")
ZELM_API ZelmStatus zelmExtract_mT_32f_P(const float *const *srcTable, int32_t srcShift, float *dst, uint32_t width,
        uint32_t height);
ZELM_API ZelmStatus zelmExtract_mT_64f_S2(const double *src, int32_t srcRowStride, int32_t srcElemStride,
        double *dst, uint32_t width, uint32_t height);
/**
 * Departs from its row (gives other values than its formula on ordinary data) where width differs from height, or
 * srcShift is not 0: tests nothing; srcShift is not read; takes srcTable as height rows of width entries and packs
 * width rows of height elements. Instead: zelmCopy_ma_64f_PS(srcTable, srcShift, 0, dst, width * height * 8, 8,
 * width * 8, height, width, 1).
 *
 * @copydoc zelmExtract_mT_32f_S2
 */
ZELM_DEPARTS("where width differs from height, or srcShift is not 0, tests nothing: use zelmCopy_ma_64f_PS, see "
        "docs/before-you-choose.md")
ZELM_API ZelmStatus zelmExtract_mT_64f_P(const double *const *srcTable, int32_t srcShift, double *dst,
        uint32_t width, uint32_t height);
/** @} */

/** @name zelmExtract_va */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: array of vectors; dst: a packed buffer. Units: len in elements (a size in the name stands for it);
 * count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_va_32f_S2(const float *src, int32_t srcObjStride, int32_t srcElemStride, float *dst,
        uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmExtract_va_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmExtract_va_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        float *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmExtract_va_64f_S2(const double *src, int32_t srcObjStride, int32_t srcElemStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmExtract_va_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t len, uint32_t count);
ZELM_API ZelmStatus zelmExtract_va_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcElemStride,
        double *dst, uint32_t len, uint32_t count);
/** @} */

/** @name zelmExtract_ma */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: array of matrices; dst: a packed buffer. Units: width, height in elements (a size in the name stands
 * for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_ma_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_ma_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_ma_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_ma_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_ma_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_ma_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t width, uint32_t height, uint32_t count);
/** @} */

/** @name zelmExtract_maT */
/** @{ */
/**
 * dst = the elements of src, packed.
 *
 * Shapes: src: array of matrices used transposed; dst: a packed buffer. Units: width, height in elements (a size in
 * the name stands for them); count in objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: a dimension or count is zero.
 *
 * Overlap: src and dst must not overlap.
 */
ZELM_API ZelmStatus zelmExtract_maT_32f_S2(const float *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): does not transpose. Instead:
 * zelmCopy_ma_32f_PS(srcTable, srcShift, srcObjStride, dst, width * height * 4, 4, width * 4, height, width,
 * count).
 *
 * @copydoc zelmExtract_maT_32f_S2
 */
ZELM_DEPARTS("does not transpose: use zelmCopy_ma_32f_PS, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmExtract_maT_32f_PS2(const float *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        float *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_maT_32f_LS2(const float *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, float *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_maT_64f_S2(const double *src, int32_t srcObjStride, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t width, uint32_t height, uint32_t count);
/**
 * Departs from its row (gives other values than its formula on ordinary data): does not transpose. Instead:
 * zelmCopy_ma_64f_PS(srcTable, srcShift, srcObjStride, dst, width * height * 8, 8, width * 8, height, width,
 * count).
 *
 * @copydoc zelmExtract_maT_32f_S2
 */
ZELM_DEPARTS("does not transpose: use zelmCopy_ma_64f_PS, see docs/before-you-choose.md")
ZELM_API ZelmStatus zelmExtract_maT_64f_PS2(const double *const *srcTable, int32_t srcShift, int32_t srcObjStride,
        double *dst, uint32_t width, uint32_t height, uint32_t count);
ZELM_API ZelmStatus zelmExtract_maT_64f_LS2(const double *const *srcTable, int32_t srcShift, int32_t srcRowStride,
        int32_t srcElemStride, double *dst, uint32_t width, uint32_t height, uint32_t count);
/** @} */

/** @} */

/**
 * @defgroup identity Identity matrices
 *
 * The letter of the name is the layout of dst: S for S2, P for PS2, L for LS2. The column of the one runs on from
 * row to row and from object to object: in object k the one of row i stands at column k*height + i, behind the row
 * where that is not below width. So only object 0 is an identity: call once per object, or set height to fit. An
 * element stride below the size of an element counts as that size, a row stride below width elements as that, and
 * so does in P an object stride below the size of an element; the strides are compared as unsigned numbers. width
 * and height are signed, and not tested: below 1 there is no row or column, but each row still gets its one. Table
 * entries are not tested. A count of zero is ZELM_ERR_SIZE.
 */
/** @{ */

/** @name zelmLoadIdentity_ma */
/** @{ */
/**
 * dst[k] = ones on a running diagonal, zeros elsewhere.
 *
 * Shapes: dst: array of matrices. Units: width, height in elements (a size in the name stands for them); count in
 * objects; strides and shifts in bytes.
 *
 * Status: ZELM_OK: the call completed; ZELM_ERR_NULL_PTR: a pointer or a table is null (entries of tables are not
 * tested); ZELM_ERR_SIZE: count is zero.
 *
 * Overlap: There is no source.
 */
ZELM_API ZelmStatus zelmLoadIdentity_ma_32f_S(float *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, int32_t width, int32_t height, uint32_t count);
ZELM_API ZelmStatus zelmLoadIdentity_ma_32f_P(float *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        int32_t width, int32_t height, uint32_t count);
ZELM_API ZelmStatus zelmLoadIdentity_ma_32f_L(float *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t width, int32_t height, uint32_t count);
ZELM_API ZelmStatus zelmLoadIdentity_ma_64f_S(double *dst, int32_t dstObjStride, int32_t dstRowStride,
        int32_t dstElemStride, int32_t width, int32_t height, uint32_t count);
ZELM_API ZelmStatus zelmLoadIdentity_ma_64f_P(double *const *dstTable, int32_t dstShift, int32_t dstObjStride,
        int32_t width, int32_t height, uint32_t count);
ZELM_API ZelmStatus zelmLoadIdentity_ma_64f_L(double *const *dstTable, int32_t dstShift, int32_t dstRowStride,
        int32_t dstElemStride, int32_t width, int32_t height, uint32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif
/* clang-format on */

#endif
