# shellcheck shell=bash
# Sourced by run, test and .ci/run: the packages, the build and the screen. Changes no directory.

project_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# A service or a bare container may have none; then that of the user's entry.
export HOME=${HOME:-~}

say() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# as_root COMMAND...
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "these packages must be installed by root, and there is no sudo; as root, run: $*"
    fi
}

apt_get() { as_root env DEBIAN_FRONTEND=noninteractive apt-get "$@" </dev/null; }

# missing_packages PACKAGE...: prints those that are not installed.
missing_packages() {
    local installed
    # dpkg-query fails when it does not know one of the names, which is an answer here and no fault.
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^installed //p' || true)
    comm -23 <(printf '%s\n' "$@" | sort -u) <(printf '%s\n' "$installed" | sort -u)
}

# install_packages LIST_FILE...: one package a line; asks apt-get only for what is missing.
install_packages() {
    local wanted missing
    mapfile -t wanted < <(sed 's/#.*//; s/[[:space:]]//g; /^$/d' "$@")
    if ! command -v dpkg-query >/dev/null; then
        say "Not a Debian system: needs what Debian calls ${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    if [ "${#missing[@]}" -eq 0 ]; then
        return
    fi
    say "Installing ${missing[*]}"
    apt_get install -y --no-install-recommends "${missing[@]}" ||
        { say "Fetching the lists of packages first" && apt_get update &&
            apt_get install -y --no-install-recommends "${missing[@]}"; } ||
        fail "apt-get could not install: ${missing[*]}"
}

# require_qt3: RUQGUI_QT3_DIR must name a built Qt 3.3.
require_qt3() {
    [ -n "${RUQGUI_QT3_DIR:-}" ] ||
        fail "--qt3 needs RUQGUI_QT3_DIR, the folder of a built Qt 3.3 (bin/moc, include, lib)"
    [ -x "$RUQGUI_QT3_DIR/bin/moc" ] || fail "no bin/moc in RUQGUI_QT3_DIR, $RUQGUI_QT3_DIR"
}

# build PRESET [CMAKE_BUILD_ARGUMENT...]: configures and builds in build/PRESET.
build() {
    local preset=$1
    shift
    say "Building ($preset)"
    (cd "$project_dir" && cmake --preset "$preset" >"$(configure_log "$preset")") ||
        { cat "$(configure_log "$preset")"; fail "the configuration failed"; }
    (cd "$project_dir" && cmake --build --preset "$preset" "$@")
}

configure_log() {
    mkdir -p "$project_dir/build"
    printf '%s/build/configure-%s.log' "$project_dir" "$1"
}

# on_virtual_screen COMMAND...
on_virtual_screen() { xvfb-run -a -s "-screen 0 1280x1024x24" "$@"; }
