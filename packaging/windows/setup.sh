# shellcheck shell=bash
# Sourced behind packaging/setup.sh by what builds and runs programs for 64-bit Windows.
#
# shellcheck disable=SC2154 # project_dir is set by packaging/setup.sh.

windows_dir=$project_dir/packaging/windows
windows_cache=${RUQGUI_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/ruqgui-windows}

# Read by the presets, and by packaging/windows/wine.
export RUQGUI_WINDOWS_CACHE=$windows_cache
export RUQGUI_WINDOWS_PREFIX=$windows_cache/prefix

install_windows_packages() {
    install_packages "$project_dir/packaging/debian-packages.txt" "$windows_dir/debian-packages.txt"
}

# in_running_wine COMMAND...: with wine kept up, so that not every program that is started begins with
# bringing up its services.
in_running_wine() {
    local keeper status=0
    # shellcheck disable=SC2034 # Its input stays open, and so it runs.
    coproc WINE_KEEPER { exec "$windows_dir/wine" cmd 2>/dev/null; }
    keeper=$WINE_KEEPER_PID
    "$@" || status=$?
    kill "$keeper" 2>/dev/null || true
    return "$status"
}
