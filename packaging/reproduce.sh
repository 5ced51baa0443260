#!/usr/bin/env bash
# Makes a release twice, as two people would: in folders of other names, at other times, in
# another time zone and language, the second time without a compiler's cache. Tells which
# files of the two differ, and ends with 1 if any does.
#
# reproduce.sh [FOLDER]     default: build/reproduce
# QUILLOR_RELEASE  which parts, see release.sh
#
# Alike are releases that the same tools have made of the same commit. What differs between
# machines: the versions of the compilers and of the libraries that the portable archive
# carries, and Qt for Windows, whose folder (QUILLOR_WINDOWS_QT) stands in the program.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=${1:-$root/build/reproduce}
rm -rf "$folder"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)

# make_release NAME [VARIABLE=VALUE]...: from a clone of that name.
make_release() {
    local name=$1
    shift
    git clone --quiet --no-hardlinks "$root" "$folder/$name"
    env "$@" "$folder/$name/packaging/release.sh" "$folder/$name-made" >"$folder/$name.log" 2>&1 || {
        tail -30 "$folder/$name.log" >&2
        exit 1
    }
}

make_release one
(
    umask 077
    make_release another-name TZ=Asia/Tokyo LANG=es_ES.UTF-8 LANGUAGE=es CCACHE_DISABLE=1
)

differing=0
for file in "$folder"/one-made/*; do
    name=$(basename "$file")
    if cmp "$file" "$folder/another-name-made/$name"; then
        echo "the same: $name"
    else
        differing=1
    fi
done
exit "$differing"
