#!/bin/sh
# Starts the game that is in this folder, with the libraries that are in it. Settings and
# topics are kept in the folder too or, where it is write-protected, in the user's own.
here=$(CDPATH='' cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd)
# A system without typefaces has no list of them either.
[ -e /etc/fonts/fonts.conf ] || export FONTCONFIG_FILE="$here/fonts/fonts.conf"
exec "$here/quillor" "$@"
