#!/bin/sh
# Plays the packed Windows program under Wine, on a screen in memory: first start,
# a game won and one lost, settings, a topic invented and played after a restart.
# Packs it first when that is yet to be done. Leaves pictures in build/windows-pictures.
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"
build=$root/build/windows-play

need_packages wine wine64 xvfb openbox xdotool imagemagick x11-xkb-utils dbus \
    at-spi2-core python3-gi python3-xlib

zip=$root/build/windows-packages/Quillor-$version-windows.zip
[ -f "$zip" ] || "$here/build.sh"
rm -rf "$build/packed"
mkdir -p "$build/packed"
(cd "$build/packed" && cmake -E tar xf "$zip")

# Made once and without a display, so that no test waits for it.
start_wine "$build/wine"
stop_wine

# The system's own Python, because that is the one with the bindings.
export QUILLOR_PACKED="$build/packed/Quillor-$version"
export QUILLOR_PICTURES="$root/build/windows-pictures"
rm -rf "$QUILLOR_PICTURES"
export PYTHONPATH="$root/tests/window:$here/play" PYTHONDONTWRITEBYTECODE=1
cd "$here/play"
/usr/bin/python3 -m unittest --verbose "${@:-test_windows}"
