"""Against the clock: the time runs by the second, and running out is a death."""

import os
import time

from harness.player import Player
from harness.waiting import until

# The program's own clock at eight times its speed: 75 seconds pass in ten.
QUICK_TIME = {
    "LD_PRELOAD": os.environ["QUILLOR_QUICK_TIME"],
    "QUILLOR_TIMES_AS_FAST": "8",
}
PHRASES = ("abcdefghijklm", "mlkjihgfedcba")  # the least time is given for 13 letters


class Clock(Player):
    def setUp(self):
        super().setUp()
        self.put_settings(line_6="1")
        self.put_topic("A", "TRECE", PHRASES)

    def play(self, **options):
        self.start_at_menu(**options)
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

    def test_clock_runs_by_the_second(self):
        self.play()
        started, left = time.monotonic(), self.seconds_left()
        self.assertTrue(40 < left <= 75, left)
        until(lambda: self.seconds_left() <= left - 3, "the clock to run")
        self.assertGreater(time.monotonic() - started, 2)

    def test_game_is_lost_to_the_clock(self):
        self.play(environment=QUICK_TIME)
        self.key("a")
        until(lambda: self.caption("lblStatus") == self.words.dead, "the time to run out", 60)
        self.assertIsNone(self.seconds_left())
        self.expect_score(76)
        self.picture("game-lost-to-the-clock")
