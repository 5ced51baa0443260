"""What every scenario starts with: a desktop, a program folder and the program."""

import functools
import os
import re
import shutil
import signal
import types
import unittest
from pathlib import Path

from .dialogs import Dialogs
from .eyes import Eyes
from .hands import Hands
from .program import Program
from .tree import Gone, State
from .virtual_desktop import VirtualDesktop
from .waiting import until


def pictures_folder():
    """Where pictures of the windows are left for people to look at."""
    folder = Path(os.environ["QUILLOR_PICTURES"])
    folder.mkdir(parents=True, exist_ok=True)
    return folder


class Scenario(Eyes, Dialogs, unittest.TestCase):
    maxDiff = None
    desktop_kind = VirtualDesktop
    desktop_user = None  # runs everything as that user, which only root can do
    # Lines that the program may write in this scenario; any other fails it.
    expected_noise = ()

    def __init__(self, method="runTest"):
        super().__init__(method)
        setattr(self, method, self._watched(getattr(self, method)))

    def _watched(self, test):
        """The test, leaving a picture and a description of the windows when it fails."""

        @functools.wraps(test)
        def watched(self):
            try:
                test()
            except unittest.SkipTest:
                raise
            except BaseException:
                self._leave_traces()
                raise

        # Bound, because the loader takes a plain function for a static one.
        return types.MethodType(watched, self)

    def setUp(self):
        self.program = None
        for old in pictures_folder().glob(f"{self._traces_name()}.*"):
            old.unlink()
        self.desktop = self.desktop_kind(self.desktop_user)
        self.addCleanup(self.desktop.close)
        self.addCleanup(self.end_program)
        self.hands = Hands(self.desktop)
        self.folder = self.desktop.scratch / "program"
        self.folder.mkdir()
        self.desktop.give(self.folder)

    # The files

    def put(self, name, content):
        """A file in the program folder: text is stored as Windows-1252 with CR LF."""
        path = self.folder / name
        if not path.parent.exists():
            path.parent.mkdir(parents=True)
            self.desktop.give(path.parent)
        if isinstance(content, str):
            content = content.replace("\n", "\r\n").encode("cp1252")
        path.write_bytes(content)
        self.desktop.give(path)
        return path

    def get(self, name):
        """The bytes of a file of the program folder."""
        return (self.folder / name).read_bytes()

    def files(self):
        """Every file of the program folder, by its path in it."""
        found = self.folder.rglob("*")
        return sorted(str(path.relative_to(self.folder)) for path in found if path.is_file())

    # The program

    def start(self, *arguments, environment=None, binary=None, own_folder=False):
        """With a folder of its own the program is not told which one to use."""
        environment = {"QUILLOR_LOG": "1", **(environment or {})}
        self.program = Program(
            self.desktop, self.folder, arguments, environment, binary, own_folder
        )

    def end_program(self):
        """Ends the program; one that ended in any way but on request fails the test."""
        program, self.program = self.program, None
        if program is None:
            return
        windows = [] if program.has_ended() else program.titles()
        code = program.stop()
        noise = [line for line in program.noise() if not self._is_expected(line)]
        self.assertIn(code, (0, -signal.SIGTERM), "how the program ended:\n" + "\n".join(noise))
        self.assertEqual(noise, [], "what the program wrote")
        self.assertEqual(len(windows), len(set(windows)), f"windows left behind: {windows}")

    def _is_expected(self, line):
        return any(re.search(pattern, line) for pattern in self.expected_noise)

    # What the player does

    def click(self, control_id, button=1, times=1):
        """A click on a control that is on show and takes input."""
        self.hands.click(self.ready(control_id), button, times)

    def ready(self, control_id):
        """Waits until a control is on show and takes input; returns its place."""

        def look():
            try:
                node = self.program.shown(control_id)
                return node.place if node is not None and node.has(State.ENABLED) else None
            except Gone:
                return None

        return until(look, f"{control_id} to be on show and enabled")

    def key(self, *names):
        self.hands.key(*names)

    def type(self, text):
        self.hands.type(text)

    def close_window(self):
        """A click on the close button that the window manager draws."""
        windows = self.desktop.windows
        window = windows.active()
        left, top, width, _ = windows.place(window)
        _, right, above, _ = windows.frame(window)
        side = above // 2
        self.hands.click((left + width + right - side * 2, top - above, side * 2, above))

    def expect_end(self):
        """Waits until the program has ended well and taken its windows with it."""
        self.assertEqual(self.program.wait_for_end(), 0)
        until(lambda: self.desktop.windows.ids() == [], "no window to be left")

    # Pictures

    def picture(self, name):
        """Leaves a picture of the active window."""
        window = self.desktop.windows.active()
        target = pictures_folder() / f"{name}.png"
        self.desktop.run(["import", "-window", str(window or "root"), str(target)])
        self.assertGreater(target.stat().st_size, 0)

    def _traces_name(self):
        return "FAILED-" + re.sub(r"[^A-Za-z0-9]+", "-", self.id())

    def _leave_traces(self):
        target = pictures_folder() / self._traces_name()
        try:
            self.desktop.run(["import", "-window", "root", f"{target}.png"])
            if self.program is not None:
                shutil.copy(self.desktop.scratch / "program.log", f"{target}.log")
                Path(f"{target}.txt").write_text(self.program.describe())
        except Exception as problem:  # the failure itself is what has to be reported
            print(f"no traces left: {problem}")
