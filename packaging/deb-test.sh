# shellcheck shell=bash
# Sourced by packaging/deb --test: what a user of the packages of build/deb does with them, in Debian 12 trees that have
# nothing but what these packages ask for. The trees need root, or sudo.

need_packages arch-test autopkgtest dpkg-dev mmdebstrap # arch-test: mmdebstrap asks it before it makes an i386 tree
deb=$PWD/build/deb
source=$deb/zelm-${version%-*}
ls "$deb"/*.deb >/dev/null # made by packaging/deb
mirror=$(apt-get indextargets --format '$(SITE)' 'Origin: Debian' 'Codename: bookworm' 2>/dev/null | sed -n 1p)
mirror=${mirror:-http://deb.debian.org/debian}
trees=$(mktemp -d "${TMPDIR:-/tmp}/zelm-trees.XXXXXX")
trap 'as_root rm -rf "$trees"' EXIT

# repository FOLDER FILE...: copies of packages, and the list by which apt finds them.
repository() {
    mkdir "$1"
    cp "${@:2}" "$1"
    (cd "$1" && dpkg-scanpackages --multiversion . >Packages 2>/dev/null)
}

# The same packages under a lower version: what somebody has before he upgrades.
older_packages() {
    local file work=$trees/unpacked
    mkdir "$trees/repacked"
    for file in "$deb"/*.deb; do
        dpkg-deb -R "$file" "$work"
        sed -i "s/\b$version\b/${version%-*}-0/" "$work/DEBIAN/control"
        dpkg-deb --root-owner-group -Znone -b "$work" "$trees/repacked" >/dev/null
        rm -r "$work"
    done
    repository "$trees/older" "$trees/repacked"/*.deb
}

# new_tree NAME ARCHITECTURES: a minimal Debian 12.
new_tree() {
    as_root mmdebstrap --quiet --variant=apt --architectures="$2" bookworm "$trees/$1" "deb $mirror bookworm main"
    as_root mkdir "$trees/$1/packages"
    as_root cp -r "$trees/older" "$trees/newer" "$trees/$1/packages"
}

inside() {
    as_root env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$trees/$1" "${@:2}"
}

# life_of NAME PACKAGE...: installs the lower version, upgrades to the one that was built, purges. Nothing stays.
life_of() {
    local name=$1 step left wanted=${version%-*}-0
    shift
    for step in older newer; do
        echo "deb [trusted=yes] file:/packages/$step ./" | as_root tee "$trees/$name/etc/apt/sources.list.d/zelm.list" >/dev/null
        inside "$name" apt-get update -q
        inside "$name" apt-get install -y -q --no-install-recommends "$@"
        inside "$name" dpkg-query -W -f '${Package}:${Architecture} ${Version} ${db:Status-Status}\n' "$@" | tee "$trees/installed"
        [ "$(grep -c " $wanted installed$" "$trees/installed")" = $# ]
        wanted=$version
    done
    inside "$name" dpkg --verify "$@"
    inside "$name" apt-get purge -y -q "$@"
    left=$(inside "$name" find / -xdev \( -path /packages -o -path /proc \) -prune -o -name '*zelm*' ! -path '/var/lib/apt/*' \
        ! -path /etc/apt/sources.list.d/zelm.list -print)
    [ -z "$left" ] || { echo "left behind by the packages: $left" && return 1; }
}

# tests_of NAME: the packages' own tests, in packaging/debian/tests. They get the packages from where life_of left off.
# All must run on amd64; those of amd64 are skipped on i386, which is status 2.
tests_of() {
    local status=0 fine=0
    [ "$(inside "$1" dpkg --print-architecture)" = amd64 ] || fine=2
    as_root env -u TMPDIR autopkgtest --no-built-binaries "$source/" -- chroot "$trees/$1" || status=$?
    [ $status = $fine ]
}

repository "$trees/newer" "$deb"/*.deb
older_packages
echo "==> $machine: install, upgrade, purge"
if [ "$machine" = amd64 ]; then
    new_tree own amd64,i386
    life_of own libzelmx64-4 libzelm-dev:amd64 zelm-selftest python3-zelm libzelm-doc libzelmt7:i386 libzelm-dev:i386
else
    new_tree own i386
    life_of own libzelmt7 libzelm-dev
fi
echo "==> $machine: the packages' tests"
tests_of own
if [ "$machine" = amd64 ]; then
    echo "==> i386: install, upgrade, purge, the packages' tests"
    new_tree other i386
    life_of other libzelmt7 libzelm-dev
    tests_of other
fi
echo "all passed"
