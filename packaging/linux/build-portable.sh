#!/usr/bin/env bash
# Packs the game with its own libraries, for any Linux that has an X server: a folder in a
# tar archive, and a start script in it. Built on Debian 12 from its packages; runs where
# the C library is as new (2.36).
#
# build-portable.sh [OUTPUT-FOLDER]     default: build/linux-packages
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# shellcheck source=packaging/version.sh
. "$root/packaging/version.sh"
architecture=$(uname -m)
name=Quillor-$version-linux-$architecture
output=${1:-$root/build/linux-packages}
mkdir -p "$output"
output=$(cd "$output" && pwd)
build=$root/build/portable
stage=$build/$name
plugins=/usr/lib/$architecture-linux-gnu/qt6/plugins
carried=()  # the files of the system, by all the names that its packages may know them by

# The C and C++ libraries are the system's own: what else it loads is made for them.
readonly systems_own='^(ld-linux.*|libc|libm|libdl|libpthread|librt|libresolv|libstdc\+\+|libgcc_s)\.so'

compile() {
    # A folder of its own, unnamed in the program, so that two builds are alike.
    cd "$root"
    use_ccache
    cmake -B "$build/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQUILLOR_TESTS=OFF \
        -DQUILLOR_PORTABLE=ON "-DCMAKE_CXX_FLAGS=-ffile-prefix-map=$root=." >/dev/null
    cmake --build "$build/build"
    rm -rf "$stage"
    cmake --install "$build/build" --prefix "$stage" --strip >/dev/null
}

# carry_plugins FOLDER NAME...: of Qt.
carry_plugins() {
    local folder=$1 plugin
    shift
    mkdir -p "$stage/plugins/$folder"
    for plugin in "$@"; do
        cp "$plugins/$folder/$plugin.so" "$stage/plugins/$folder/"
        carried+=("$plugins/$folder/$plugin.so")
    done
}

# What the named files need, all the way down, but for what is a system's own.
libraries_of() {
    ldd "$@" | sed -n 's/^\t\([^ ]*\) => \(\/[^ ]*\) .*/\1 \2/p' | sort -u |
        grep -vE "$systems_own"
}

carry_libraries() {
    local library path
    mkdir -p "$stage/lib"
    while read -r library path; do
        cp -L "$path" "$stage/lib/$library"
        carried+=("$path" "${path#/usr}" "/usr${path#/usr}")
    done < <(libraries_of "$stage/quillor" "$stage"/*.so "$stage"/plugins/*/*.so)
    # Found from where they stand, wherever the folder is put.
    # shellcheck disable=SC2016 # $ORIGIN is the loader's
    patchelf --force-rpath --set-rpath '$ORIGIN/lib' "$stage/quillor" "$stage"/*.so
    # shellcheck disable=SC2016
    patchelf --force-rpath --set-rpath '$ORIGIN' "$stage"/lib/*
    # shellcheck disable=SC2016
    patchelf --force-rpath --set-rpath '$ORIGIN/../../lib' "$stage"/plugins/*/*.so
    printf '[Paths]\nPlugins = plugins\n' >"$stage/qt.conf"
}

# The licences of everything that is carried, by the packages that it comes from.
carry_licences() {
    local package
    mkdir -p "$stage/licences"
    cp "$root/LICENSE" "$stage/licences/Quillor.txt"
    # Most files have one of two names: it fails for the other.
    while read -r package; do
        cp -L "/usr/share/doc/$package/copyright" "$stage/licences/$package.txt"
    done < <(dpkg-query --search "${carried[@]}" 2>/dev/null | sed 's/[:,].*//' | sort -u)
}

pack() {
    date_files "$stage"
    tar --sort=name --owner=0 --group=0 --numeric-owner --format=gnu -C "$build" -cf - "$name" |
        xz -T1 -6 >"$output/$name.tar.xz"
}

# shellcheck disable=SC2154 # from packages.sh
install_packages "${packages_play[@]}" patchelf xz-utils
compile
carry_plugins platforms libqxcb libqwayland-generic libqoffscreen
carry_plugins imageformats libqjpeg
carry_plugins wayland-shell-integration libxdg-shell
carry_plugins wayland-decoration-client libbradient
carry_libraries
carry_licences
install -m 755 "$here/start.sh" "$stage/start.sh"
install -m 644 "$here/fonts.conf" "$stage/fonts/"
pack
ls -l "$output"
