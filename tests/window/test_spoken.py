"""What a player who does not see the game is told."""

from harness.player import Player
from harness.tree import Role
from harness.waiting import until


class Spoken(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS", ["abc abc", "cab cab"])
        self.start_at_menu()
        self.open_arcade()
        self.play_topic("LETRAS")

    def expect_said(self, *parts):
        """Waits until the last announcement holds all the parts."""
        until(
            lambda: all(part in (self.caption("lblSpoken") or "") for part in parts),
            lambda: f"{parts} to be said; said was {self.caption('lblSpoken')!r}",
        )

    def test_game_is_told_from_its_start_to_its_end(self):
        self.assertEqual(self.program.shown("lblSpoken").role, Role.NOTIFICATION)
        self.expect_said("LETRAS", "6", "_ _ _ , _ _ _ ")
        self.key("a")
        self.expect("lblCont", "2/6")
        self.expect_said("A _ _ , A _ _ " if self.caption("lblLetter(1)") else "_ A _ , _ A _ ")
        self.key("z")
        self.expect_said("Z", "1")
        self.key("b", "c")
        self.expect_said(self.words.won)
        board = [self.caption(f"lblLetter({i})") for i in (1, 2, 3)]
        self.expect_said(" ".join(["".join(board)] * 2))

    def test_symbols_have_names(self):
        self.assertEqual(self.caption("lblWave(0)"), "Sonidos")
        self.click("lblKey(38)")
        self.expect("lblKey(39)", "Ocultar números")
        self.click("lblKey(39)")
        self.expect_hidden("lblKey(28)")
