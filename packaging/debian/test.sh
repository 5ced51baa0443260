#!/usr/bin/env bash
# Installs the Debian package into a bare Debian 12, plays it there as a person without
# rights, removes and purges it, and looks at what stays.
#
# test.sh [PACKAGE.deb]    default: the one that build.sh has made
# The bare system is kept in ~/.cache/quillor; root is needed for it.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=packaging/linux/bare-system.sh
. "$root/packaging/linux/bare-system.sh"
package=${1:-$(ls "$root"/build/debian-packages/quillor_*.deb)}

player_has() {
    inside test -e "/home/player/.local/share/quillor/$1" || fail "the player has no $1"
}

fresh_system
cp "$package" "$system/tmp/quillor.deb"
inside apt-get install -y --no-install-recommends /tmp/quillor.deb xvfb xauth >/dev/null
inside dpkg -L quillor >"$system/tmp/installed"

step "starts, and lays out what comes with it"
starts quillor
player_has Quillor-Config.ini
player_has Quillor-Manual.txt
player_has Temas/Aves.txt
player_has Topics/Birds.txt
inside test -z "$(find "$system/usr/games" -name 'Quillor-Config.ini')"

step "has all that its sounds need"
needs_nothing "$(grep '/quillor-sound\.so$' "$system/tmp/installed")"

step "plays a tour through all its screens"
on_screen quillor --tour /home/player/pictures
count_pictures "$system/home/player/pictures"
rm -rf "$root/build/package-pictures"
cp -r "$system/home/player/pictures" "$root/build/package-pictures"

step "leaves the player's own files when it is removed and purged"
as_player sh -c 'echo mine >~/.local/share/quillor/Temas/Aves.txt'
inside apt-get remove -y quillor >/dev/null
inside test ! -e /usr/games/quillor || fail "the program is still there"
inside dpkg --purge quillor
as_player grep -qx mine /home/player/.local/share/quillor/Temas/Aves.txt
while read -r file; do
    case "$file" in *quillor*) [ ! -e "$system$file" ] || fail "purging has left $file" ;; esac
done <"$system/tmp/installed"
echo "All of it went well."
