# What is packed: its version, and the day from which it is. Sourced, with $root set, by all
# that make packages, so that nothing of the machine's own gets into them.
# shellcheck shell=sh disable=SC2034 # the variables are for the scripts that read this file

: "${root:?set it before reading this file}"
version=$(sed -n 's/^project(Quillor VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
released=$(sed -n 's/^## [0-9.]* (\([0-9-]*\))$/\1/p' "$root/CHANGELOG.md" | head -1)
SOURCE_DATE_EPOCH=$(date -u -d "$released 12:00" +%s)
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
umask 022

# date_files FOLDER: all that is in it is from that day, and everybody may read it.
date_files() {
    find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
    chmod -R u=rwX,go=rX "$1"
}
