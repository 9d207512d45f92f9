# shellcheck shell=bash
# Sourced by packaging/deb --twice: builds all packages once more where nothing is as it was, and compares byte by byte.

ls build/deb/*.deb >/dev/null # made by packaging/deb
install_tools
again=$(mktemp -d "${TMPDIR:-/tmp}/zelm-elsewhere.XXXXXX")/another/folder
# Another folder, file mode, time zone, language and number of jobs, and no object of the first build from a cache.
(
    umask 077
    export TZ=Pacific/Kiritimati LC_ALL=C.UTF-8 CCACHE_DISABLE=1 DEB_BUILD_OPTIONS=parallel=1
    build "$again"
) >build/deb/twice.log 2>&1 || { tail -n 40 build/deb/twice.log && exit 1; }

different=0
for first in build/deb/*.deb build/deb/*.dsc build/deb/*.tar.*; do
    if cmp "$first" "$again/$(basename "$first")"; then
        echo "same bytes: $(basename "$first")"
    else
        different=$((different + 1))
    fi
done
if [ "$different" -gt 0 ]; then
    echo "$different files differ; the second build is in $again" && exit 1
fi
rm -rf "${again%/another/folder}"
