"""Answering with the whole phrase: right wins at once, wrong kills at once."""

from harness.player import Player


class Answer(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LARGAS", ["abcdefghij", "jihgfedcba"])
        self.start_at_menu()
        self.open_arcade()
        self.play_topic("LARGAS")
        self.key("a")
        self.expect("lblCont", "1/10")

    def right_answer(self):
        first = self.caption("lblLetter(1)")
        return "abcdefghij" if first == "A" else "jihgfedcba"

    def test_right_answer_before_half_of_the_letters_earns_half_as_much_again(self):
        self.key("ctrl+e")
        self.answer_input(self.words.enter_answer, self.right_answer())
        self.expect("lblStatus", self.words.won)
        self.expect("lblPoints", "+1320")
        self.expect_shown("lblBonus")
        self.expect_score(2320)
        board = "".join(self.caption(f"lblLetter({i})") for i in range(1, 11))
        self.assertEqual(board.lower(), self.right_answer())

    def test_wrong_answer_ends_the_game(self):
        self.click("lblKey(40)")
        self.answer_input(self.words.enter_answer, "abc")
        self.expect("lblStatus", self.words.dead)
        self.expect("lblPoints", "-900")
        self.expect_score(100)

    def test_cancelled_answer_costs_nothing(self):
        self.key("exclam")
        self.expect_dialog(self.words.enter_answer)
        self.key("Escape")
        self.expect_no_dialog(self.words.enter_answer)
        self.expect_any("lblStatus", self.words.playing)
        self.key("b")
        self.expect("lblCont", "2/10")

    def test_box_is_answered_without_leaving_a_guess_behind(self):
        self.key("ctrl+e")
        self.expect_dialog(self.words.enter_answer)
        self.type("zyx")
        self.key("Escape")
        self.expect_no_dialog(self.words.enter_answer)
        self.expect_hidden("lblStrike(0)")
        self.expect("lblCont", "1/10")
