# Shared by the Windows packaging scripts: where things are and what they need.
# Expects $here, the folder of this file; sets $root, $version, $cache, $qt,
# and what version.sh sets.
# shellcheck shell=sh disable=SC2034 # the variables are for the scripts that read this file

: "${here:?set it before reading this file}"
root=$(CDPATH='' cd -- "$here/../.." && pwd)
# shellcheck source=packaging/version.sh
. "$root/packaging/version.sh"
cache=${XDG_CACHE_HOME:-$HOME/.cache}/quillor
jobs=${QUILLOR_JOBS:-$(nproc)}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# need_packages NAME...: installs those Debian packages that are missing.
need_packages() {
    missing=
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    as_root apt-get update >&2
    # shellcheck disable=SC2086 # a list of words on purpose
    as_root apt-get -o DPkg::Lock::Timeout=600 install -y --no-install-recommends $missing >&2
}

# The version of a package that is installed or, where it is not, could be.
version_of() {
    dpkg-query -W -f '${Version}' "$1" 2>/dev/null ||
        apt-cache policy "$1" | sed -n '/(none)/d; s/.*Candidate: //p'
}

# Must match the machine's own qt6-base-dev, whose moc and rcc do the building.
qt_version=$(version_of qt6-base-dev)
if [ -z "$qt_version" ]; then # a fresh machine has no package lists yet
    as_root apt-get update >&2
    qt_version=$(version_of qt6-base-dev)
fi
qt=${QUILLOR_WINDOWS_QT:-$cache/qt-windows-$qt_version}
export QUILLOR_WINDOWS_QT="$qt"

# start_wine FOLDER: a Windows of its own in that folder, without the add-ons
# that Wine would offer to download. stop_wine ends it. File names of any letters
# need a locale that has them.
start_wine() {
    export LC_ALL=C.UTF-8
    export WINEPREFIX="$1" WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="mscoree,mshtml="
    [ -f "$WINEPREFIX/system.reg" ] || wine wineboot --init >/dev/null 2>&1
}

stop_wine() {
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
}
