// The packs and orders that kernels are compiled for: M(V, N) for each.
#pragma once

#include "frame/pack.h"

#define ZELM_ORDERS(M, V) M(V, 3) M(V, 4) M(V, 5) M(V, 6)

#define ZELM_ELEMENTS(M) ZELM_ORDERS(M, float) ZELM_ORDERS(M, double)
#define ZELM_BLOCKS(M) ZELM_ORDERS(M, Floats4) ZELM_ORDERS(M, Doubles2)

// The packs of more than one block.
#if defined(__AVX512VL__) && defined(__AVX512DQ__)
#define ZELM_WIDE_PACKS(M)                                                                                   \
    ZELM_ORDERS(M, Floats8) ZELM_ORDERS(M, Doubles4) ZELM_ORDERS(M, Floats16) ZELM_ORDERS(M, Doubles8)
#elif defined(__AVX2__)
#define ZELM_WIDE_PACKS(M) ZELM_ORDERS(M, Floats8) ZELM_ORDERS(M, Doubles4)
#else
#define ZELM_WIDE_PACKS(M)
#endif

#define ZELM_PACKS(M) ZELM_BLOCKS(M) ZELM_WIDE_PACKS(M)
