#!/usr/bin/env bash
# Builds Quillor with warnings as errors and runs every test: rules and windows,
# then the rules once more under the sanitizers. Ends with a line of totals.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

passed=0
failed=0
skipped=0

# count ATTRIBUTE FILE: a number of the summary that ctest wrote.
count() {
    sed -n "/<testcase/q; s/^[[:space:]]*$1=\"\([0-9]*\)\".*/\1/p" "$2"
}

# run_preset NAME TESTS: configures, builds and tests one preset, so many tests at a time for
# each processor, and adds to the totals. A preset that does not build counts as one failure.
run_preset() {
    local preset=$1 at_a_time=$(($(nproc) * $2)) results=build/$1/test-results.xml
    echo "== $preset"
    mkdir -p build
    if ! { cmake --preset "$preset" >"build/configure-$preset.log" ||
        { cat "build/configure-$preset.log"; false; }; } || ! cmake --build --preset "$preset"; then
        failed=$((failed + 1))
        return
    fi
    rm -f "$results"
    local status=0
    ctest --preset "$preset" --parallel "$at_a_time" --output-junit "$PWD/$results" || status=$?
    add_results "$results" "$status"
}

# add_results FILE STATUS: a run that failed without saying where is a failure too.
add_results() {
    local all=0 bad=0 left_out=0
    if [ -f "$1" ]; then
        all=$(count tests "$1")
        bad=$(count failures "$1")
        left_out=$(($(count disabled "$1") + $(count skipped "$1")))
    fi
    if [ "$2" -ne 0 ] && [ "$bad" -eq 0 ] || [ "$all" -eq 0 ]; then
        bad=$((bad + 1))
        all=$((all + 1))
    fi
    passed=$((passed + all - bad - left_out))
    failed=$((failed + bad))
    skipped=$((skipped + left_out))
}

install_packages "${packages_play[@]}" "${packages_virtual_display[@]}" "${packages_test[@]}"
use_ccache
# Tests of windows wait most of their time: for windows, and as a player would.
run_preset ci 2
run_preset asan 1

if [ "$skipped" -gt 0 ]; then
    echo "$passed passed, $failed failed, $skipped skipped"
else
    echo "$passed passed, $failed failed"
fi
[ "$failed" -eq 0 ]
