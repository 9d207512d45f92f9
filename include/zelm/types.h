/** @file
 * Types, statuses and the version query of zelm.
 */
#ifndef ZELM_TYPES_H
#define ZELM_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define ZELM_API __attribute__((visibility("default")))
#else
#define ZELM_API
#endif

/* Some functions give another value than their formula on ordinary data; docs/before-you-choose.md shows
 * them, with the form to use instead. A call of one warns where it is compiled (gcc and clang); taking its
 * address does not. ZELM_NO_DEPARTURE_WARNINGS, defined before this header is included, silences all these
 * warnings, and ZELM_SQUARE_PRODUCTS those of run-time products that are right for square matrices only. For
 * one call, disable -Wattribute-warning around it. */
#if defined(__has_attribute)
#if __has_attribute(warning)
#define ZELM_WARNING(sentence) __attribute__((warning(sentence)))
#endif
#endif
#if defined(ZELM_NO_DEPARTURE_WARNINGS) || !defined(ZELM_WARNING)
#define ZELM_DEPARTS(sentence)
#else
#define ZELM_DEPARTS(sentence) ZELM_WARNING(sentence)
#endif
#if defined(ZELM_SQUARE_PRODUCTS)
#define ZELM_DEPARTS_UNLESS_SQUARE(sentence)
#else
#define ZELM_DEPARTS_UNLESS_SQUARE(sentence) ZELM_DEPARTS(sentence)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup types Types and statuses
 * @{
 */

/** The result of every numeric function. The first check that fails decides it, in this order: null pointers
 * and tables; zero dimensions; null entries of a P or PS2 table (array forms); a count of zero (ZELM_OK);
 * then the computation. Nothing is undone: what was written before a failure stays. */
typedef int32_t ZelmStatus;

/** The call completed, or there was nothing to do. */
#define ZELM_OK 0
/** A dimension is zero; in the products of Mul also: two dimensions that must be equal differ; in Extract,
 * LoadIdentity, CholeskyDecomp and CholeskyBackSubst also: count is zero. */
#define ZELM_ERR_SIZE (-6)
/** A pointer, a table of pointers or an entry of such a table is null. Copy, Extract, LoadIdentity and the
 * Cholesky families do not test entries. */
#define ZELM_ERR_NULL_PTR (-8)
/** A pivot or divisor fails the threshold of its family. */
#define ZELM_ERR_DIV_BY_ZERO (-10)
/** A pivot of a Cholesky decomposition is not positive. */
#define ZELM_ERR_NOT_POS_DEF (-179)

/** The version of the library that is loaded. */
typedef struct ZelmLibVersion {
    int32_t major;           /**< the version's first number */
    int32_t minor;           /**< the version's second number */
    int32_t buildMajor;      /**< the build's first number */
    int32_t buildMinor;      /**< the build's second number */
    char targetCode[4];      /**< the processor target, zero-filled: "t7" or "x64" */
    const char *fileName;    /**< the name of the library's file */
    const char *versionText; /**< major and minor, for people */
    const char *buildDate;   /**< a constant text, not the day of this build */
} ZelmLibVersion;

/** The one record of the library: the same pointer on every call, never null, not to be freed or changed. */
ZELM_API const ZelmLibVersion *zelmGetLibVersion(void);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
