"""The settings screen: each change is on the disk before the next one."""

from harness.player import Player
from harness.tree import State
from harness.waiting import until

# The lines of the settings file that the options stand on.
WIKIPEDIA, HARD, INFINITE, CLOCK = 2, 4, 5, 6


class SettingsInSpanish(Player):
    def setUp(self):
        super().setUp()
        self.put_settings(line_1="1", line_7="1", line_10="3")
        self.lines = ["0", "1", "0", "0", "0", "0", "0", "1", "0", "0", ""]
        self.start_at_menu()
        self.key("s")
        self.expect_title(self.words.settings_title)

    def expect_line(self, line, value):
        """The file holds what it held before but for that line."""
        self.lines[line] = value
        self.expect_file("Quillor-Config.ini", "".join(f"{x}\r\n" for x in self.lines).encode())

    def is_ticked(self, option):
        return self.program.shown(f"lblCheck({option})").has(State.CHECKED)

    def expect_tick(self, option, ticked):
        until(lambda: self.is_ticked(option) == ticked, f"tick {option} to be {ticked}")

    def test_nothing_is_written_by_looking(self):
        self.expect_shown("lblDs(0)")
        self.assertTrue(self.get("Quillor-Config.ini").endswith(b"\r\n3\r\n"))
        self.picture(f"settings-{type(self).__name__}")

    def test_each_click_is_written_at_once(self):
        for option, line in ((1, WIKIPEDIA), (2, HARD), (3, INFINITE), (4, CLOCK)):
            self.click(f"lblCheck({option})")
            self.expect_line(line, "1")
            self.expect_tick(option, True)
        for option, line in ((1, WIKIPEDIA), (2, HARD), (3, INFINITE), (4, CLOCK)):
            self.click(f"lblCheck({option})")
            self.expect_line(line, "0")
            self.expect_tick(option, False)
        for design in (3, 1, 2, 0):
            self.click(f"lblDs({design})")
            self.expect_line(0, str(design))
            self.picture(f"settings-design-{design}-{type(self).__name__}")

    def test_keys_do_what_clicks_do(self):
        for key, line in (("w", WIKIPEDIA), ("d", HARD), ("i", INFINITE), ("c", CLOCK)):
            self.key(key)
            self.expect_line(line, "1")
        digits = ("4", "3"), ("2", "1"), ("KP_3", "2"), ("KP_1", "0")
        for key, design in (*digits, ("shift+3", "2"), ("shift+1", "0")):
            self.key(key)
            self.expect_line(0, design)

    def test_backspace_and_the_arrow_lead_back_to_the_menu(self):
        self.key("BackSpace")
        self.expect_title(self.words.menu_title)
        self.key("s")
        self.expect_title(self.words.settings_title)
        self.click("lblBack(0)")
        self.expect_title(self.words.menu_title)

    def test_game_is_played_by_what_was_chosen(self):
        self.key("d")
        self.expect_line(HARD, "1")
        self.key("c")
        self.expect_line(CLOCK, "1")
        self.key("BackSpace")
        self.expect_title(self.words.menu_title)
        self.key("a")
        self.expect_title(self.words.arcade_title + self.words.hard_and_time)


class SettingsInEnglish(SettingsInSpanish):
    english = True
