# shellcheck shell=bash
# Sourced by ./check and ./demo: installs the Debian packages that are still missing.

# The superuser's prefix of a command: nothing as root, else sudo.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "error: '$*' needs root: run this script as root, or install sudo" >&2
        return 1
    fi
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@"
}

# need_packages NAME...: a name may carry its architecture (libpng16-16:i386).
need_packages() {
    local name missing=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "note: no Debian machine; what these Debian packages hold must be there already: $*" >&2
        return 0
    fi
    for name in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -q '^installed$' || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    echo "==> installing ${missing[*]}"
    if [[ " ${missing[*]} " == *:i386* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
        as_root dpkg --add-architecture i386
    fi
    # A mirror may be half-way through an update: what was fetched can still serve, so the install decides.
    as_root apt-get update -q || echo "note: apt-get update failed; going on with the lists that are there" >&2
    # A library must have one version on both architectures. While the security archive holds a new one for only
    # one of them, the release itself still has a pair that fits.
    apt_install "${missing[@]}" || apt_install -t bookworm "${missing[@]}"
}
