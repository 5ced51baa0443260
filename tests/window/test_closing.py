"""The title bar's close button on each screen."""

from harness.player import Player


class Closing(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()

    def open(self, key, title):
        self.key(key)
        self.expect_title(title)

    def test_menu_ends_the_program(self):
        self.close_window()
        self.expect_end()

    def test_game_ends_the_program(self):
        self.open("a", self.words.arcade_title)
        self.play_topic("LETRAS")
        self.close_window()
        self.expect_end()

    def test_settings_lead_back_to_the_menu(self):
        self.open("s", self.words.settings_title)
        self.close_window()
        self.expect_title(self.words.menu_title)

    def test_inventor_leads_back_to_the_menu(self):
        self.open("i", "Quillor | Inventor")
        self.close_window()
        self.expect_title(self.words.menu_title)

    def test_topic_selection_leads_back_to_the_game(self):
        self.open("a", self.words.arcade_title)
        self.open("Return", self.words.select_topic)
        self.close_window()
        self.expect_title(self.words.arcade_title)
        self.expect("lblStatus", self.words.new_game)
        self.open("Return", self.words.select_topic)

    def test_classic_entry_leads_back_to_the_game(self):
        self.open("c", self.words.classic_title)
        self.open("Return", self.words.entry_title)
        self.close_window()
        self.expect_title(self.words.classic_title)
        self.open("Return", self.words.entry_title)

    def test_question_is_closed_without_leaving_the_game(self):
        self.open("a", self.words.arcade_title)
        self.play_topic("LETRAS")
        self.key("F2")
        self.expect_dialog(self.words.leave_game)
        self.close_window()
        self.expect_no_dialog(self.words.leave_game)
        self.expect_any("lblStatus", self.words.playing)
