#!/usr/bin/env bash
# Makes pictures of every screen on the way of a short game that plays itself, in both
# languages, at 100 %, 150 % and 200 % and on a tall display: scripts/pictures.sh [FOLDER];
# without a folder into build/pictures.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# shellcheck source=scripts/build.sh
. "$root/scripts/build.sh"

pictures=${1:-$root/build/pictures}
build_program
install_packages "${packages_virtual_display[@]}"
rm -rf "$pictures"

# pictures_of LANGUAGE NAME FACTOR SCREEN: on a screen of that many pixels.
pictures_of() {
    local model target="$pictures/$1-$2"
    model=$(mktemp -d)
    [ "$1" = spanish ] || touch "$model/English.txt"
    mkdir -p "$target"
    QT_SCALE_FACTOR=$3 QUILLOR_VIRTUAL_SCREEN=$4 \
        "$root/scripts/virtual-display.sh" "$program" --folder "$model" --tour "$target"
    rm -rf "$model"
}

for language in spanish english; do
    pictures_of "$language" 1x 1 1366x768
    pictures_of "$language" 1.5x 1.5 2049x1152
    pictures_of "$language" 2x 2 2732x1536
    pictures_of "$language" tall 1 800x1280
done
