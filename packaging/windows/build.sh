#!/bin/sh
# Cross-builds the Windows program on Debian and packs it: Quillor.exe (64 bits,
# static), a zip that runs from any folder, and an installer for one user.
#
# build.sh [OUTPUT-FOLDER]         default: build/windows-packages
# QUILLOR_WINDOWS_QT, QUILLOR_JOBS: see build-qt.sh
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"
mkdir -p "${1:-$root/build/windows-packages}"
output=$(CDPATH='' cd -- "${1:-$root/build/windows-packages}" && pwd)
build=$root/build/windows
stage=$build/Quillor-$version
most_zip_bytes=$((12 * 1024 * 1024))

need_packages g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 cmake ninja-build nsis zip \
    fonts-quicksand fonts-comic-neue
"$here/build-qt.sh" >/dev/null

compile() {
    cd "$root"
    cmake --preset windows "-DCMAKE_CXX_FLAGS=-ffile-prefix-map=$root=."
    cmake --build --preset windows -j "$jobs"
    no_foreign_dlls "$build/qt/Quillor.exe"
}

# Windows' own libraries only: whatever the compiler or Qt brings must be inside.
no_foreign_dlls() {
    foreign=$(x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: //p' |
        grep -i -E '^(lib|qt)' || true)
    [ -z "$foreign" ] || { echo "needs DLLs beside it:" "$foreign" >&2; exit 1; }
}

# What is installed and zipped, the same for both.
fill_stage() {
    rm -rf "$stage"
    cmake --install "$build" --prefix "$stage" >/dev/null
    fill_licences
    date_files "$stage"
}

fill_licences() {
    doc=/usr/share/doc
    mkdir -p "$stage/licences"
    windows_text "$root/LICENSE" "$stage/licences/Quillor.txt"
    windows_text "$here/third-party.txt" "$stage/licences/Third-party.txt"
    windows_text "$doc/mingw-w64-common/copyright" "$stage/licences/MinGW-w64.txt"
    windows_text "$doc/gcc-mingw-w64-base/copyright" "$stage/licences/GCC-runtime.txt"
    for text in "$qt/licences/"*.txt; do
        windows_text "$text" "$stage/licences/$(basename "$text")"
    done
}

# windows_text FROM TO: a text with the line ends that every Windows editor knows.
windows_text() {
    sed 's/\r*$/\r/' "$1" >"$2"
}

pack_zip() {
    zip=$output/Quillor-$version-windows.zip
    rm -f "$zip"
    (cd "$build" && find "Quillor-$version" | sort | zip -X -q "$zip" -@)
    bytes=$(stat -c %s "$zip")
    [ "$bytes" -le "$most_zip_bytes" ] || { echo "$zip: $bytes bytes are too many" >&2; exit 1; }
}

compile
fill_stage
pack_zip
"$here/pack-installer.sh" "$stage" "$output/Quillor-$version-setup.exe"
ls -l "$output"
