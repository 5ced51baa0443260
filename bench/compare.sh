#!/usr/bin/env bash
# Is this commit slower than another one? bench/compare.sh [COMMIT, the last one otherwise]
# Builds both apart and runs them by turns, so that a busy machine hits both alike.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
other=$(git rev-parse --verify "${1:-HEAD~1}^{commit}")
work=$PWD/build/compare
rounds=5

# build FOLDER SOURCE: the benchmarks of a source tree, optimised.
build() {
    cmake -S "$2" -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=Release -DQUILLOR_BENCH=ON \
        -DQUILLOR_TESTS=OFF -DQUILLOR_SHELL=OFF >/dev/null
    cmake --build "$1" --target quillor_bench
}

mkdir -p "$work"
git worktree remove --force "$work/source" 2>/dev/null || true
git worktree add --detach --force "$work/source" "$other" >/dev/null
trap 'git worktree remove --force "$work/source"' EXIT
build "$work/before" "$work/source"
build "$work/now" .

rm -f "$work"/*.csv
for ((round = 0; round < rounds; round++)); do
    for side in before now; do
        "$work/$side/bench/quillor_bench" --benchmark_format=csv --benchmark_min_time=0.2 \
            2>/dev/null >>"$work/$side.csv"
    done
done

# The best round of each benchmark: what the machine can do undisturbed.
best() { awk -F, '/^"/ { t = $4; if (!($1 in b) || t < b[$1]) b[$1] = t } END { for (n in b) print n, b[n] }' "$1" | sort; }
join <(best "$work/before.csv") <(best "$work/now.csv") |
    awk '{ printf "%-28s %12.4g -> %12.4g  %+6.1f %%\n", $1, $2, $3, ($3 / $2 - 1) * 100 }'
