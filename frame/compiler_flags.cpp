// Refuses flags under which results would have other bits. It is compiled with the flags of the whole
// library.

#if defined(__FAST_MATH__) || __FINITE_MATH_ONLY__ || defined(__ASSOCIATIVE_MATH__) ||                       \
    defined(__RECIPROCAL_MATH__) || defined(__NO_SIGNED_ZEROS__)
#error "zelm gives the same bits everywhere, so it is not built with -ffast-math or a part of it"
#endif
#if __FLT_EVAL_METHOD__ != 0
#error "zelm computes in SSE registers: -mfpmath=387 rounds twice"
#endif
