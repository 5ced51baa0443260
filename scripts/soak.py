#!/usr/bin/python3
"""Gives the real program random keys, clicks, menus and boxes at full speed, and watches
its memory, handles and threads:

    scripts/soak.py PROGRAM [MINUTES] [SEED]

PROGRAM is an installed one, with its fonts beside it. A line each ten seconds; at the end
what the last fifth has more than the second fifth, and 1 as the exit code where that is no
longer flat or the program did not end by itself. It takes an hour of nobody's time:
`echo 19 >/proc/self/autogroup` before leaves the machine to others.
"""

import collections
import random
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "window"))

from Xlib import XK, X, display, error  # noqa: E402
from Xlib.ext import xtest  # noqa: E402

from harness.virtual_desktop import VirtualDesktop  # noqa: E402

SAMPLE = 10  # seconds
TOPIC = "LETRAS {}\r\n" + "".join(f"UNA FRASE {n}\r\nSOL Y LUNA {n}\r\n" for n in "ABCDE")
LETTERS = list("abcdefghijklmnopqrstuvwxyz0123456789") + ["space"]
# Not Ctrl+Q and Alt+F4: the soak is of one run.
KEYS = ["Return", "Escape", "BackSpace", "Tab", "Up", "Down", "Left", "Right", "Home", "End",
        "Delete", "F1", "F2", "F4", "F10", "F11", "Menu", "question", "exclam"]
CONTROLLED = list("seloiphracxv")
MOST_MORE = {"memory": 1.03, "handles": 1, "threads": 1}


class Monkey:
    def __init__(self, desktop, seed):
        self.random = random.Random(seed)
        self.desktop = desktop
        self.windows = desktop.windows
        self.display = display.Display(desktop.environment["DISPLAY"])
        self.events = 0
        self.seen = collections.Counter()  # titles of the windows that were clicked on

    def _fake(self, kind, detail, **place):
        xtest.fake_input(self.display, kind, detail, **place)
        self.events += 1

    def key(self, name, held=None):
        codes = [self.display.keysym_to_keycode(XK.string_to_keysym(each))
                 for each in ([held] if held else []) + [name]]
        for code in codes:
            self._fake(X.KeyPress, code)
        for code in reversed(codes):
            self._fake(X.KeyRelease, code)

    def click(self):
        window = self.windows.active()
        place = self.windows.place(window) if window else None
        if place is None:
            return self.come_back()
        self.seen[self.windows.title(window)] += 1
        left, top, width, height = place
        x = left + self.random.randrange(max(width, 1))
        y = top + self.random.randrange(max(height, 1))
        self._fake(X.MotionNotify, 0, x=x, y=y)
        button = self.random.choice([1, 1, 1, 1, 3, 4, 5])
        self._fake(X.ButtonPress, button)
        self._fake(X.ButtonRelease, button)

    def come_back(self):
        """To the window: the wheel beside it and some keys lead to another desktop."""
        for window in self.windows.ids()[-1:]:
            self.desktop.run(["xdotool", "windowactivate", str(window)], check=False)

    def menu(self):
        """One of the entries above the last one, which ends the program."""
        self.key("F10")
        for _ in range(self.random.randrange(5)):
            self.key("Down")
        self.key(self.random.choice(["Return", "Escape"]))

    def act(self):
        what = self.random.randrange(20)
        if what < 8:
            self.key(self.random.choice(LETTERS))
        elif what < 13:
            self.key(self.random.choice(KEYS))
        elif what < 14:
            self.key(self.random.choice(CONTROLLED), "Control_L")
        elif what < 16:
            self.menu()
        else:
            self.click()
        self.display.sync()


def wait_until_handled(pid):
    """Until the program waits for more: what piles up before it would be no play any more."""
    end = time.monotonic() + 1
    time.sleep(0.004)
    while time.monotonic() < end:
        if Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] in "SZ":
            return
        time.sleep(0.002)


def sample(pid):
    lines = Path(f"/proc/{pid}/status").read_text().splitlines()
    status = dict(line.split(":", 1) for line in lines)
    return {
        "memory": int(status["RssAnon"].split()[0]),
        "handles": len(list(Path(f"/proc/{pid}/fd").iterdir())),
        "threads": int(status["Threads"]),
    }


def prepare(desktop):
    """A program folder, and a desktop on which nothing else is opened."""
    folder = desktop.scratch / "program"
    for name in ("Temas", "Topics"):
        (folder / name).mkdir(parents=True)
        for number in range(3):
            (folder / name / f"{number}.txt").write_text(TOPIC.format(number))
    (folder / "Quillor-Manual.txt").write_text("manual\n")
    opener = desktop.scratch / "bin" / "xdg-open"
    opener.parent.mkdir()
    opener.write_text("#!/bin/sh\n")
    opener.chmod(0o755)
    desktop.environment.update(
        PATH=f"{opener.parent}:{desktop.environment['PATH']}", SDL_AUDIODRIVER="dummy"
    )
    return folder


def play(desktop, program, minutes, seed):
    """Samples of the longest run, and how often it had to be started."""
    folder = prepare(desktop)
    monkey = Monkey(desktop, seed)
    end = time.monotonic() + minutes * 60
    runs = []
    while time.monotonic() < end:
        process = subprocess.Popen([program, "--folder", str(folder)], env=desktop.environment)
        runs.append([])
        following = time.monotonic() + SAMPLE
        while time.monotonic() < end and process.poll() is None:
            try:
                monkey.act()
                wait_until_handled(process.pid)
            except error.XError:
                continue  # the window has gone meanwhile
            if time.monotonic() > following and process.poll() is None:
                following += SAMPLE
                runs[-1].append(sample(process.pid))
                print(f"run {len(runs)}, {monkey.events} events:", runs[-1][-1], flush=True)
        if process.poll() is None:
            process.terminate()
            process.wait(20)
        elif process.returncode != 0:
            raise SystemExit(f"the program ended with {process.returncode}")
    print(*(f"{count} clicks on {title!r}" for title, count in monkey.seen.most_common()), sep="\n")
    return max(runs, key=len), len(runs), monkey.events


def is_flat(samples):
    fifth = len(samples) // 5
    if fifth == 0:
        return True
    flat = True
    for name, more in MOST_MORE.items():
        before = statistics.median(each[name] for each in samples[fifth:2 * fifth])
        after = statistics.median(each[name] for each in samples[-fifth:])
        print(f"{name}: {before:g} in the second fifth, {after:g} in the last")
        flat = flat and (after <= before * more if more > 1 else after <= before)
    return flat


def main():
    program = Path(sys.argv[1]).resolve()
    minutes = float(sys.argv[2]) if len(sys.argv) > 2 else 30
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    desktop = VirtualDesktop()
    try:
        samples, runs, events = play(desktop, program, minutes, seed)
    finally:
        desktop.close()
    print(f"{events} events, {runs} runs, the longest of {len(samples) * SAMPLE} s")
    sys.exit(0 if is_flat(samples) else 1)


if __name__ == "__main__":
    main()
