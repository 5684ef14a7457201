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

# has_windows_toolkit: whether the cache holds what packaging/windows/toolkit builds.
has_windows_toolkit() {
    [ -e "$RUQGUI_WINDOWS_PREFIX/built/qt6-base" ] && [ -e "$RUQGUI_WINDOWS_PREFIX/built/tiff" ]
}

# require_windows_toolkit: builds it when it is missing.
require_windows_toolkit() { "$windows_dir/toolkit"; }

# windows_libraries FOLDER...: copies into the first folder what the programs and libraries in all of
# them load, as far as the toolkit or the compiler brings it; the rest is Windows' own.
windows_libraries() {
    local target=$1 name source found=1
    while [ "$found" -ne 0 ]; do
        found=0
        while read -r name; do
            source=$(windows_library "$name")
            if [ -n "$source" ] && [ ! -e "$target/$name" ]; then
                cp "$source" "$target/"
                found=1
            fi
        done < <(find "$@" -name '*.exe' -print0 -o -name '*.dll' -print0 |
            xargs -0 x86_64-w64-mingw32-objdump -p | sed -n 's/^.*DLL Name: //p' | sort -u)
    done
}

# windows_library NAME: prints where it is, if it is not Windows' own.
windows_library() {
    local folder
    for folder in $(windows_library_folders); do
        if [ -e "$folder/$1" ]; then
            printf '%s\n' "$folder/$1"
            return
        fi
    done
}

windows_library_folders() {
    printf '%s\n' "$RUQGUI_WINDOWS_PREFIX/bin" /usr/x86_64-w64-mingw32/lib
    dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)"
}

# use_windows_desktop: from now on wine has a desktop of its own on the screen. There it makes windows active,
# for which it would need a window manager otherwise. Such a wine has a folder of its own.
use_windows_desktop() {
    export RUQGUI_WINE_PREFIX=$windows_cache/wine-desktop
    local explorer='HKCU\Software\Wine\Explorer'
    "$windows_dir/wine" reg add "$explorer" /v Desktop /d Default /f >/dev/null
    "$windows_dir/wine" reg add "$explorer\Desktops" /v Default /d 1280x1024 /f >/dev/null
}

# share_drive: //localhost/c$ is drive C, as on Windows, where every drive is shared with administrators.
share_drive() {
    local shares=${RUQGUI_WINE_PREFIX:-$windows_cache/wine}/dosdevices/unc/localhost
    mkdir -p "$shares"
    ln -sfn ../../../drive_c "$shares/c\$"
}

# in_running_wine COMMAND...: with wine kept up, so that not every program that is started begins with
# bringing up its services.
in_running_wine() {
    local keeper status=0
    # shellcheck disable=SC2034 # Its input stays open, and so it runs.
    coproc WINE_KEEPER { exec "$windows_dir/wine" cmd 2>/dev/null; }
    keeper=$WINE_KEEPER_PID
    # The services keep, as long as they run, the output of the program that brought them up. When that was a test,
    # ctest waits for the end of its output in vain.
    "$windows_dir/wine" wineboot --init </dev/null >/dev/null 2>&1 || true
    share_drive
    "$@" || status=$?
    kill "$keeper" 2>/dev/null || true
    return "$status"
}
