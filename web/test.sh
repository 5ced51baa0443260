#!/usr/bin/env bash
# Checks the page's script, builds the page, and plays it in real browsers.
#
# web/test.sh [TEST-FILE...]     default: all of web/test
# QUILLOR_BROWSERS  in which: chrome, firefox (default: both)
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/packages.sh
. ../scripts/packages.sh

install_packages "${packages_web_test[@]}"
# Some nodes bring their own.
command -v npm >/dev/null || install_packages npm

# What is installed already is as the lock file says.
if ! cmp -s package-lock.json node_modules/.lock-as-installed; then
    npm ci --no-audit --no-fund --loglevel=error
    cp package-lock.json node_modules/.lock-as-installed
fi
node_modules/.bin/tsc -p .
node_modules/.bin/tsc -p tsconfig.worker.json
node_modules/.bin/eslint .
./build.sh >/dev/null

tests=("$@")
[ "${#tests[@]}" -gt 0 ] || tests=(test/*.test.js)
status=0
for browser in ${QUILLOR_BROWSERS:-chrome firefox}; do
    echo "== $browser"
    # One after the other, which older nodes have no option for.
    for each in "${tests[@]}"; do
        QUILLOR_BROWSER=$browser node --test "$each" || status=1
    done
done
exit "$status"
