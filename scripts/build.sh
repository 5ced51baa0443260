# Builds the program and installs it into a folder of its own. Sourced, after
# packages.sh, by the scripts that start it.
# shellcheck shell=bash

# Installs what the build needs, builds, and sets `program`.
build_program() {
    local top
    top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
    # shellcheck disable=SC2154 # from packages.sh
    install_packages "${packages_play[@]}"
    mkdir -p "$top/build"
    (
        cd "$top" || return
        use_ccache
        cmake --preset release >build/configure.log || { cat build/configure.log; return 1; }
        cmake --build --preset release
        cmake --install build/release >/dev/null
    )
    # shellcheck disable=SC2034 # the sourcing scripts start it
    program="$top/build/install/quillor"
}
