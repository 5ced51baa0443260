#!/usr/bin/env bash
# Runs a command with a screen that exists in memory alone, and takes everything
# down after it: scripts/virtual-display.sh COMMAND [ARGUMENT...]
# QUILLOR_VIRTUAL_SCREEN is its size in pixels, 1600x1000 unless it is set.
set -euo pipefail

scratch=$(mktemp -d)
servers=()

tear_down() {
    local server
    for server in "${servers[@]}"; do
        kill "$server" 2>/dev/null || true
        wait "$server" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap tear_down EXIT
trap 'exit 130' INT TERM

# The server picks a free number itself and writes it when it is ready.
mkfifo "$scratch/number"
Xvfb -displayfd 3 -screen 0 "${QUILLOR_VIRTUAL_SCREEN:-1600x1000}x24" -nolisten tcp -noreset 3>"$scratch/number" \
    2>"$scratch/xvfb.log" &
servers+=($!)
if ! read -r -t 30 number <"$scratch/number"; then
    cat "$scratch/xvfb.log" >&2
    echo "No virtual screen could be started." >&2
    exit 1
fi

unset WAYLAND_DISPLAY
export DISPLAY=":$number" XDG_RUNTIME_DIR="$scratch" XDG_SESSION_TYPE=x11 QT_QPA_PLATFORM=xcb
# A window that opens before the window manager stands is never activated.
openbox --startup "touch $scratch/managed" >/dev/null 2>&1 &
servers=($! "${servers[@]}")
for ((i = 0; i < 100; i++)); do
    [ ! -e "$scratch/managed" ] || break
    sleep 0.1
done

dbus-run-session -- "$@"
