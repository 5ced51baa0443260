#!/usr/bin/env bash
# Puts pictures of the page beside those of the window, and fails where the two do not look
# alike. Needs the window's program, which ./test.sh builds too, and the page.
#
# web/pictures.sh [OUTPUT-FOLDER]     default: build/web-pictures
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
output=${1:-$root/build/web-pictures}
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# Of what is seen at this size; letters are drawn a little differently everywhere.
most_difference=0.06

install_packages "${packages_play[@]}" "${packages_virtual_display[@]}" imagemagick
rm -rf "$output"
mkdir -p "$output"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
program=${QUILLOR_PROGRAM:-}
if [ -z "$program" ]; then
    use_ccache
    cmake -S "$root" --preset ci >/dev/null
    cmake --build "$root/build/ci" --target quillor >/dev/null
    program=$root/build/ci/qt/quillor
fi

# difference_of WINDOW PAGE OVER: from 0 to 1. What stands over a screen, if there is such a
# picture, is looked for all over the window.
difference_of() {
    if [ ! -e "$3" ]; then
        convert "$1" "$2" -resize 132x81! -metric RMSE -compare -format '%[distortion]' info:
        return
    fi
    convert "$1" -resize 25% -blur 0x2 "$scratch/window.png"
    # Without its edge, whose width its desktop decides.
    convert "$3" -gravity center -crop 92%x92%+0+0 +repage -resize 25% -blur 0x2 "$scratch/over.png"
    { compare -metric RMSE -subimage-search "$scratch/window.png" "$scratch/over.png" null: 2>&1 || true; } |
        sed 's/.*(\(.*\)).*/\1/'
}

# pictures_of LANGUAGE: of the page and of the window, beside each other.
pictures_of() {
    local here=$output/$1 page window name difference
    mkdir -p "$here/folder"
    [ "$1" = es ] || : >"$here/folder/English.txt"
    QUILLOR_VIRTUAL_SCREEN=1650x1100 "$root/scripts/virtual-display.sh" "$program" \
        --tour "$here/window" --folder "$here/folder" >/dev/null
    QUILLOR_BROWSER=chrome node "$root/web/test/pictures.js" "$here/page" "$1" >/dev/null
    for page in "$here"/page/*.png; do
        name=$(basename "$page")
        # The tour numbers its own.
        window=$(find "$here/window" -name "[0-9][0-9]-$name")
        montage "$window" "$page" -tile 2x1 -geometry +4+4 "$here/$name"
        difference=$(difference_of "$window" "$page" "$here/page/over/$name")
        echo "$1/$name: $difference"
        awk -v found="$difference" -v most="$most_difference" 'BEGIN { exit !(found <= most) }' || {
            echo "$1/$name: the page does not look like the window" >&2
            status=1
        }
    done
}

status=0
for language in es en; do
    pictures_of "$language"
done
exit "$status"
