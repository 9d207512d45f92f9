#!/usr/bin/env bash
# headers.sh FLAGS INCLUDE_DIR: every public header compiles by itself, without a warning, as C99 and C++11 and up, with
# each of the two compilers that is installed.
set -euo pipefail
flags=$1 include=$2
warnings=(-Wall -Wextra -Wpedantic -Wconversion -Werror -fsyntax-only)

tried=0
for header in zelm.h $(cd "$include" && ls zelm/*.h); do
    for compiler in gcc clang; do
        command -v "$compiler" >/dev/null || continue
        for standard in c99 c11 c17; do
            printf "#include <%s>\nextern int other;\n" "$header" | $compiler $flags "${warnings[@]}" -std=$standard -I "$include" -x c -
            tried=$((tried + 1))
        done
    done
    for compiler in g++ clang++; do
        command -v "$compiler" >/dev/null || continue
        for standard in c++11 c++14 c++17 c++20; do
            printf "#include <%s>\nextern int other;\n" "$header" | $compiler $flags "${warnings[@]}" -std=$standard -I "$include" -x c++ -
            tried=$((tried + 1))
        done
    done
done
echo "$tried compilations"
[ "$tried" -gt 0 ]
