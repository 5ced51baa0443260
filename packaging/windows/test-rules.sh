#!/bin/sh
# Compiles everything but the windows for Windows and runs the unit tests under
# Wine: the paths, streams and renames of Windows' own C and C++ libraries. Needs
# no display and no Qt for Windows. Installs the Debian packages that it lacks.
#
# test-rules.sh [BUILD-FOLDER]     default: build/windows-rules
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"
build=${1:-$root/build/windows-rules}

need_packages g++-mingw-w64-x86-64-posix cmake ninja-build googletest wine wine64

# Debian carries no GoogleTest for Windows, but its source.
build_googletest() {
    cmake -S /usr/src/googletest -B "$build/googletest" -G Ninja -Wno-dev \
        -DCMAKE_TOOLCHAIN_FILE="$here/mingw64.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$build/googletest-installed"
    cmake --build "$build/googletest" -j "$jobs"
    cmake --install "$build/googletest" >/dev/null
}

[ -d "$build/googletest-installed" ] || build_googletest

start_wine "$build/wine"
trap stop_wine EXIT

# -O1 compiles fast; from -O2 on, GCC 12 warns of overlaps inside its own std::string.
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE= -DCMAKE_CXX_FLAGS=-O1 \
    -DCMAKE_TOOLCHAIN_FILE="$here/mingw64.cmake" -DCMAKE_CROSSCOMPILING_EMULATOR=wine \
    -DGTest_DIR="$build/googletest-installed/lib/cmake/GTest" \
    -DQUILLOR_SHELL=OFF -DQUILLOR_TESTS=ON -DQUILLOR_WERROR=ON
cmake --build "$build" -j "$jobs"

# Each program once, not once for each test: a start under Wine takes half a second.
count=0
for program in $(find "$build/tests" -name '*.exe' | sort); do
    echo "== $(basename "$program")"
    (cd "$root" && wine "$program" --gtest_brief=1)
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "no test programs were built" >&2; exit 1; }
