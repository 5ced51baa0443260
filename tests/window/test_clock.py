"""Against the clock: the time runs by the second, and running out is a death."""

from harness.player import Player
from harness.waiting import until

PHRASES = ("abcdefghijklm", "mlkjihgfedcba")  # the least time is given for 13 letters


class Clock(Player):
    def setUp(self):
        super().setUp()
        self.put_settings(line_6="1")
        self.put_topic("A", "TRECE", PHRASES)
        self.start_at_menu()
        self.key("a")
        self.expect_title(f"{self.words.arcade_title} [Tiempo]")
        self.play_topic("TRECE")

    def seconds_left(self):
        shown = self.caption("lblTime")
        if shown is None:
            return None
        minutes, seconds = shown.split(":")
        self.assertEqual(len(seconds), 2)
        return int(minutes) * 60 + int(seconds)

    def test_game_is_lost_to_the_clock(self):
        left = self.seconds_left()
        self.assertTrue(60 < left <= 75, left)
        self.key("a")
        until(lambda: self.seconds_left() <= left - 2, "the clock to run")
        until(lambda: self.caption("lblStatus") == self.words.dead, "the time to run out", 100)
        self.assertIsNone(self.seconds_left())
        self.expect("lblPoints", "-924")
        self.expect_score(76)
        self.picture("game-lost-to-the-clock")
