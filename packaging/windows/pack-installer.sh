#!/bin/sh
# Packs a folder into the installer for one user.
#
# pack-installer.sh STAGE INSTALLER.exe
# QUILLOR_INSTALLER_VERSION  which version it says it is (default: the project's)
set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
# shellcheck source=SCRIPTDIR/common.sh
. "$here/common.sh"
stage=$1
removals=$2.nsh

# The uninstaller names each file that was installed, so that it can take no other.
# shellcheck disable=SC2016 # $INSTDIR is the installer's
{
    (cd "$stage" && find . -type f | sort | sed 's|^\./||; s|/|\\|g; s|.*|Delete "$INSTDIR\\&"|')
    (cd "$stage" && find . -mindepth 1 -depth -type d | sort -r |
        sed 's|^\./||; s|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|')
} >"$removals"
makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=${QUILLOR_INSTALLER_VERSION:-$version}" \
    "-DSTAGE=$stage" "-DICON=$root/resources/icon/quillor.ico" "-DREMOVALS=$removals" \
    "-DOUTPUT=$2" "$here/quillor.nsi"
rm "$removals"
