# Sourced by ./run and ./test: installs what is missing and builds. Expects $root.

fail() {
    echo "$1" >&2
    exit 1
}

# packages GROUP…: the packages of these groups, from packages.txt.
packages() {
    local group
    for group in "$@"; do
        sed -n "s/^$group //p" "$root/packages.txt"
    done
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_packages GROUP…: does nothing when all are there.
install_packages() {
    command -v dpkg-query >/dev/null || fail "This needs Debian 12 or a system like it (no dpkg here)."
    local package missing=()
    for package in $(packages "$@"); do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=(env DEBIAN_FRONTEND=noninteractive)
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null || ! { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
            fail "Missing packages, and no right to install them: apt-get install ${missing[*]}"
        fi
        as_root=(sudo "${as_root[@]}")
    fi
    echo "Installing ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -q >/dev/null || fail "apt-get update failed; is there a network?"
    "${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null \
        || fail "apt-get could not install ${missing[*]}"
}

# build PRESET [TARGET]: configures where needed and builds.
build() {
    local log="$root/build/$1.configure.log"
    mkdir -p "$root/build"
    (cd "$root" && cmake --preset "$1" "${@:3}" >"$log" 2>&1) || {
        cat "$log" >&2
        fail "The build could not be configured."
    }
    (cd "$root" && cmake --build --preset "$1" ${2:+--target "$2"}) >&2 || fail "The build failed."
}
