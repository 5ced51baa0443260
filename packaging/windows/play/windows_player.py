"""A player of the packed Windows program: it runs under Wine on a virtual desktop.

Wine gives no accessibility tree to read, so what is seen are window titles,
pictures and files; what is done is done with real keys.
"""

import os
import shutil
import subprocess
import unittest
from pathlib import Path

from harness.hands import Hands
from harness.virtual_desktop import VirtualDesktop
from harness.waiting import until
from harness.words import ENGLISH, SPANISH
from Xlib import X, display

PATIENCE = 60.0  # seconds; a first start under Wine takes its time
PACKED = Path(os.environ["QUILLOR_PACKED"])  # the unpacked zip
PICTURES = Path(os.environ["QUILLOR_PICTURES"])
WINE = {
    "WINEPREFIX": os.environ["WINEPREFIX"],
    "WINEDEBUG": "-all",
    "WINEDLLOVERRIDES": "mscoree,mshtml=",
}


class WineDesktop(VirtualDesktop):
    def _start(self):
        super()._start()
        # Wine knows whole keyboards only, not single keys that are added to one.
        self.run(["setxkbmap", "es"])
        # Keys are held down here for as long as a window needs to open.
        connection = display.Display(self.environment["DISPLAY"])
        connection.change_keyboard_control(auto_repeat_mode=X.AutoRepeatModeOff)
        connection.sync()
        connection.close()

    def _make_environment(self):
        environment = super()._make_environment()
        # The program has to find its platform by itself.
        del environment["QT_QPA_PLATFORM"]
        return {**environment, **WINE}


class WindowsPlayer(unittest.TestCase):
    english = False
    packs = False  # whether the topics that come with the game are there to be laid out

    def setUp(self):
        self.words = ENGLISH if self.english else SPANISH
        self.process = None
        self.desktop = WineDesktop()
        self.addCleanup(self.desktop.close)
        self.addCleanup(self.end_windows)
        self.hands = Hands(self.desktop)
        self.folder = self.desktop.scratch / "Juego de ñandú Ж"
        shutil.copytree(PACKED, self.folder)
        if not self.packs:
            shutil.rmtree(self.folder / "packs")
        self.packed = self.files()
        if self.english:
            self.put("English.txt", "")

    def end_windows(self):
        """Ends all programs of that Windows, which keeps to the display it was started on."""
        subprocess.run(["wineserver", "-k"], env=self.desktop.environment, check=False)
        if self.process is not None:
            self.process.wait()

    # The folder

    def put(self, name, text):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(text.replace("\n", "\r\n").encode("cp1252"))

    def get(self, name):
        return (self.folder / name).read_bytes()

    def files(self):
        found = self.folder.rglob("*")
        return {str(path.relative_to(self.folder)) for path in found if path.is_file()}

    def new_files(self):
        """What the program has added to its folder."""
        return self.files() - self.packed

    # The program

    def start(self, *arguments):
        with open(self.desktop.scratch / "program.log", "wb") as log:
            self.process = self.desktop.start_program(
                ["wine", str(self.folder / "Quillor.exe"), *arguments], {}, log
            )

    def start_at_menu(self):
        self.start()
        self.expect_title(self.words.menu_title)

    def titles(self):
        windows = self.desktop.windows
        return [windows.title(window) for window in windows.ids()]

    def title(self):
        active = self.desktop.windows.active()
        return None if active is None else self.desktop.windows.title(active)

    def expect_title(self, title):
        """Waits until the window with the keyboard has that title."""
        until(lambda: self.title() == title, lambda: f"the title {title!r} among {self.titles()}",
              PATIENCE)

    def expect_file(self, name, content):
        """Waits until a file holds exactly those bytes."""
        path = self.folder / name
        until(lambda: path.exists() and path.read_bytes() == content, f"{name} as {content!r}",
              PATIENCE)

    def key(self, *names):
        self.hands.key(*names)

    def open(self, key, title):
        """Holds a key down until the window that it opens, or comes back to, is there.

        Wine would take a key that comes up between two windows for held down ever after.
        """
        self.desktop.run(["xdotool", "keydown", key])
        try:
            self.expect_title(title)
        finally:
            self.desktop.run(["xdotool", "keyup", key])

    # What is on the screen

    def picture(self, name):
        """Leaves a picture of the active window and returns its file."""
        PICTURES.mkdir(parents=True, exist_ok=True)
        target = PICTURES / f"windows-{name}.png"
        self.desktop.run(["import", "-window", str(self.desktop.windows.active()), str(target)])
        return target

    def pixels(self, name, color):
        """How many pixels of the active window have exactly that colour."""
        shown = self.picture(name)
        counted = self.desktop.run(["convert", str(shown), "-fill", "black", "+opaque", color,
                                    "-fill", "white", "-opaque", color, "-format",
                                    "%[fx:round(mean*w*h)]", "info:"])
        return int(float(counted))

    def expect_much_of(self, color, name):
        until(lambda: self.pixels(name, color) > 5000, f"much of {color} in {name}", PATIENCE)
