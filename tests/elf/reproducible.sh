#!/usr/bin/env bash
# reproducible.sh PRESET FOLDER: compiles every fourth unit of the library once more, from a copy of the sources in FOLDER,
# and compares the objects with those of build/PRESET byte by byte. (`packaging/deb --twice` does it with whole packages.)
set -euo pipefail
preset=$1 folder=$2
cd "$(dirname "$0")/../.."
first=$PWD/build/$preset

rm -rf "$folder"
mkdir -p "$folder"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$folder"
# A compiler cache would only give the first build's objects back.
export CCACHE_DISABLE=1
cd "$folder"
cmake --preset "$preset" -D ZELM_BUILD_TESTS=OFF
cd "build/$preset"
mapfile -t objects < <(ninja -t targets all | sed -nE 's/^(CMakeFiles\/zelm_objects[^:]*\.o): .*/\1/p' | sort | awk 'NR % 4 == 0')
[ "${#objects[@]}" -ge 30 ]
ninja "${objects[@]}"
for object in "${objects[@]}"; do
    cmp "$first/$object" "$object"
done
echo "${#objects[@]} objects have the same bytes"
