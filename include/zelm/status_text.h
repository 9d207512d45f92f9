/** @file
 * Statuses in words, for messages. The library itself has no texts: this header is complete without it, and
 * zelm.h doesn't include it.
 */
#ifndef ZELM_STATUS_TEXT_H
#define ZELM_STATUS_TEXT_H

#include "types.h"

/** @addtogroup types
 * @{
 */

/** What a status means, in English: a constant text, also for a number that is no status. */
static inline const char *zelmStatusText(ZelmStatus status) {
    switch (status) {
    case ZELM_OK:
        return "the call completed";
    case ZELM_ERR_SIZE:
        return "a dimension is zero, or the dimensions of the operands disagree";
    case ZELM_ERR_NULL_PTR:
        return "a pointer, a table of pointers or an entry of such a table is null";
    case ZELM_ERR_DIV_BY_ZERO:
        return "a pivot or divisor is too close to zero";
    case ZELM_ERR_NOT_POS_DEF:
        return "the matrix is not positive definite";
    default:
        return "not a status of zelm";
    }
}

/** @} */

#endif
