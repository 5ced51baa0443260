"""Whole games and every setting by keyboard alone: Tab, arrows, Space, and what is typed."""

import time

from .player import Player
from .tree import State
from .waiting import until

MENU_OPENS = 1  # seconds; an open menu is not in the tree, so it cannot be waited for
STOPS = 90  # more than any screen has
GROUPS = ("lblKey", "lblOption", "lblCheck", "lblDs")

# The lines of the settings file.
DESIGN, SOUNDS, WIKIPEDIA, HIDDEN, HARD, INFINITE, CLOCK, FIRST, COLORS = 0, 1, 2, 3, 4, 5, 6, 7, 9


class WholeGames(Player):
    """What is tried on each kind of desktop; the mouse is never touched."""

    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()

    def reach(self, control_id):
        """Goes there with Tab and, within its group, with an arrow."""
        for _ in range(STOPS):
            here = until(self.focused, "the keyboard to be somewhere")
            if here == control_id:
                return
            family = control_id.partition("(")[0]
            self.key("Right" if family in GROUPS and here.startswith(family) else "Tab")
            until(lambda: self.focused() != here, f"the keyboard to leave {here}")
        self.fail(f"no way leads to {control_id}")

    def press(self, control_id):
        self.reach(control_id)
        self.key("space")

    def expect_line(self, line, value):
        """What stands on a line of the settings file."""

        def held():
            return self.get("Quillor-Config.ini").decode().split("\r\n")[line]

        until(lambda: held() == value, lambda: f"line {line} to be {value}; it is {held()}")

    def begin_arcade(self):
        self.press("lblOption(4)")
        self.expect("lblStatus", self.words.new_game)
        self.press("lblPlay(0)")
        self.expect_title(self.words.select_topic)
        self.press("lblOk(1)")
        self.expect_playing("LETRAS")

    def test_arcade_game_is_won(self):
        self.begin_arcade()
        for key in (1, 2, 3):
            self.press(f"lblKey({key})")
            self.expect_hidden(f"lblKey({key})")
        self.expect("lblStatus", self.words.won)
        self.press("lblPlay(0)")
        self.expect_title(self.words.select_topic)
        self.key("Escape")
        self.expect("lblStatus", self.words.new_game)

    def test_arcade_game_is_lost(self):
        self.begin_arcade()
        self.reach("lblKey(4)")
        for key in range(4, 10):
            self.expect_focus(f"lblKey({key})")
            self.key("space")
        self.expect("lblStatus", self.words.dead)

    def test_classic_game_is_set_and_won(self):
        self.press("lblOption(5)")
        self.expect_title(self.words.classic_title)
        self.press("lblPlay(0)")
        self.expect_title(self.words.entry_title)
        self.type("bcb a1")
        self.reach("txtTheme")
        self.type("cosas")
        self.press("lblOk(1)")
        self.expect_playing("COSAS")
        for key in (1, 2, 3):
            self.press(f"lblKey({key})")
        self.press("lblKey(38)")
        self.expect_shown("lblKey(28)")
        self.press("lblKey(28)")
        self.expect("lblStatus", self.words.won)

    def test_topic_is_invented_and_its_round_played(self):
        self.press("lblOption(6)")
        self.expect_title("Quillor | Inventor")
        self.reach("txtTheme")
        self.type("aves")
        for phrase in ("bacab", "abc", "cabb"):
            self.reach("txtWord")
            self.type(phrase)
            self.press("lblOk")
            self.expect_content("txtWord", "")
        self.press("lblDel")
        self.expect("lblCont", "02/50")
        self.press("lblSave(0)")
        self.expect_dialog(self.words.ask_restart)
        self.key(f"alt+{self.words.yes[0].lower()}")
        self.expect_title(self.words.menu_title)
        self.press("lblOption(4)")
        self.press("lblPlay(0)")
        self.expect_title(self.words.select_topic)
        self.key("Down", "Return")
        self.expect_playing("AVES")
        self.expect_focus("lblKey(1)")
        self.key("a", "b", "c")
        self.expect("lblStatus", self.words.won)

    def test_every_setting_is_changed(self):
        self.press("lblOption(7)")
        self.expect_title(self.words.settings_title)
        for option, line in ((1, WIKIPEDIA), (2, HARD), (3, INFINITE), (4, CLOCK)):
            self.press(f"lblCheck({option})")
            self.expect_line(line, "1")
            self.assertTrue(self.program.shown(f"lblCheck({option})").has(State.CHECKED))
        for design in (1, 2, 3, 0):
            self.press(f"lblDs({design})")
            self.expect_line(DESIGN, str(design))
        self.press("lblBack(0)")
        self.expect_title(self.words.menu_title)

    def test_every_switch_of_the_game_is_changed(self):
        self.press("lblOption(4)")
        self.expect("lblStatus", self.words.new_game)
        for key, line in (("ctrl+s", SOUNDS), ("ctrl+l", FIRST), ("ctrl+o", HIDDEN)):
            self.key(key)
            self.expect_line(line, "1")
        self.press("lblWave(0)")
        self.expect_line(SOUNDS, "0")
        self.key("F10")
        time.sleep(MENU_OPENS)
        self.key("Up", "Up", "Up", "Return")
        self.expect_line(COLORS, "1")
