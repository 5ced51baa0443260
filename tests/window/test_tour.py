"""The ways from one phrase to the next: a tour over three topics, and repeating."""

from harness.player import Player


class Tour(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        for name in ("UNO", "DOS", "TRES"):
            self.put_topic({"UNO": "A", "DOS": "B", "TRES": "C"}[name], name)
        self.start_at_menu()
        self.open_arcade()

    def choose_way(self, caption, *arrows):
        self.key("Return")
        self.expect_title(self.words.select_topic)
        self.expect("lblOpt", "MANUAL")
        self.key(*arrows)
        self.expect("lblOpt", caption)

    def win(self, points):
        self.key("a", "b", "c")
        self.expect("lblStatus", self.words.won)
        self.expect_score(points)

    def next_topic(self, name):
        self.key("Return")
        self.expect_playing(name)

    def title(self, games, position):
        played = f" [{games}]" if games else ""
        where = self.words.tour_position.format(position, 3)
        self.expect_title(f"{self.words.arcade_title}{played} {where}")

    def test_tour_goes_through_every_topic_once(self):
        self.choose_way("TURISTA", "Right", "Right")
        self.choose_topic("UNO")
        self.title(0, 1)
        self.win(1840)
        self.next_topic("DOS")
        self.title(1, 2)
        self.win(2680)
        self.next_topic("TRES")
        self.title(2, 3)
        self.key("a", "b", "c")
        self.answer(self.words.tour_completed, self.words.ok)
        self.expect("lblStatus", self.words.won)
        self.expect_score(3520)

    def test_repeat_stays_with_its_topic(self):
        self.choose_way("REPETICIÓN", "Left", "Left")
        self.choose_topic("DOS")
        self.win(1840)
        self.next_topic("DOS")
        self.win(2680)

    def test_arrow_buttons_change_the_way_too(self):
        self.choose_way("TURISTA", "Left")
        self.click("lblChng(1)")
        self.expect("lblOpt", "MANUAL")
        self.click("lblChng(0)")
        self.expect("lblOpt", "TURISTA")
        self.picture("topic-selection")

    def test_double_click_takes_a_topic(self):
        self.key("Return")
        self.expect_title(self.words.select_topic)
        self.hands.click(self.list_entries()["TRES"].place, times=2)
        self.expect_playing("TRES")

    def test_way_of_any_topic_deals_without_asking(self):
        self.key("ctrl+a", "Return")
        self.expect_any("lblTopic", ("UNO", "DOS", "TRES"))
        self.expect_any("lblStatus", self.words.playing)
        self.expect_file("Quillor-Config.ini", self.saved_way(b"3"))

    def saved_way(self, way):
        lines = self.get("Quillor-Config.ini").split(b"\r\n")
        lines[8] = way
        return b"\r\n".join(lines)
