# What has to be installed to build, play, test and check, in one place. Sourced
# by the scripts that need any of it.
# shellcheck shell=bash

# Names of Debian 12 and Ubuntu 24.04; later releases have them too.
# shellcheck disable=SC2034 # the sourcing scripts choose among these
{
    packages_play=(g++ cmake ninja-build qt6-base-dev qt6-wayland pkgconf libsdl2-dev
        libmpg123-dev fonts-quicksand fonts-comic-neue)
    # A screen that exists in memory alone, and a window manager for it.
    packages_virtual_display=(xvfb openbox dbus)
    packages_test=(libgtest-dev libgmock-dev libbenchmark-dev xdotool imagemagick at-spi2-core
        weston orca python3 python3-gi python3-xlib hunspell hunspell-es hunspell-en-us)
    packages_fuzz=(clang llvm libgtest-dev libgmock-dev)
    # One version of the formatter, because each formats a little differently.
    # For the page: its compiler, the fonts that it takes along, and what makes them small.
    packages_web=(cmake ninja-build emscripten node-acorn nodejs python3 python3-fonttools
        python3-brotli fonts-quicksand fonts-comic-neue)
    packages_web_test=("${packages_web[@]}" chromium firefox-esr fonts-dejavu-core)
    packages_check=(clang-format-14 clang-tidy-14 shellcheck desktop-file-utils appstream
        flatpak-builder man-db)
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# The packages among the arguments that are not installed, one a line.
missing_packages() {
    comm -23 <(printf '%s\n' "$@" | sort -u) <(installed_packages "$@" | sort -u)
}

installed_packages() {
    # dpkg-query fails as soon as one of the names is unknown to it; the others are listed still.
    dpkg-query --show --showformat '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        sed -n 's/ installed$//p' || true
}

# Installs what is missing of the named packages. Needs no network, and takes no
# time, when nothing is. Where that cannot be done it says so and returns all the
# same: the build then tells what it lacks.
install_packages() {
    if ! command -v apt-get >/dev/null; then
        tell_other_systems
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    echo "Installing: ${missing[*]}"
    if as_root apt-get update -qq && as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; then
        return 0
    fi
    echo "Not all of these could be installed; going on without them." >&2
}

tell_other_systems() {
    cat <<'END'
This system has no apt, so nothing is installed for you. Quillor needs a C++20
compiler, CMake 3.25, Ninja, Qt 6.4, SDL 2, mpg123 and a rounded font; its tests
GoogleTest and Google Benchmark, and its window tests (Linux only) an X server in memory:
  Fedora: sudo dnf install gcc-c++ cmake ninja-build qt6-qtbase-devel SDL2-devel mpg123-devel \
            aajohan-comfortaa-fonts gtest-devel gmock-devel google-benchmark-devel xorg-x11-server-Xvfb openbox xdotool \
            ImageMagick weston orca dbus-daemon at-spi2-core python3-gobject python3-xlib hunspell-es hunspell-en-US
  Arch:   sudo pacman -S --needed gcc cmake ninja qt6-base sdl2 mpg123 ttf-nunito gtest benchmark \
            xorg-server-xvfb openbox xdotool imagemagick weston orca at-spi2-core python-gobject python-xlib hunspell-es_es hunspell-en_us
  macOS:  xcode-select --install; brew install cmake ninja qt sdl2 mpg123 googletest google-benchmark
            brew install --cask font-quicksand
END
}

# Compiles through ccache where it is installed, precompiled headers too.
use_ccache() {
    command -v ccache >/dev/null || return 0
    export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS-pch_defines,time_macros}"
    export CMAKE_C_COMPILER_LAUNCHER="${CMAKE_C_COMPILER_LAUNCHER-ccache}"
    export CMAKE_CXX_COMPILER_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER-ccache}"
}
