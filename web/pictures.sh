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
program=${QUILLOR_PROGRAM:-}
if [ -z "$program" ]; then
    use_ccache
    cmake -S "$root" --preset ci >/dev/null
    cmake --build "$root/build/ci" --target quillor >/dev/null
    program=$root/build/ci/qt/quillor
fi
mkdir "$output/folder"
: >"$output/folder/English.txt"
QUILLOR_VIRTUAL_SCREEN=1650x1100 "$root/scripts/virtual-display.sh" "$program" \
    --tour "$output/window" --folder "$output/folder" >/dev/null
QUILLOR_BROWSER=chrome node "$root/web/test/pictures.js" "$output/page"

status=0
for page in "$output"/page/*.png; do
    name=$(basename "$page")
    # The tour numbers its own.
    window=$(find "$output/window" -name "[0-9]*-$name")
    montage "$window" "$page" -tile 2x1 -geometry +4+4 "$output/$name"
    difference=$({ compare -metric RMSE <(convert "$window" -resize 132x81! png:-) \
        <(convert "$page" -resize 132x81! png:-) null: 2>&1 || true; } | sed 's/.*(\(.*\))/\1/')
    echo "$name: $difference"
    awk -v found="$difference" -v most="$most_difference" 'BEGIN { exit !(found <= most) }' || {
        echo "$name: the page does not look like the window" >&2
        status=1
    }
done
exit "$status"
