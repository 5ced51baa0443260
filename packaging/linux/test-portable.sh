#!/usr/bin/env bash
# Unpacks the portable archive on a bare Debian 12 that has an X server and nothing else of
# a desktop, and plays it there as a person without rights.
#
# test-portable.sh [ARCHIVE.tar.xz]    default: the one that build-portable.sh has made
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=packaging/linux/bare-system.sh
. "$here/bare-system.sh"
archive=${1:-$(ls "$root"/build/linux-packages/Quillor-*.tar.xz)}
folder=/home/player/$(basename "$archive" .tar.xz)

fresh_system
inside apt-get install -y --no-install-recommends xvfb xauth >/dev/null
tar -xJf "$archive" -C "$system/home/player"
inside chown -R player:player "$folder"

step "starts, and keeps everything in its own folder"
starts "$folder/start.sh"
for name in Quillor-Config.ini Temas/Aves.txt Topics/Birds.txt; do
    inside test -e "$folder/$name" || fail "$name is not in its folder"
done

step "has all that its sounds need"
needs_nothing "$folder/quillor-sound.so"

step "plays a tour through all its screens"
on_screen "$folder/start.sh" --tour /home/player/pictures
count_pictures "$system/home/player/pictures"

step "keeps to the user's folder where its own is write-protected"
inside chown -R root:root "$folder"
starts "$folder/start.sh"
inside test -e /home/player/.local/share/quillor/Temas/Aves.txt || fail "no topics of the user's"
echo "All of it went well."
