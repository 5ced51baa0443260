#!/usr/bin/env bash
# Builds the fuzzers and runs each of them on its inputs in tests/fuzz/corpus:
#   scripts/fuzz.sh                 a fixed number of runs, as CI does
#   scripts/fuzz.sh SECONDS [NAME]  all, or one, for so long each
# What they find stays in build/fuzz/found, with the bytes that do it.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

seconds=${1:-}
only=${2:-}

# how_long NAME: the fuzzer's option. Whole runs of the program take longer than the rest.
how_long() {
    if [ -n "$seconds" ]; then
        echo "-max_total_time=$seconds"
    elif [ "$1" = events ]; then
        echo -runs=2000
    else
        echo -runs=20000
    fi
}

install_packages "${packages_play[@]}" "${packages_fuzz[@]}"
use_ccache
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

export QT_QPA_PLATFORM=offscreen
found=$PWD/build/fuzz/found
failed=0
for program in build/fuzz/tests/fuzz/quillor_fuzz_"$only"*; do
    [ -x "$program" ] || continue
    name=${program##*_fuzz_}
    mkdir -p "$found" "build/fuzz/corpus/$name"
    echo "== $name"
    # New inputs go to the first folder; the one of the project is only read.
    "$program" "$(how_long "$name")" -max_len=4096 -timeout=20 -rss_limit_mb=4096 -seed=1 \
        -artifact_prefix="$found/$name-" "build/fuzz/corpus/$name" "tests/fuzz/corpus/$name" \
        >"build/fuzz/$name.log" 2>&1 || {
        failed=$((failed + 1))
        tail -n 40 "build/fuzz/$name.log"
    }
    grep '^Done' "build/fuzz/$name.log" || true
done
[ "$failed" -eq 0 ]
