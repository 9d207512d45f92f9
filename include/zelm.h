/* clang-format off: the tables of this comment keep their lines */
/**
 * @file
 * The header to include: everything that the library exports.
 *
 * @mainpage
 * zelm: arithmetic on very small vectors and matrices, on one object or on thousands.
 *
 * A name tells everything: zelm<Operation>_<operands>_<type>[_<size>][_<layout>]
 *
 * @code{.unparsed}
 *   operands   v vector, m matrix, c constant; `a` behind a letter: an array of such objects; `T` behind
 *              m or ma: used transposed. An operand without `a` beside one with it is the same for every
 *              object.
 *   type       32f or 64f: IEEE 754 binary floats of 32 and 64 bits
 *   size       3x1 to 6x1, 3x3 to 6x6; absent: the dimensions are arguments
 *   layout     how the operands lie in memory, one layout for the whole call (below)
 * @endcode
 *
 * Address of element (i, j) of object k, with sz the size of an element; i is 0 for a vector. Strides and
 * shifts are signed counts of bytes. An operand that is one object has no k, and in L and LS2 it is a plain
 * pointer:
 *
 * @code{.unparsed}
 *   (absent)   src + k*srcObjStride + i*srcRowStride + j*sz
 *   S2         src + k*srcObjStride + i*srcRowStride + j*srcElemStride
 *   P          srcTable[i*width + j] + srcShift + k*sz
 *   PS2        srcTable[i*width + j] + srcShift + k*srcObjStride
 *   L          srcTable[k] + srcShift + i*srcRowStride + j*sz
 *   LS2        srcTable[k] + srcShift + i*srcRowStride + j*srcElemStride
 * @endcode
 *
 * All functions are reentrant, keep nothing between calls, allocate nothing and call nothing. Operands need
 * the alignment of their element and no more, but in nine 64f members of Add and Sub: these fault where
 * object 0 of every operand is at a multiple of 16 bytes and a later object is not (rank "faults" in
 * docs/before-you-choose.md). Results are the same bits in every build, on every target.
 *
 * Some members give another value than their formula on ordinary data. A call of one warns where it is
 * compiled; docs/before-you-choose.md has all of them, and the form to use instead.
 */
/* clang-format on */
#ifndef ZELM_H
#define ZELM_H

#include "zelm/types.h"   /* IWYU pragma: export */
#include "zelm/version.h" /* IWYU pragma: export */

#include "zelm/elementwise.h" /* IWYU pragma: export */
#include "zelm/movement.h"    /* IWYU pragma: export */
#include "zelm/products.h"    /* IWYU pragma: export */
#include "zelm/solvers.h"     /* IWYU pragma: export */
#include "zelm/vector.h"      /* IWYU pragma: export */

#endif
