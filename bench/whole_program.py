#!/usr/bin/python3
"""The whole program beside one that shows an empty window, in one run and by turns:
how long it takes to start, how much memory it takes, and what it costs to wait.

    bench/whole_program.py FOLDER [ROUNDS]

FOLDER is a build without debugging help, with benchmarks: build/ci. The table has the
median of the rounds, its goal, and their ratio: above 1 the goal is missed.
"""

import os
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "window"))

from harness.virtual_desktop import VirtualDesktop  # noqa: E402

TICKS = os.sysconf("SC_CLK_TCK")
WAIT = 10  # seconds that the processor's time is counted for
TOPIC = "LETRAS [ESPAÑOL]\r\n" + "".join(f"UNA FRASE {n}\r\n" for n in "ABCDE")
CLOCK, TRANSITION = 6, 9  # lines of the settings file


class Started:
    """A program on the virtual desktop, and the milliseconds until its window stood."""

    def __init__(self, desktop, command):
        self.desktop = desktop
        begin = time.perf_counter()
        self.process = subprocess.Popen(
            list(map(str, command)), env=desktop.environment,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )
        self.until(lambda: self.window() is not None)
        self.start = (time.perf_counter() - begin) * 1000

    def until(self, holds):
        end = time.monotonic() + 20
        while not holds():
            if time.monotonic() > end:
                raise TimeoutError("the program does not come on")
            time.sleep(0.001)

    def window(self):
        windows = self.desktop.windows
        found = [each for each in windows.ids() if windows.process(each) == self.process.pid]
        return found[0] if found else None

    def title(self):
        window = self.window()
        return "" if window is None else self.desktop.windows.title(window)

    def key(self, *names):
        self.desktop.run(["xdotool", "key", "--delay", "60", *names])

    def memory(self):
        """Megabytes that are resident."""
        status = Path(f"/proc/{self.process.pid}/status").read_text()
        return int(status.split("VmRSS:")[1].split()[0]) / 1024

    def waiting(self):
        """Percent of a core while nobody does anything."""
        before = self.ticks()
        time.sleep(WAIT)
        return (self.ticks() - before) / TICKS / WAIT * 100

    def ticks(self):
        fields = Path(f"/proc/{self.process.pid}/stat").read_text().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])

    def end(self):
        self.process.terminate()
        self.process.wait()


class Bench:
    def __init__(self, build):
        self.desktop = VirtualDesktop()
        self.game = build / "qt" / "quillor"
        self.empty = build / "bench" / "quillor_empty_window"
        self.folder = self.desktop.scratch / "program"
        (self.folder / "Temas").mkdir(parents=True)
        (self.folder / "Temas" / "LETRAS.txt").write_bytes(TOPIC.encode("cp1252"))
        self.found = {}

    def note(self, what, value):
        self.found.setdefault(what, []).append(value)

    def settings(self, *switched_on):
        lines = ["1" if line in switched_on else "0" for line in range(11)]
        (self.folder / "Quillor-Config.ini").write_text("\r\n".join(lines) + "\r\n")

    def play(self):
        """Starts a game and brings it to where a phrase is guessed."""
        game = Started(self.desktop, [self.game, "--folder", self.folder])
        game.until(lambda: game.title().endswith("Inicio"))
        time.sleep(1)
        self.menu_memory = game.memory()
        game.key("a")
        game.until(lambda: "arcade" in game.title())
        time.sleep(0.5)
        game.key("Return")
        time.sleep(0.5)
        game.key("Return")
        time.sleep(1.5)
        game.key("a", "z")
        time.sleep(1.5)  # the letters have come to rest
        return game

    def round(self):
        self.settings()
        empty = Started(self.desktop, [self.empty])
        time.sleep(1)
        empty_memory = empty.memory()
        empty.end()
        game = self.play()
        self.note("start", game.start / empty.start)
        self.note("memory in the menu", self.menu_memory / empty_memory)
        self.note("memory in a game", game.memory() / empty_memory)
        game.end()

    def wait(self, name, *switched_on):
        self.settings(*switched_on)
        game = self.play()
        self.note(name, game.waiting())
        game.end()


# What is measured, and what it may be at most.
GOALS = {
    "start": ("of the empty window's", 1.3),
    "memory in the menu": ("of the empty window's", 1.3),
    "memory in a game": ("of the empty window's", 1.4),
    "waiting in a game": ("% of a core", 0.1),
    "waiting with the clock": ("% of a core", 0.15),
    "waiting with the colour transition": ("% of a core", 0.5),
}


def main():
    build = Path(sys.argv[1]).resolve()
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    bench = Bench(build)
    try:
        for _ in range(rounds):
            bench.round()
        for _ in range(max(rounds // 5, 1)):
            bench.wait("waiting in a game")
            bench.wait("waiting with the clock", CLOCK)
            bench.wait("waiting with the colour transition", TRANSITION)
    finally:
        bench.desktop.close()
    print(f"{'':36}{'median':>8} {'goal':>8} {'ratio':>7}")
    for name, (unit, goal) in GOALS.items():
        median = statistics.median(bench.found[name])
        print(f"{name:36}{median:8.2f} {goal:8.2f} {median / goal:7.2f}  {unit}")


if __name__ == "__main__":
    main()
