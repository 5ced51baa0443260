"""The game menu, its keys, and what is handed to other programs."""

import re
from pathlib import Path

from harness.opener import Opener
from harness.player import Player
from harness.waiting import until

SETTING = {"ctrl+s": 1, "ctrl+o": 3, "ctrl+l": 7}
LISTS = (Path(__file__).parents[2] / "CMakeLists.txt").read_text(encoding="utf-8")
VERSION = re.search(r"project\(Quillor VERSION ([0-9.]+)", LISTS)[1]


class Commands(Opener, Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "TORRES", ["torre eiffel", "eiffel torre"])
        self.start_at_menu(environment=self.with_opener())
        self.open_arcade()

    def choose_from_menu(self, *keys):
        """Opens the menu with its key and goes to an entry with the arrows."""
        self.key("Menu")
        self.key(*keys)
        self.key("Return")

    def play(self):
        self.key("Return")
        self.choose_topic("TORRES")

    def test_answer_is_searched_on_the_web(self):
        self.play()
        self.key("t", "o", "r", "e", "i", "f", "l")
        self.expect("lblStatus", self.words.won)
        self.click("lblFinder(0)")
        answers = ("/search?q=torre%20eiffel\n", "/search?q=eiffel%20torre\n")
        self.expect_opened(lambda text: text.startswith("http://") and text.endswith(answers))

    def test_question_mark_searches_too(self):
        self.play()
        self.key("t", "o", "r", "e", "i", "f", "l")
        self.expect_shown("lblFinder(0)")
        self.key("question")
        self.expect_opened(lambda text: "/search?q=" in text)

    def test_help_is_opened_where_there_is_one(self):
        manual = self.put("Quillor-Manual.txt", "Manual\n")
        self.choose_from_menu("Up")
        self.expect_opened(lambda text: str(manual) in text)

    def test_missing_help_is_told(self):
        self.choose_from_menu("Up")
        self.answer(self.words.help_missing, self.words.ok)

    def test_about_box_tells_the_version(self):
        self.choose_from_menu("Up", "Up")
        shown = until(self.about_text, "the about box")
        self.assertIn(f"Quillor: Versión {VERSION}", shown)
        self.picture("about")
        self.key("Escape")
        self.expect_title(self.words.arcade_title)

    def about_text(self):
        texts = [text for dialog in self.program.dialogs() for text in self._texts(dialog)]
        return "\n".join(texts)

    def test_switches_are_saved_at_once(self):
        for key, line in SETTING.items():
            self.key(key)
            until(lambda: self.setting(line) == b"1", f"{key} to switch on")
        for key, line in SETTING.items():
            self.key(key)
            until(lambda: self.setting(line) == b"0", f"{key} to switch off")

    def setting(self, line):
        return self.get("Quillor-Config.ini").split(b"\r\n")[line]

    def test_right_click_on_the_background_opens_the_menu(self):
        windows = self.desktop.windows
        left, top, width, height = windows.place(windows.active())
        self.hands.click((left, top + height - 20, width // 4, 20), button=3)
        self.key("Down", "Return")  # back to the menu
        self.expect_title(self.words.menu_title)

    def test_four_mistakes_keep_the_player_in_the_game(self):
        self.play()
        for mistakes, key in enumerate("zyxw"):
            self.key(key)
            self.expect(f"lblStrike({mistakes})", key.upper())
        self.key("F2")
        self.answer(self.words.too_many_mistakes, self.words.ok)
        self.key("Return")
        self.answer(self.words.too_many_mistakes, self.words.ok)
        self.expect_any("lblStatus", self.words.playing)
        self.key("F3")
        self.answer(self.words.leave_game, self.words.yes)
        self.expect_title(self.words.menu_title)
