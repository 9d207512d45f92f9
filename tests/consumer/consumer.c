#include "consumer.h"

int main(int argc, char **argv) {
    return argc != 2 || consume(argv[1]) != 0;
}
