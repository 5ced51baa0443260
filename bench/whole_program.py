#!/usr/bin/python3
"""The whole program beside one that shows an empty window, in one run and by turns: how long
it takes to start, how much memory it takes, and what it costs to wait and to guess.

    bench/whole_program.py [ROUNDS] [--keep]

Builds both as they are released. The table has the median of the rounds, its goal and their
ratio, above 1 the goal is missed; and the ratio to what was kept in bench/baseline.json.
--keep keeps this run there, and its table in README.md.
"""

import argparse
import json
import statistics
import subprocess

from programs import CLOCK, ROOT, TRANSITION, Bench

BUILD = ROOT / "build" / "whole"
BASELINE = ROOT / "bench" / "baseline.json"
MARKS = ("<!-- what it costs -->\n", "<!-- end -->\n")

# What is measured: as the readers know it, in what unit, and what it may be at most.
ROWS = {
    "start": ("from its start to the first screen", "of an empty window's", 1.3),
    "memory in the menu": ("memory in the menu", "of an empty window's", 1.3),
    "memory in a game": ("memory in a game", "of an empty window's", 1.4),
    "word: start": ("from its start to the first screen", "of a window's with a word", None),
    "word: memory in the menu": ("memory in the menu", "of a window's with a word", None),
    "word: memory in a game": ("memory in a game", "of a window's with a word", None),
    "waiting": ("waiting in a game", "% of a core", 0.1),
    "waiting, clock": ("waiting while the clock runs", "% of a core", 0.15),
    "waiting, transition": ("waiting while the colour changes", "% of a core", 0.5),
    "key, median": ("a key at a scale of 200 %, median", "ms of a core", 0.4),
    "key, 99th percentile": ("a key at a scale of 200 %, 99th percentile", "ms of a core", 2),
    "1000 topics": ("loading 1,000 topics", "of reading their files", 1.3),
    "32767 topics": ("loading 32,767 topics", "of reading their files", 1.3),
    "size": ("the program without what it carries", "MB", 1.2),
    "guess": ("a guess with all that follows, without a window", "µs", 2.35),
}


def build():
    options = ["--preset", "release", "-B", BUILD, "-DQUILLOR_BENCH=ON"]
    subprocess.run(["cmake", *options], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", BUILD], cwd=ROOT, check=True)


def measure_programs(bench, rounds):
    for _ in range(rounds):
        bench.one_round()
    for _ in range(max(rounds // 5, 1)):
        bench.wait("waiting")
        bench.wait("waiting, clock", CLOCK)
        bench.wait("waiting, transition", TRANSITION)
    bench.keys(games=max(rounds // 2, 1))


def measure_pieces(bench, rounds):
    """Google Benchmark takes the repetitions of all by turns."""
    command = [
        BUILD / "bench" / "quillor_bench", "--benchmark_filter=Topics|playGames",
        f"--benchmark_repetitions={rounds}", "--benchmark_enable_random_interleaving=true",
        "--benchmark_min_time=0.05", "--benchmark_format=json",
    ]
    done = subprocess.run(command, capture_output=True, check=True)
    times = {}
    for run in json.loads(done.stdout)["benchmarks"]:
        if run["run_type"] == "iteration":
            times.setdefault(run["name"], []).append(run)
    for count in (1000, 32767):
        load, read = ([run["real_time"] for run in times[f"{what}Topics/{count}"]]
                      for what in ("load", "read"))
        bench.note(f"{count} topics", statistics.median(load) / statistics.median(read))
    guesses = statistics.median(run["guesses"] for run in times["playGames"])
    bench.note("guess", 1e6 / guesses)


def measure_size(bench):
    program = bench.desktop.scratch / "quillor"
    subprocess.run(["strip", "-o", program, bench.game], check=True)
    symbols = subprocess.run(
        ["nm", "--print-size", bench.game], capture_output=True, text=True, check=True
    ).stdout
    carried = sum(int(line.split()[1], 16) for line in symbols.splitlines()
                  if "qt_resource_data" in line)
    bench.note("size", (program.stat().st_size - carried) / 1e6)


def table(found, before):
    lines = ["| | now | | goal | ratio to it | to the baseline |", "|---|---|---|---|---|---|"]
    for name, (what, unit, goal) in ROWS.items():
        value = found[name]
        to_goal = f"{goal:g} | {value / goal:.2f}" if goal else "- | -"
        to_before = f"{value / before[name]:.2f}" if name in before else "-"
        lines.append(f"| {what} | {value:.2f} | {unit} | {to_goal} | {to_before} |")
    return "".join(line + "\n" for line in lines)


def keep(found):
    BASELINE.write_text(json.dumps(found, indent=2) + "\n")
    readme = ROOT / "README.md"
    before, rest = readme.read_text().split(MARKS[0])
    after = rest.split(MARKS[1])[1]
    readme.write_text(before + MARKS[0] + table(found, {}) + MARKS[1] + after)


def main():
    words = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    words.add_argument("rounds", nargs="?", type=int, default=15)
    words.add_argument("--keep", action="store_true")
    wish = words.parse_args()
    build()
    bench = Bench(BUILD)
    try:
        measure_programs(bench, wish.rounds)
        measure_pieces(bench, wish.rounds)
        measure_size(bench)
    finally:
        bench.desktop.close()
    found = {name: round(statistics.median(values), 3) for name, values in bench.found.items()}
    before = json.loads(BASELINE.read_text()) if BASELINE.exists() else {}
    print(table(found, before), end="")
    if wish.keep:
        keep(found)


if __name__ == "__main__":
    main()
