"""Programs on a virtual desktop, and what they cost there."""

import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "window"))

from harness.virtual_desktop import VirtualDesktop  # noqa: E402

WAIT = 10  # seconds that the processor's time is counted for
KEY = 0.012  # seconds until a key has been painted, and what moves has not moved on
LETTERS = "MURCIELAGOHYFNDKPTVWBXJQZ"  # of each phrase, so that none is a mistake
TOPIC = "LETRAS [ESPAÑOL]\r\n" + "".join(
    f"MURCIELAGO HOY FINDE KAPUT VW {last}\r\n" for last in ("BEX JQZ", "JQZ BEX", "XEB ZJQ")
)
CLOCK, TRANSITION = 6, 9  # lines of the settings file


class Started:
    """A program on the virtual desktop, and the milliseconds until its window stood."""

    def __init__(self, desktop, command, **more):
        self.desktop = desktop
        begin = time.perf_counter()
        self.process = subprocess.Popen(
            list(map(str, command)), env={**desktop.environment, **more},
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

    def size(self):
        """Of its window, in pixels."""
        return self.desktop.windows.place(self.window())[2:]

    def title(self):
        window = self.window()
        return "" if window is None else self.desktop.windows.title(window)

    def key(self, *names):
        self.desktop.run(["xdotool", "key", "--delay", "60", *names])

    def memory(self):
        """Megabytes that are resident."""
        status = Path(f"/proc/{self.process.pid}/status").read_text()
        return int(status.split("VmRSS:")[1].split()[0]) / 1024

    def busy(self):
        """Milliseconds of a processor that all of its threads have taken so far."""
        threads = Path(f"/proc/{self.process.pid}/task").glob("*/schedstat")
        return sum(int(each.read_text().split()[0]) for each in threads) / 1e6

    def waiting(self):
        """Percent of a core while nobody does anything."""
        before = self.busy()
        time.sleep(WAIT)
        return (self.busy() - before) / (WAIT * 1000) * 100

    def cost_of_key(self, name):
        """Milliseconds of a processor, from the press to all that follows from it at once."""
        before = self.busy()
        self.desktop.run(["xdotool", "keydown", name])
        time.sleep(KEY)
        cost = self.busy() - before
        self.desktop.run(["xdotool", "keyup", name])
        time.sleep(KEY)
        return cost

    def end(self):
        self.process.terminate()
        self.process.wait()


class Bench:
    """The game of one build, and empty windows of the same size beside it."""

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

    def start(self, **more):
        game = Started(self.desktop, [self.game, "--folder", self.folder], **more)
        game.until(lambda: game.title().endswith("Inicio"))
        time.sleep(1)
        return game

    def play(self, game):
        """Brings it to where a phrase is guessed."""
        game.key("a")
        game.until(lambda: "arcade" in game.title())
        time.sleep(0.5)
        game.key("Return")
        time.sleep(0.5)
        game.key("Return")
        time.sleep(1.5)

    def one_round(self):
        self.settings()
        game = self.start()
        in_menu = game.memory()
        self.play(game)
        in_game = game.memory()
        started, size = game.start, game.size()
        game.end()
        for prefix, words in (("", []), ("word: ", ["Quillor"])):
            empty = Started(self.desktop, [self.empty, *size, *words])
            time.sleep(1)
            self.note(f"{prefix}start", started / empty.start)
            self.note(f"{prefix}memory in the menu", in_menu / empty.memory())
            self.note(f"{prefix}memory in a game", in_game / empty.memory())
            empty.end()

    def wait(self, name, *switched_on):
        self.settings(*switched_on)
        game = self.start()
        self.play(game)
        game.key("a")
        time.sleep(1.5)  # the letters have come to rest
        self.note(name, game.waiting())
        game.end()

    def keys(self, games):
        """Found letters and their cost, at twice the usual scale, in so many games."""
        self.settings()
        game = self.start(QT_SCALE_FACTOR="2")
        self.play(game)
        costs = []
        for _ in range(games):
            costs += [game.cost_of_key(letter) for letter in LETTERS[:-1].lower()]
            game.key(LETTERS[-1].lower())
            time.sleep(2)
            game.key("Return")
            time.sleep(1)
        game.end()
        self.note("key, median", statistics.median(costs))
        self.note("key, 99th percentile", statistics.quantiles(costs, n=100)[98])
