"""A folder that takes long to answer is waited for with words, and nothing is lost."""

import os

from harness.player import Player
from harness.waiting import until
from harness.words import ENGLISH


class SlowDisk(Player):
    def setUp(self):
        super().setUp()
        self.put_settings(line_0="2")
        self.put_topic("A", "LETRAS")
        self.before = {name: self.get(name) for name in self.files()}
        self.hold = self.desktop.scratch / "hold"
        self.hold.touch()
        self.addCleanup(self.hold.unlink, missing_ok=True)

    def start_held(self, name):
        """Starts the program on a disk that says nothing about a file of that name."""
        self.start(environment={
            "LD_PRELOAD": os.environ["QUILLOR_HELD_FILES"],
            "QUILLOR_HOLD": str(self.hold), "QUILLOR_HELD": name,
        })
        # In the system's language: the game's own is in the folder.
        self.expect_dialog(ENGLISH.waiting_for_folder)
        self.picture("waiting-for-the-folder")

    def expect_menu_once_it_answers(self):
        self.hold.unlink()
        self.expect_title(self.words.menu_title)
        until(lambda: len(self.desktop.windows.ids()) == 1, "the words to go")
        self.assertEqual({name: self.get(name) for name in self.files()}, self.before)

    def test_folder_that_answers_late_is_played_in(self):
        self.start_held(self.folder.name)
        self.expect_menu_once_it_answers()

    def test_topic_that_is_read_late_is_there(self):
        self.start_held("A.txt")
        self.expect_menu_once_it_answers()
        self.open_arcade()
        self.play_topic("LETRAS")

    def test_player_need_not_wait(self):
        self.start_held("A.txt")
        self.key("Escape")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.program = None
        self.assertEqual({name: self.get(name) for name in self.files()}, self.before)
