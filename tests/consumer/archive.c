/* A program with the archive in it: its memcpy and memset must stay those of the C library. */
#define _GNU_SOURCE
#include "consumer.h"

#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

static int is_libc(const char *name, void *function) {
    Dl_info place;
    const int found = dladdr(function, &place) != 0 && strstr(place.dli_fname, "/libc.so") != NULL;
    printf("%s of %s\n", name, found ? place.dli_fname : "this program or another file");
    return found;
}

int main(int argc, char **argv) {
    void *(*volatile copy)(void *, const void *, size_t) = memcpy;
    void *(*volatile set)(void *, int, size_t) = memset;
    void *functions[2];
    memcpy(&functions[0], (const void *)&copy, sizeof functions[0]);
    memcpy(&functions[1], (const void *)&set, sizeof functions[1]);
    return argc != 2 || consume(argv[1]) != 0 || !is_libc("memcpy", functions[0]) ||
           !is_libc("memset", functions[1]);
}
