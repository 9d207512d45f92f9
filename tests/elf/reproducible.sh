#!/usr/bin/env bash
# reproducible.sh PRESET FILE FOLDER: builds the library once more, from a copy of the sources in FOLDER, and compares it
# with FILE byte by byte.
set -euo pipefail
preset=$1 file=$2 folder=$3
cd "$(dirname "$0")/../.."

rm -rf "$folder"
mkdir -p "$folder"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$folder"
# A compiler cache would only give the first build's objects back.
export CCACHE_DISABLE=1
(cd "$folder" && cmake --preset "$preset" -D ZELM_BUILD_TESTS=OFF && cmake --build --preset "$preset" --target zelm)
cmp "$file" "$folder/build/$preset/$(basename "$file")"
