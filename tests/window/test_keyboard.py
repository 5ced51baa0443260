"""Without a mouse: every screen is walked with Tab and arrow keys, and pressed with Space."""

from harness.player import Player
from harness.tree import State

ROUNDS = 80  # more than any screen has stops


class Keyboard(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()

    def clickable(self):
        """The captions of what is on show, takes input and can have the keyboard.

        A button and the caption that stands on it are one to the player.
        """
        wanted = {State.SHOWING, State.ENABLED, State.FOCUSABLE}
        controls = self.program.controls()
        return {self.spoken(key) for key, node in controls.items() if wanted <= node.states}

    def spoken(self, control_id):
        return self.caption(control_id).strip().casefold()

    def walk(self):
        """The ids that Tab and, in a group, the right arrow lead to, in order."""
        order = self._round("Tab")
        return [stop for first in order for stop in self._group(first)]

    def _round(self, key):
        """Where a key leads, until the first one comes again."""
        order = []
        for _ in range(ROUNDS):
            here = self.focused()
            self.assertIsNotNone(here, f"the keyboard is lost behind {order}")
            if here in order:
                return order
            order.append(here)
            self.key(key)
        return order

    def _group(self, first):
        while self.focused() != first:
            self.key("Tab")
        if not first.startswith(("lblKey", "lblOption", "lblCheck", "lblDs")):
            return [first]
        return self._round("Right")

    def expect_all_reached(self):
        order = self.walk()
        self.assertEqual({self.spoken(stop) for stop in order}, self.clickable())
        return order

    def open(self, key, title):
        self.key(key)
        self.expect_title(title)

    def test_menu(self):
        order = self.expect_all_reached()
        self.assertEqual(order, [*(f"lblOption({i})" for i in range(4, 8)), "lblView"])

    def test_idle_game(self):
        self.open("a", self.words.arcade_title)
        self.expect_all_reached()

    def test_game_in_play(self):
        self.open("a", self.words.arcade_title)
        self.play_topic("LETRAS")
        order = self.expect_all_reached()
        letters = [key for key in order if key.startswith("lblKey(")]
        first = letters.index("lblKey(1)")
        in_order = letters[first:] + letters[:first]
        self.assertEqual(in_order[:27], [f"lblKey({i})" for i in range(1, 28)])

    def test_settings(self):
        self.open("s", self.words.settings_title)
        self.expect_all_reached()

    def test_inventor(self):
        self.open("i", "Quillor | Inventor")
        self.expect_all_reached()

    def test_classic_entry(self):
        self.open("c", self.words.classic_title)
        self.open("Return", self.words.entry_title)
        self.expect_all_reached()

    def test_topic_selection(self):
        self.open("a", self.words.arcade_title)
        self.open("Return", self.words.select_topic)
        self.expect_all_reached()

    def test_space_presses_and_a_used_key_hands_the_keyboard_on(self):
        self.open("a", self.words.arcade_title)
        self.play_topic("LETRAS")
        self.expect_focus("lblKey(1)")
        self.key("space")
        self.expect("lblCont", "1/3")
        self.expect_hidden("lblKey(1)")
        self.expect_focus("lblKey(2)")
        self.key("b", "c")
        self.expect("lblStatus", self.words.won)
        self.assertIsNotNone(self.focused())

    def test_menu_is_chosen_with_space(self):
        self.key("Down", "Down")
        self.expect_focus("lblOption(6)")
        self.key("space")
        self.expect_title("Quillor | Inventor")
