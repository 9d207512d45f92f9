// The switch of the mutations that one library holds: the active one's number, and which ones a run has come
// by.
#pragma once

struct ZelmMutant {
    int active; // 0: none
    unsigned char reached[1 << 15];
};
extern "C" __attribute__((visibility("default"))) ZelmMutant zelmMutant;

// What the compiler computes stays as it is.
inline __attribute__((always_inline)) constexpr bool zelmMutated(int id) {
    if (__builtin_is_constant_evaluated())
        return false;
    zelmMutant.reached[id] = 1;
    return zelmMutant.active == id;
}
