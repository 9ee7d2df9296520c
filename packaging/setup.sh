# setup.sh: what ./play and ./check share. Read by them, not run.

say() { echo "== $*"; }
fail() {
    echo "$0: $*" >&2
    exit 1
}

# The packages of the named lists of packaging/packages that are not installed.
missing_packages() {
    for list in "$@"; do
        sed -n "/^\[$list\]/,/^\[/p" packaging/packages | grep -v '^\[\|^#\|^$'
    done | while read -r package; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
    done
}

install_packages() {
    command -v apt-get >/dev/null || fail "needs Debian 12 (apt-get is not here); see packaging/packages"
    missing=$(missing_packages "$@" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    root=
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "must install: $missing- run as root or install sudo"
        root=sudo
    fi
    say "Installing: $missing"
    log=$(mktemp)
    # shellcheck disable=SC2086
    $root apt-get update >"$log" 2>&1 &&
        $root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing >>"$log" 2>&1 ||
        { tail -20 "$log" >&2; fail "could not install: $missing"; }
    rm -f "$log"
}

# configure PRESET [OPTION...]: silent unless it fails.
configure() {
    cmake --preset "$@" >build/configure.log 2>&1 || { tail -30 build/configure.log >&2; fail "cmake failed"; }
}
