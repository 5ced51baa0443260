"""Without the display font the start screen stays and offers to get it."""

import shutil

from harness import processes
from harness.opener import Opener
from harness.player import Player
from harness.program import executable
from harness.waiting import until

MESSAGE = "La fuente 'Arial Rounded MT Bold' no está instalada en la PC."


class FontMissing(Opener, Player):
    def setUp(self):
        super().setUp()
        self.put_settings()

    def start_without_font(self):
        """A copy of the program has no typefaces beside it."""
        copy = self.desktop.scratch / "bare" / "quillor"
        copy.parent.mkdir()
        shutil.copy(executable(), copy)
        self.start(environment=self.with_opener(), binary=copy)
        self.expect("lblManual", MESSAGE)
        return copy

    def test_page_is_opened_and_the_program_started_anew(self):
        copy = self.start_without_font()
        self.expect("lblAction", "BUSCAR FUENTE")
        self.picture("font-missing")
        self.key("f")
        self.expect("lblAction", "REINICIAR JUEGO")
        self.expect_opened(lambda text: text.startswith("http"))
        first = self.program.process.pid
        self.key("r")
        self.assertEqual(self.program.wait_for_end(), 0)
        until(lambda: self.others_running(copy, first), "the program to start anew")

    def others_running(self, binary, but):
        """The processes of that binary, one excepted."""
        found = []
        for pid in processes.marked_with(str(self.desktop.scratch)):
            try:
                if pid != but and processes.binary(pid) == binary:
                    found.append(pid)
            except OSError:
                continue  # ended meanwhile
        return found

    def test_font_file_is_opened_where_there_is_one(self):
        font = self.put("ARLRDBD.ttf", b"not read here")
        self.start_without_font()
        self.expect("lblAction", "ABRIR FUENTE")
        self.click("lblAction")
        self.expect_opened(lambda text: text == f"{font}\n")

    def test_close_button_ends_the_program(self):
        self.start_without_font()
        self.click("lblEsc")
        self.expect_end()

    def test_title_bar_ends_the_program(self):
        self.start_without_font()
        self.close_window()
        self.expect_end()
