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

rm -f "$work"/*.txt
for ((round = 0; round < rounds; round++)); do
    for side in before now; do
        "$work/$side/bench/quillor_bench" --benchmark_min_time=0.2 2>/dev/null >>"$work/$side.txt"
    done
done

# The best round of each benchmark: what the machine can do undisturbed. Its
# lines are: name, time, unit, processor time, unit, iterations, perhaps a rate.
best() {
    awk '$5 ~ /^[num]?s$/ {
             if (!($1 in time) || $4 < time[$1]) {
                 time[$1] = $4; unit[$1] = $5; rate[$1] = NF > 6 ? $7 : "-"
             }
         }
         END { for (name in time) print name, time[name], unit[name], rate[name] }' "$1" | sort
}
join <(best "$work/before.txt") <(best "$work/now.txt") | awk '{
    printf "%-20s %10.4g %s -> %10.4g %s  %+6.1f %%", $1, $2, $3, $5, $6, ($5 / $2 - 1) * 100
    print $7 == "-" ? "" : "   " $7
}'
