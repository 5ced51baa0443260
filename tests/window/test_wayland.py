"""The program on Wayland, where nothing can place a window or make it active: it shows itself,
and is played without a mouse."""

import struct
import unittest

from harness import wayland
from harness.program import executable
from harness.whole_games import WholeGames


def size_of(png):
    """Width and height of a picture in pixels, from its head."""
    return struct.unpack(">II", png.read_bytes()[16:24])


@unittest.skipUnless(wayland.is_there(), "weston is not installed: not tried on Wayland")
class TourOnWayland(unittest.TestCase):
    def setUp(self):
        self.desktop = wayland.WaylandDesktop()
        self.addCleanup(self.desktop.close)
        self.folder = self.desktop.scratch / "program"
        self.pictures = self.desktop.scratch / "pictures"
        for each in (self.folder, self.pictures):
            each.mkdir()

    def test_tour_goes_to_its_end_in_one_window(self):
        command = [executable(), "--folder", self.folder, "--tour", self.pictures]
        code, said = self.desktop.run(list(map(str, command)), seconds=300)
        self.assertEqual(code, 0, said)
        found = sorted(self.pictures.iterdir())
        self.assertEqual(said.splitlines(), [str(each) for each in found])
        shown = {each.name.partition("-")[2]: size_of(each) for each in found}
        for name in ("start.png", "menu.png", "inventor.png", "settings-design-4.png",
                     "topic-selection.png", "leave-question.png", "victory.png"):
            self.assertEqual(shown[name], shown["game-idle.png"], name)


@unittest.skipUnless(wayland.is_there(), "weston is not installed: not tried on Wayland")
class GamesOnWayland(WholeGames):
    desktop_kind = wayland.WaylandInAWindow


def load_tests(loader, _tests, _pattern):
    """Without the class that the games are written in."""
    kinds = (TourOnWayland, GamesOnWayland)
    return unittest.TestSuite(map(loader.loadTestsFromTestCase, kinds))
