/* For sigaction. */
#define _POSIX_C_SOURCE 200809L
/* Any function of the library on operands of one place and kind: what the program that sentences_test.py
 * writes needs. A situation is a set of these globals. */
#include <math.h>
#include <setjmp.h>
#include <signal.h>
#include <stdio.h>
#include <string.h>
#include <zelm.h>

enum { BYTES = 3072, OBJECTS = 3, ENTRIES = 64, NOBODY = -1 };

static __attribute__((aligned(16))) char memory[5][BYTES];
static void *tables[5][ENTRIES];
static uint32_t pivots[ENTRIES];
static __attribute__((aligned(16))) double scratch[ENTRIES];

static int nullOperand, zeroDimension, unequalDimension; /* numbers in the argument list, or NOBODY */
static uint32_t count;
static int offset;                 /* bytes from a multiple of 16 to object 0 */
static int objectExtra;            /* bytes by which an object's distance is not a multiple of 16 */
static double diagonal, elsewhere; /* what the operands hold */

static sigjmp_buf fault;

static void onFault(int number) {
    siglongjmp(fault, number);
}

static int rowStride(int size) {
    return 8 * size;
}

static int objStride(int size) {
    return 8 * rowStride(size) + objectExtra;
}

static void *operand(int number) {
    return number == nullOperand ? NULL : memory[number] + offset;
}

/* A table of an operand's elements (`perElement`), square of order n, or of its objects. */
static void *table(int number, int perElement, int size, int n) {
    for (int e = 0; e < ENTRIES; ++e)
        tables[number][e] =
            memory[number] + offset +
            (perElement ? e / n % 8 * rowStride(size) + e % n * size * 1 : e % OBJECTS * objStride(size));
    return number == nullOperand ? NULL : (void *)tables[number];
}

static uint32_t dimension(int number) {
    return number == zeroDimension ? 0 : number == unequalDimension ? 2 : 3;
}

static void fill(int size) {
    for (int o = 0; o < 5; ++o)
        for (int e = 0; e + size <= BYTES - offset; e += size) {
            const int inObject = e % objStride(size), r = inObject / rowStride(size),
                      c = inObject % rowStride(size) / size;
            const double d = r == c ? diagonal : elsewhere;
            const float f = (float)d;
            memcpy(memory[o] + offset + e, size == 8 ? (const void *)&d : (const void *)&f, (size_t)size);
        }
    memset(pivots, 0, sizeof pivots);
}

/* The status, or the number of the signal that ended the call, below -1000; and whether the first result is a
 * NaN. */
static void report(const char *situation, int function, ZelmStatus (*call)(void), int size, int result) {
    fill(size);
    const int number = sigsetjmp(fault, 1);
    const int status = number ? -1000 - number : (int)call();
    double d;
    float f;
    memcpy(&d, memory[result] + offset, 8), memcpy(&f, memory[result] + offset, 4);
    printf("%s %d %d %d\n", situation, function, status, size == 8 ? !(d - d == 0) : !(f - f == 0));
}
