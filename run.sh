#!/usr/bin/env bash
# Builds Quillor and plays it: ./run.sh [OPTION OF THE PROGRAM...]
# Where there is no screen it plays a scripted tour instead and leaves pictures.
# ./run.sh --web builds the page instead, serves it on this machine and opens a browser.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
. "$root/scripts/build.sh"

# Whether a window could be opened here.
have_screen() {
    [ "$(uname)" != Darwin ] || return 0
    if [ -n "${WAYLAND_DISPLAY:-}" ] && [ -S "${XDG_RUNTIME_DIR:-/run}/$WAYLAND_DISPLAY" ]; then
        return 0
    fi
    case "${DISPLAY:-}" in
        "") return 1 ;;
        :*) local number=${DISPLAY#:}; [ -S "/tmp/.X11-unix/X${number%%.*}" ] ;;
        *) return 0 ;; # another machine's screen
    esac
}

tour() {
    local pictures="$root/build/tour"
    echo "There is no screen here, so Quillor shows itself on a virtual one."
    install_packages "${packages_virtual_display[@]}"
    rm -rf "$pictures"
    mkdir -p "$pictures"
    # It names each picture that it leaves.
    "$root/scripts/virtual-display.sh" "$program" --tour "$pictures" "$@"
}

# By its environment, in the order in which programs look at it.
speaks_spanish() {
    case "${LANGUAGE:-${LC_ALL:-${LC_MESSAGES:-${LANG:-}}}}" in
        es | es[_.@:]*) ;;
        *) return 1 ;;
    esac
}

# A folder that nobody has played in yet speaks the person's language.
lay_out_folder() {
    local folder
    folder=$(dirname "$program")
    if [ ! -e "$folder/Quillor-Config.ini" ] && ! speaks_spanish; then
        : >"$folder/English.txt"
    fi
}

# Until it is interrupted.
serve_page() {
    local opener=xdg-open
    [ "$(uname)" != Darwin ] || opener=open
    if ! have_screen || ! command -v "$opener" >/dev/null; then opener=; fi
    echo "Building the page, which takes a few minutes the first time."
    "$root/web/build.sh"
    QUILLOR_OPENER=$opener exec node "$root/web/serve.js" "$root/build/web"
}

if [ "${1:-}" = --web ]; then
    serve_page
fi
build_program
lay_out_folder
if have_screen; then
    exec "$program" "$@"
else
    tour "$@"
fi
