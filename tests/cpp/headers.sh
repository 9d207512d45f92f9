#!/usr/bin/env bash
# headers.sh COMPILER FLAGS SOURCE_DIR: every header of the C++ layer compiles by itself, without a warning, as C++20 and
# C++23, with and without the tests of debug builds.
set -euo pipefail
compiler=$1 flags=$2 source=$3
warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only)

tried=0
for header in zelm.hpp $(cd "$source/cpp" && ls zelm/*.hpp); do
    case $header in
    zelm/eigen.hpp) [ -d /usr/include/eigen3 ] || continue ;;
    zelm/glm.hpp) [ -d /usr/include/glm ] || continue ;;
    esac
    for standard in c++20 c++2b; do
        for debug in -DNDEBUG -UNDEBUG; do
            echo "#include <$header>" | $compiler $flags "${warnings[@]}" -std=$standard $debug -I "$source/cpp" \
                -I "$source/include" -isystem /usr/include/eigen3 -x c++ -
            tried=$((tried + 1))
        done
    done
done
echo "$tried compilations"
[ "$tried" -gt 0 ]
