"""A player's steps through the screens, in either language."""

from .scenario import Scenario
from .tree import Gone
from .waiting import until
from .words import ENGLISH, SPANISH

# The settings file of a player without sounds and helps, so that a game is quick
# and starts with nothing found.
QUIET = "\n".join(["0"] * 11) + "\n"

# Every phrase has the same letters, so that any that is dealt is won alike.
SAME_LETTERS = ("abc", "bca", "cab", "acb")


class Player(Scenario):
    english = False

    def setUp(self):
        super().setUp()
        self.words = ENGLISH if self.english else SPANISH
        if self.english:
            self.put("English.txt", "")

    def put_topic(self, file, title, phrases=SAME_LETTERS):
        return self.put(f"{self.words.topic_folder}/{file}.txt", "\n".join([title, *phrases]) + "\n")

    def put_settings(self, **changed):
        """The quiet settings with some lines changed: line_6="1" is the clock."""
        lines = QUIET.split()
        for line, value in changed.items():
            lines[int(line.removeprefix("line_"))] = value
        self.put("Quillor-Config.ini", "\n".join(lines) + "\n")

    def start_at_menu(self, *arguments, **options):
        self.start(*arguments, **options)
        self.expect_title(self.words.menu_title)

    def open_arcade(self):
        self.key("a")
        self.expect_title(self.words.arcade_title)
        self.expect("lblStatus", self.words.new_game)

    def list_entries(self, list_id="lstTopics"):
        node = self.program.shown(list_id)
        return {} if node is None else {child.name: child for child in node.children}

    def choose_topic(self, name):
        """Clicks a topic of the selection screen and accepts it."""
        self.expect_title(self.words.select_topic)
        entry = until(lambda: self._entry(name), lambda: f"{name!r} in {list(self.list_entries())}")
        self.hands.click(entry)
        self.click("lblOk(1)")
        self.expect_playing(name)

    def _entry(self, name):
        try:
            node = self.list_entries().get(name)
            return None if node is None else node.place
        except Gone:
            return None

    def expect_playing(self, topic):
        self.expect("lblTopic", topic)
        self.expect_any("lblStatus", self.words.playing)

    def play_topic(self, name):
        """From the idle game screen to the first guess."""
        self.click("lblPlay(0)")
        self.choose_topic(name)

    def expect_score(self, points):
        self.expect("lblScore", f"{self.words.score}{points}")
