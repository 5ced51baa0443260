#!/usr/bin/env bash
# Builds the Debian package of what is committed, the Debian way, and has lintian look at it.
#
# build.sh [OUTPUT-FOLDER]     default: build/debian-packages
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# shellcheck source=packaging/version.sh
. "$root/packaging/version.sh"
output=${1:-$root/build/debian-packages}
mkdir -p "$output"
output=$(cd "$output" && pwd)
work=$root/build/debian/quillor-$version

install_packages build-essential dpkg-dev debhelper fakeroot lintian cmake fonts-comic-neue \
    fonts-quicksand libmpg123-dev libsdl2-dev ninja-build pkgconf qt6-base-dev

use_ccache

rm -rf "$root/build/debian"
mkdir -p "$work"
git -C "$root" archive HEAD | tar -x -C "$work"
mv "$work/packaging/debian" "$work/debian"
rm "$work/debian/"*.sh
cmake "-DOUTPUT=$work/debian/changelog" -P "$root/cmake/releases.cmake"

cd "$work"
dpkg-buildpackage -us -uc -j"$(nproc)"
cd ..
rm -f "$output/quillor_"* "$output/quillor-dbgsym_"*
# shellcheck disable=SC2035 # the names start with the package's
cp quillor_* quillor-dbgsym_* "$output/"
lintian --fail-on error,warning --info --tag-display-limit 0 --allow-root "$output"/quillor_*.changes
ls -l "$output"
