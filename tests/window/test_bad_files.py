"""Settings, colours and pictures that are not as they should be."""

import os
import shutil

from harness.bad_input import BadInput
from harness.jpeg import grey_jpeg
from harness.program import executable
from harness.waiting import until

NO_TEXT = bytes(range(256))


class BadSettings(BadInput):
    """One file of each for the real program; more are tried on its rules alone."""

    def setUp(self):
        super().setUp()
        self.put_topic("A", "PRIMERO")
        self.put_topic("B", "SEGUNDO")
        self.put("Quillor-Config.ini", NO_TEXT)
        self.put("Color.txt", NO_TEXT)

    def test_game_is_played_with_settings_and_a_color_that_are_no_text(self):
        self.assertEqual(self.survives(), self.words.select_topic)
        self.wins("SEGUNDO")

    def test_settings_that_are_no_text_are_changed(self):
        self.start_at_menu()
        self.key("s")
        self.expect_title(self.words.settings_title)
        self.click("lblDs(1)")
        self.expect_design(1)

    def expect_design(self, design):
        lines = 11
        until(
            lambda: self.get("Quillor-Config.ini").split(b"\r\n")[0] == b"%d" % design
            and self.get("Quillor-Config.ini").count(b"\r\n") == lines,
            f"design {design} in {lines} lines",
        )


class BadPicture(BadInput):
    def setUp(self):
        super().setUp()
        self.put_topic("A", "PRIMERO")

    def test_file_that_is_no_picture_does_not_stop_the_program(self):
        self.put("Pic.jpg", b"this is no picture" * 100)
        self.start_at_menu()
        self.key("a")
        self.expect_title(self.words.arcade_title)
        self.program.check_alive()

    def test_picture_of_twenty_thousand_pixels_is_shown(self):
        self.put("Pic.jpg", grey_jpeg(20000, 304))
        self.survives()
        self.wins("PRIMERO")
        self.picture("wide-background")

    def test_pipe_of_that_name_does_not_hold_up_the_start(self):
        os.mkfifo(self.folder / "Pic.jpg")
        self.start_at_menu()
        self.key("a")
        self.expect_title(self.words.arcade_title)
        self.program.check_alive()

    def test_picture_of_more_than_a_hundred_megapixels_is_left_out(self):
        self.put("Pic.jpg", grey_jpeg(20000, 6000))
        self.survives()
        self.wins("PRIMERO")


class KilledRun(BadInput):
    def test_half_saved_files_of_one_go_at_the_next_start(self):
        self.put_topic("A", "PRIMERO")
        for folder in ("", "Temas/", "Topics/"):
            self.put(folder + "Quillor-Saving-0123456789abcdef.tmp", b"half of a fi")
        self.start_at_menu()
        self.assertEqual(self.files(), ["Quillor-Config.ini", "Temas/A.txt"])


class ProtectedFolder(BadInput):
    """As a user who may not do everything: root may always."""

    desktop_user = "nobody" if os.geteuid() == 0 else None

    def protect(self, mode, *folders):
        for folder in folders:
            if self.desktop_user is not None:
                os.chown(folder, 0, 0)
            folder.chmod(mode)
            self.addCleanup(folder.chmod, 0o755)

    def program_for_all(self):
        """A copy of the program where every user gets at it."""
        target = self.desktop.scratch / "installed"
        target.mkdir()
        shutil.copytree(executable().parent / "fonts", target / "fonts")
        return shutil.copy(executable(), target)

    def test_game_is_played_and_nothing_is_left(self):
        self.put_topic("A", "PRIMERO")
        (self.folder / "Quillor-Config.ini").unlink()
        self.protect(0o555, self.folder, self.folder / "Temas")
        self.start(binary=self.program_for_all())
        self.answer(f"{self.words.nothing_is_saved}\n\n{self.folder}", self.words.ok)
        self.expect_title(self.words.menu_title)
        self.open_arcade()
        self.key("Return")
        self.wins("PRIMERO")
        self.assertEqual(self.files(), ["Temas/A.txt"])

    def test_sample_is_not_written_over_topics_that_cannot_be_listed(self):
        self.put_topic("DEMO", "PRIMERO")
        self.protect(0o333, self.folder / "Temas")
        self.assertEqual(self.survives(binary=self.program_for_all()), "box")
