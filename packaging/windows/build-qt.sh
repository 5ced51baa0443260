#!/bin/sh
# Builds the small static Qt for Windows that build.sh links, from Debian's own
# source package, and keeps it in a cache folder. Done once: about 25 minutes on
# two cores. Prints the folder of the finished Qt as its last line.
#
# QUILLOR_WINDOWS_QT  folder of the finished Qt; set it to use or place another
# QUILLOR_JOBS        compilers at a time (default: one for each processor)
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"

# One at a time: a second run waits for the first, and then takes what it has made.
mkdir -p "$(dirname "$qt")"
exec 9>"$qt.lock"
flock 9

# What it was built by: a Qt that another recipe has made is built anew.
recipe=$(cat "$here/build-qt.sh" "$here/mingw64.cmake" | sha256sum | cut -d' ' -f1)
if [ -f "$qt/.complete" ] && [ "$(cat "$qt/.complete")" = "$recipe" ]; then
    echo "$qt"
    exit 0
fi

need_packages g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 cmake ninja-build \
    dpkg-dev qt6-base-dev qt6-base-dev-tools

work=$qt.work
mkdir -p "$work/lists/partial"
cd "$work"

# The machine's own sources with deb-src switched on, in lists that stay here: the
# machine's lists stay as they are.
list_sources() {
    mkdir -p apt
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ ! -f "$list" ] || sed -n 's/^deb /deb-src /p' "$list" >"apt/$(basename "$list")"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
        [ ! -f "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"apt/$(basename "$list")"
    done
}

fetch_source() {
    list_sources
    set -- -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$work/apt" \
        -o "Dir::State::Lists=$work/lists" -o APT::Sandbox::User=root
    # Others' lists may have no sources; only Debian's matter.
    apt-get "$@" update || true
    apt-get "$@" source --download-only "qt6-base=$qt_version"
    rm -rf source
    dpkg-source -x "qt6-base_$qt_version.dsc" source
}

[ -f source/CMakeLists.txt ] || fetch_source >&2

# Only Core, Gui and Widgets, and of these what a game needs. The source package
# lacks wintab.h, hence no tablets. Images: PNG, JPEG and ICO, all bundled. Of
# Direct2D only the newer part is left out, and with it a second platform plugin:
# the fonts need the older one.
configure() {
    cmake -S source -B build -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$here/mingw64.cmake" \
        -DCMAKE_BUILD_TYPE=MinSizeRel \
        -DCMAKE_INSTALL_PREFIX="$qt" \
        -DCMAKE_C_FLAGS="-ffunction-sections -fdata-sections" \
        -DCMAKE_CXX_FLAGS="-ffunction-sections -fdata-sections" \
        -DBUILD_SHARED_LIBS=OFF \
        -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
        -DQT_QPA_DEFAULT_PLATFORM=windows \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF \
        -DFEATURE_tabletevent=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_network=OFF \
        -DFEATURE_printsupport=OFF -DFEATURE_vulkan=OFF -DINPUT_opengl=no -DFEATURE_opengl=OFF \
        -DFEATURE_testlib=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_icu=OFF \
        -DFEATURE_zstd=OFF -DFEATURE_pkg_config=OFF -DFEATURE_qmake=OFF -DFEATURE_glib=OFF \
        -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF \
        -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF \
        -DFEATURE_system_harfbuzz=OFF -DFEATURE_graphicsview=OFF -DFEATURE_wizard=OFF \
        -DFEATURE_pdf=OFF -DFEATURE_textodfwriter=OFF -DFEATURE_direct2d1_1=OFF
}

# What an interrupted run of the same recipe has built is taken over.
[ "$(cat recipe 2>/dev/null)" = "$recipe" ] || rm -rf build
echo "$recipe" >recipe
configure >&2
nice -n 19 ninja -C build -j "$jobs" >&2
rm -rf "$qt"
cmake --install build >&2
mkdir -p "$qt/licences"
cp source/LICENSES/LGPL-3.0-only.txt source/LICENSES/GPL-3.0-only.txt "$qt/licences/"
cp source/debian/copyright "$qt/licences/Qt-copyright.txt"
echo "$recipe" >"$qt/.complete"
rm -rf "$work"
echo "$qt"
