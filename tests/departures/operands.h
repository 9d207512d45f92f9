/* Operands in every layout, filled with small whole numbers, and the formulas of the operations in plain
 * loops over them: what the programs that departures_test.py writes have in common. */
#include <stdio.h>
#include <string.h>
#include <zelm.h>

enum { ELEMENTS = 512, ENTRIES = 64 };

struct Operand {
    __attribute__((aligned(16))) double memory[ELEMENTS];
    void *entries[ENTRIES], *exchanged[ENTRIES]; /* a table, and one in the order of the transpose's rows */
    int elemStride, rowStride, objStride, size;
    int rows, columns, objects, inTables, listed, transposed;
};

static struct Operand src1, src2, dst; /* `src1` is also the only source */

static char *at(const struct Operand *o, int k, int r, int c) {
    if (o->objects == 1)
        k = 0;
    if (o->inTables)
        return (char *)o->entries[r * o->columns + c] + k * o->objStride;
    return (o->listed ? (char *)o->entries[k] : (char *)o->memory + k * o->objStride) + r * o->rowStride +
           c * o->elemStride;
}

static double get(const struct Operand *o, int k, int r, int c) {
    float f;
    double d;
    const char *from = o->transposed ? at(o, k, c, r) : at(o, k, r, c);
    if (o->size == 8)
        return memcpy(&d, from, 8), d;
    return memcpy(&f, from, 4), f;
}

static void set(const struct Operand *o, int k, int r, int c, float value) {
    const double wide = value;
    memcpy(at(o, k, r, c), o->size == 8 ? (const void *)&wide : (const void *)&value, (size_t)o->size);
}

static float number(void) {
    static unsigned state = 1;
    state = state * 1103515245u + 12345u;
    return (float)((int)(state >> 16) % 19 - 9);
}

/* Lays an operand out in a layout's letters, `loose` with gaps between elements, rows and objects where it
 * may have them. */
static void place(struct Operand *o, const char *layout, int size, int objects, int isArray, int rows,
                  int columns, int transposed, int loose) {
    const int step = loose && strstr(layout, "S2") && layout[0] != 'P' ? 2 : 1;
    memset(o, 0, sizeof *o);
    o->size = size, o->rows = rows, o->columns = columns, o->objects = isArray ? objects : 1,
    o->transposed = transposed;
    o->inTables = layout[0] == 'P', o->listed = layout[0] == 'L' && isArray;
    o->elemStride = step * size, o->rowStride = (columns * step + 3 * loose) * size;
    o->objStride = rows * o->rowStride + 2 * loose * size;
    if (o->inTables)
        o->objStride = (strstr(layout, "S2") ? 3 : 1) * size;
    const int entries = o->inTables ? rows * columns : objects;
    for (int e = 0; e < entries; ++e)
        o->entries[e] =
            (char *)o->memory + (entries - 1 - e) * (o->inTables ? 3 * objects * size : o->objStride);
    for (int r = 0; r < rows && o->inTables; ++r)
        for (int c = 0; c < columns; ++c)
            o->exchanged[c * rows + r] = o->entries[r * columns + c];
    for (int k = 0; k < o->objects; ++k)
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < columns; ++c)
                set(o, k, r, c, number());
}

/* The formula's element (i, j) of object k. */
static double formula(char operation, int terms, int k, int i, int j) {
    double sum = 0;
    if (operation == '+' || operation == '-')
        return get(&src1, k, i, j) + (operation == '+' ? 1 : -1) * get(&src2, k, i, j);
    if (operation == '=')
        return get(&src1, k, i, j);
    for (int t = 0; t < terms; ++t)
        sum += operation == '*' ? get(&src1, k, i, t) * get(&src2, k, t, j)
                                : get(&src1, k, j, t) * get(&src2, k, 0, t);
    return sum;
}

/* How many elements of dst are not those of the formula; of dst as a packed buffer where it has a width of
 * its own. */
static void report(const char *name, ZelmStatus status, char operation, int terms, int objects, int rows,
                   int columns) {
    int wrong = status != ZELM_OK;
    for (int k = 0; k < objects; ++k)
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < columns; ++j)
                wrong += !(get(&dst, k, i, j) == formula(operation, terms, k, i, j));
    if (wrong)
        printf("%s %d %d\n", name, (int)status, wrong);
}
