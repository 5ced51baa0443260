"""Steps that the scenarios about damaged files share."""

from .player import Player
from .waiting import until


class BadInput(Player):
    """The program has to come up, open the game, stay alive and touch no file."""

    # What it swallows it may log; that it goes on is the point here.
    expected_noise = (r"^quillor: ",)

    def setUp(self):
        super().setUp()
        self.put_settings()

    def survives(self, binary=None):
        """Starts, opens the game and presses play; returns the title that follows.

        None when a box answered instead, which is then closed.
        """
        before = self.contents()
        self.start_at_menu(binary=binary)
        self.open_arcade()
        self.key("Return")
        shown = until(self._what_follows, "the topics, a game or a box")
        self.program.check_alive()
        self.assertEqual(self.contents(), before)
        return shown

    def contents(self):
        """The bytes of every file but the settings, which playing rewrites."""
        names = [name for name in self.files() if name != "Quillor-Config.ini"]
        return {name: self.get(name) for name in names}

    def _what_follows(self):
        if self.program.dialogs():
            return "box"
        title = self.program.title()
        return title if title == self.words.select_topic else None

    def wins(self, topic):
        """Plays a topic of the same three letters to its end."""
        self.choose_topic(topic)
        self.key("a", "b", "c")
        self.expect("lblStatus", self.words.won)
