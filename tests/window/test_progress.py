"""The page of what the player has done, reached from the menu of every large screen."""

from harness.player import Player
from harness.tree import State
from harness.waiting import until


class Progress(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()
        self.open_arcade()
        self.play_topic("LETRAS")

    def win(self, points):
        self.key("a", "b", "c")
        self.expect("lblStatus", self.words.won)
        self.expect_score(points)

    def open_page(self):
        self.click("lblView")
        self.key("Down", "Down", "Down", "Down", "Return")
        self.expect_title("Quillor | Progreso")

    def test_games_are_counted_drawn_and_told(self):
        self.win(1840)
        self.key("Return")
        self.choose_topic("LETRAS")
        self.win(2680)
        self.open_page()
        self.expect("lblCount(0)", "Partidas ganadas: 2")
        self.expect("lblCount(4)", "Mejor puntaje: 2680")
        self.expect("lblScores", "Puntos, partidas arcade: 2, de 1840 a 2680")
        self.assertRegex(list(self.list_entries())[0], "LETRAS: [12] de 4")
        until(
            lambda: "Partidas ganadas: 2" in (self.caption("lblSpoken") or ""),
            "the counts to be said",
        )
        self.picture("progress")
        self.key("Escape")
        self.expect_title(f"{self.words.arcade_title} [1]")
        self.expect("lblStatus", self.words.won)

    def is_offered(self):
        """Whether the entry can be chosen, as the menu had it when it was opened."""
        self.click("lblView")
        self.key("Escape")
        entries = {node.name: node for node in self.program.shown("lblView").below()}
        return entries["Progreso"].has(State.ENABLED)

    def test_page_waits_for_the_end_of_the_game(self):
        self.assertFalse(self.is_offered())
        self.win(1840)
        self.assertTrue(self.is_offered())

    def test_page_is_emptied_after_a_question(self):
        self.win(1840)
        self.open_page()
        self.click("lblEmpty")
        self.answer("¿Quieres vaciar tu progreso? No se podrá recuperar.", self.words.yes)
        self.expect("lblCount(0)", "Partidas ganadas: 0")
        self.assertIn(b"games won: 0\r\n", self.get("Quillor-Progress.txt"))
