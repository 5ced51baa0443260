#!/bin/sh
# Installs the game under Wine, updates it, starts it and removes it, and looks at what
# becomes of the player's files. No display is needed but for the start, which is played
# on a screen in memory.
#
# test-installer.sh [STAGE]    what is installed (default: as build.sh has laid it out)
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"
stage=${1:-$root/build/windows/Quillor-$version}
build=$root/build/windows-installer

need_packages wine wine64 nsis xvfb openbox dbus
[ -d "$stage" ] || "$here/build.sh"
rm -rf "$build"
mkdir -p "$build"
start_wine "$build/wine"
trap stop_wine EXIT
user=$(find "$build/wine/drive_c/users" -mindepth 1 -maxdepth 1 ! -name Public | head -1)
folder=$user/AppData/Local/Programs/Quillor

step() { echo "== $1"; }
fail() { echo "failed: $1" >&2; exit 1; }
has() { [ -e "$folder/$1" ] || fail "no $1"; }
has_not() { [ ! -e "$folder/$1" ] || fail "there is a $1"; }
says() { wine reg query "$1" /v "$2" 2>/dev/null | grep -q "$3" || fail "$2 is not $3"; }
uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillor'

step "a first installation, in Spanish"
QUILLOR_INSTALLER_VERSION=1.0.0 "$here/pack-installer.sh" "$stage" "$build/old.exe"
wine "$build/old.exe" /S /LANG=1034
has Quillor.exe
has packs/Temas/Aves.txt
has fonts/Quicksand-Bold.ttf
has_not English.txt
says "$uninstall_key" DisplayVersion 1.0.0

step "an update in place keeps what is the player's"
mkdir -p "$folder/Temas"
echo mine >"$folder/Temas/MINE.txt"
echo 3 >"$folder/Quillor-Config.ini"
"$here/pack-installer.sh" "$stage" "$build/new.exe"
wine "$build/new.exe" /S /LANG=1033
says "$uninstall_key" DisplayVersion "$version"
has_not English.txt
grep -qx mine "$folder/Temas/MINE.txt" || fail "the player's topic has changed"
grep -qx 3 "$folder/Quillor-Config.ini" || fail "the settings have changed"

step "the installed game plays"
pictures=$build/pictures
mkdir -p "$pictures"
env -u DISPLAY "$root/scripts/virtual-display.sh" env -u QT_QPA_PLATFORM \
    wine "$folder/Quillor.exe" --tour "Z:$pictures"
[ "$(find "$pictures" -name '*.png' | wc -l)" -gt 20 ] || fail "the tour left too few pictures"

step "removing it leaves what is the player's"
wine "$folder/Uninstall.exe" /S "_?=$(winepath -w "$folder" 2>/dev/null)"
has_not Quillor.exe
has_not packs
has Temas/MINE.txt
has Quillor-Config.ini

step "a new installation, in English"
rm -rf "$folder"
wine "$build/new.exe" /S /LANG=1033
has English.txt
echo "All of it went well."
