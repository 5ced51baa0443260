"""Windows of any shape: the bar reaches both edges, and paper fills the rest."""

from harness.player import Player
from harness.waiting import until

BLUE = (20, 140, 220)
PAPER = ((252, 251, 247), (223, 233, 244))  # between its rules and on them
WIDE = (1500, 500)
TALL = (600, 900)


class Shapes(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def resize(self, size):
        self.desktop.run(["xdotool", "windowsize", "--sync", str(self.window), *map(str, size)])

    def color(self, x, y):
        """Coordinates below zero count from the far edges."""
        _, _, width, height = self.desktop.windows.place(self.window)
        return self.desktop.windows.color(self.window, x % width, y % height)

    def expect_color(self, colors, x, y):
        until(
            lambda: self.color(x, y) in colors,
            lambda: f"one of {colors} at {x}, {y}; it is {self.color(x, y)}",
        )

    def expect_bar(self):
        for x in (0, -1):
            self.expect_color((BLUE,), x, 0)
            self.expect_color((BLUE,), x, 15)

    def test_bar_of_a_wide_window_reaches_both_edges(self):
        self.resize(WIDE)
        self.open_arcade()
        self.expect_bar()
        for x in (1, -1):
            for y in (60, 200, -1):
                self.expect_color(PAPER, x, y)
        self.picture("game-wide")

    def test_bar_of_a_tall_window_hangs_from_its_top(self):
        self.resize(TALL)
        self.open_arcade()
        self.expect_bar()
        for x in (1, -1):
            for y in (130, 500, -1):
                self.expect_color(PAPER, x, y)
        self.picture("game-tall")

    def test_bar_follows_a_window_that_changes_its_shape(self):
        self.open_arcade()
        for size in (WIDE, TALL):
            self.resize(size)
            self.expect_bar()

    def test_paper_fills_screens_without_a_bar(self):
        for size in (WIDE, TALL):
            self.resize(size)
            for x in (1, -1):
                for y in (0, 250, -1):
                    self.expect_color(PAPER, x, y)
