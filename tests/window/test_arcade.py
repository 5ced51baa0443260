"""Whole arcade games, by keyboard and by mouse, in both languages."""

from harness.player import SAME_LETTERS, Player

KEYS = "ABCDEFGHIJKLMNÑOPQRSTUVWXYZ1234567890"
WRONG = "defghi"


class ArcadeInSpanish(Player):
    topic = "LETRAS"
    title = "LETRAS [español]"

    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("Letras", self.title)
        self.put_topic("Otras", "OTRAS")
        self.start_at_menu()

    def guess_by_mouse(self, letters):
        for letter in letters:
            self.click(f"lblKey({KEYS.index(letter.upper()) + 1})")

    def expect_victory(self):
        self.expect("lblStatus", self.words.won)
        self.expect_shown("lblFinder(0)")
        self.assertEqual(self.caption("lblFinder(0)"), self.words.finder)

    def answer_on_board(self):
        return "".join(self.caption(f"lblLetter({i})") or "" for i in range(1, 4)).lower()

    def test_menu_and_idle_game_are_captioned(self):
        self.assertEqual(self.caption("lblWelcome"), self.words.menu_heading)
        shown = tuple(self.caption(f"lblOption({i})") for i in range(4, 8))
        self.assertEqual(shown, self.words.menu_options)
        self.open_arcade()
        self.assertEqual(self.caption("lblMode"), self.words.arcade)
        self.assertEqual(self.caption("lblPlay(0)"), self.words.play)
        self.assertEqual(self.caption("lblTopic"), self.words.no_topic_shown)
        self.expect_score(1000)

    def test_win_lose_and_win_again(self):
        self.open_arcade()
        self.win_by_keyboard()
        self.lose_by_keyboard()
        self.win_by_mouse()

    def win_by_keyboard(self):
        self.play_topic(self.topic)
        self.expect("lblPlay(0)", self.words.play_another)
        self.expect("lblCont", "0/3")
        self.key("a")
        self.expect("lblCont", "1/3")
        self.expect_hidden("lblKey(1)")
        self.key("b", "c")
        self.expect_victory()
        self.assertIn(self.answer_on_board(), SAME_LETTERS)
        self.expect_score(1840)
        self.picture(f"game-won-{type(self).__name__}")

    def lose_by_keyboard(self):
        self.key("Return")
        self.choose_topic(self.topic)
        self.expect_title(f"{self.words.arcade_title} [1]")
        self.key("a")
        self.expect("lblCont", "1/3")
        for mistakes, letter in enumerate(WRONG):
            self.key(letter)
            if mistakes < 5:
                self.expect(f"lblStrike({mistakes})", letter.upper())
        self.expect("lblStatus", self.words.dead)
        self.assertEqual(self.caption("lblStrike(5)"), "I")
        self.expect_score(1173)
        self.picture(f"game-lost-{type(self).__name__}")

    def win_by_mouse(self):
        self.click("lblPlay(0)")
        self.choose_topic(self.topic)
        self.expect_title(f"{self.words.arcade_title} [2]")
        self.expect("lblCont", "0/3")
        self.guess_by_mouse("zc")
        self.expect("lblStrike(0)", "Z")
        self.expect("lblCont", "1/3")
        self.guess_by_mouse("ba")
        self.expect_victory()
        self.expect_score(1593)
        self.key("Return")
        self.expect_title(self.words.select_topic)
        self.key("Escape")
        self.expect("lblStatus", self.words.new_game)

    def test_mouse_moves_through_the_menu(self):
        self.click("lblOption(4)")
        self.expect_title(self.words.arcade_title)

    def test_game_is_left_only_after_asking(self):
        self.open_arcade()
        self.play_topic(self.topic)
        self.key("F2")
        self.answer(self.words.leave_game, self.words.no)
        self.expect_any("lblStatus", self.words.playing)
        self.key("F2")
        self.answer(self.words.leave_game, self.words.yes)
        self.expect_title(self.words.menu_title)


class ArcadeInEnglish(ArcadeInSpanish):
    english = True
    topic = "LETTERS"
    title = "LETTERS"
