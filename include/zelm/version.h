/** @file
 * The version of these headers. The numbers are said here and nowhere else.
 */
#ifndef ZELM_VERSION_H
#define ZELM_VERSION_H

/** @addtogroup types
 * @{
 */

/** The release's first number, also the number behind `libzelmx64.so.`: programs have to be compiled again
 * when it grows. */
#define ZELM_VERSION_MAJOR 4
/** The release's second number: grows when something is added. */
#define ZELM_VERSION_MINOR 2
/** The release's third number: grows when faults are removed and nothing else. */
#define ZELM_VERSION_PATCH 0

/** The release as one number to compare: 40200 for 4.2.0. zelmGetLibVersion() tells something else, the
 * interface that the loaded library fulfils, which stays 4.1 in all releases of the 4 series. */
#define ZELM_VERSION (ZELM_VERSION_MAJOR * 10000 + ZELM_VERSION_MINOR * 100 + ZELM_VERSION_PATCH)

/** @} */

#endif
