#!/usr/bin/env bash
# pkg_config.sh PREFIX TARGET VERSION CC CXX FLAGS FOLDER: a C99, a C++11 and a C++20 consumer, compiled and linked with what
# pkg-config says of zelm-TARGET, which is installed in PREFIX.
set -euo pipefail
prefix=$1 target=$2 version=$3 cc=$4 cxx=$5 flags=$6 folder=$7
sources=$(cd "$(dirname "$0")" && pwd)
warnings="-Wall -Wextra -Wpedantic -Wconversion -Werror"

PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name "zelm-$target.pc")")
export PKG_CONFIG_PATH
pkg-config --exact-version="$version" "zelm-$target"
cflags=$(pkg-config --cflags "zelm-$target")
libs=$(pkg-config --libs "zelm-$target")
LD_LIBRARY_PATH=$(pkg-config --variable=libdir "zelm-$target")
export LD_LIBRARY_PATH

mkdir -p "$folder"
$cc $flags $warnings -std=c99 $cflags "$sources/consumer.c" -o "$folder/consumer_c" $libs
$cxx $flags $warnings -std=c++11 $cflags "$sources/consumer.cpp" -o "$folder/consumer_cxx11" $libs
$cxx $flags $warnings -std=c++20 $cflags "$sources/consumer.cpp" -o "$folder/consumer_cxx20" $libs
for program in consumer_c consumer_cxx11 consumer_cxx20; do
    "$folder/$program" "$target"
done
