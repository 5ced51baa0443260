"""A second start in a folder that is played in, and folders that cannot be used."""

import os
import signal
import subprocess

from harness.hands import Hands
from harness.player import Player
from harness.program import executable
from harness.virtual_desktop import VirtualDesktop
from harness.waiting import until


class SecondStart(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def again(self, *arguments):
        """Starts the program once more; returns its process."""
        with open(self.desktop.scratch / "second.log", "wb") as log:
            process = self.desktop.start_program(
                [str(executable()), "--folder", str(self.folder), *arguments], {}, log
            )
        self.addCleanup(process.kill)
        return process

    def test_brings_the_first_to_the_front(self):
        self.desktop.run(["xdotool", "windowminimize", str(self.window)])
        until(lambda: self.desktop.windows.active() != self.window, "a minimized window")
        self.assertEqual(self.again().wait(20), 0)
        self.expect_title(self.words.menu_title)
        self.assertEqual(self.desktop.windows.active(), self.window)
        self.assertEqual(self.desktop.windows.ids(), [self.window])

    def test_hands_its_topics_to_the_first(self):
        topic = self.desktop.scratch / "NUEVO.txt"
        topic.write_bytes(b"NUEVO\r\nuna frase\r\notra frase\r\n")
        self.assertEqual(self.again(str(topic)).wait(20), 0)
        # Its title has no mark of the language, which is asked about.
        box = until(self.program.dialogs, "a question about the topic")[0]
        self.assertIn("NUEVO.txt", "".join(self._texts(box)))

    def test_leaves_a_box_of_the_first_where_it_is(self):
        self.open_arcade()
        self.play_topic("LETRAS")
        self.key("F2")
        self.expect_dialog(self.words.leave_game)
        self.assertEqual(self.again().wait(20), 0)
        self.answer(self.words.leave_game, self.words.no)

    def test_asks_where_the_first_hangs(self):
        self.program.process.send_signal(signal.SIGSTOP)
        try:
            second = self.again()
            until(lambda: len(self.desktop.windows.ids()) > 1, "a question")
            self.key("Escape")
            self.assertEqual(second.wait(20), 0)
        finally:
            self.program.process.send_signal(signal.SIGCONT)
        self.expect_title(self.words.menu_title)

    def test_plays_in_another_folder(self):
        other = self.desktop.scratch / "other"
        other.mkdir()
        self.folder, own = other, self.folder
        second = self.again()
        self.folder = own
        until(lambda: len(self.desktop.windows.ids()) == 2, "two windows")
        second.terminate()
        second.wait()

    def test_asks_a_player_on_another_desktop_whether_to_share(self):
        desktop = VirtualDesktop()
        self.addCleanup(desktop.close)
        with open(desktop.scratch / "second.log", "wb") as log:
            second = desktop.start_program(
                [str(executable()), "--folder", str(self.folder)], {}, log
            )
        self.addCleanup(second.kill)
        until(desktop.windows.ids, "a question")
        Hands(desktop).key("Return")
        other = desktop.windows
        until(lambda: self.words.menu_title in map(other.title, other.ids()), "the menu")
        # Both go on, and what either of them saves is whole.
        Hands(desktop).key("s", "4")
        until(lambda: self.get("Quillor-Config.ini").startswith(b"3"), "the second's design")
        self.key("s", "2")
        until(lambda: self.get("Quillor-Config.ini").startswith(b"1"), "the first's design")
        self.assertEqual(len(self.get("Quillor-Config.ini").split(b"\r\n")), 12)


class UnusableFolder(Player):
    def test_is_told_in_a_window_when_no_terminal_is_read(self):
        self.put("file", "")
        self.start("--folder", str(self.folder / "file"))
        until(lambda: self.desktop.windows.ids(), "a box")
        self.key("Return")
        self.assertEqual(self.program.wait_for_end(), 2)
        self.assertIn(str(self.folder / "file"), "\n".join(self.program.noise()))
        self.program = None

    def test_is_told_on_the_terminal_alone_when_it_is_read(self):
        self.put("file", "")
        told = subprocess.run(
            [str(executable()), "--folder", str(self.folder / "file")],
            env={**os.environ, **self.desktop.environment}, capture_output=True, timeout=20,
        )
        self.assertEqual(told.returncode, 2)
        self.assertIn(str(self.folder / "file"), told.stderr.decode())
