"""The window keeps its place, size and state, whatever screen is shown in it."""

from harness.player import Player
from harness.waiting import until


class OneWindow(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def tool(self, *words):
        self.desktop.run(["xdotool", *map(str, words)])

    def go_round(self, look):
        """Through all large screens and back to the menu, with a look at each."""
        steps = (
            ("a", self.words.arcade_title),
            ("F2", self.words.menu_title),
            ("s", self.words.settings_title),
            ("BackSpace", self.words.menu_title),
            ("i", "Quillor | Inventor"),
            ("BackSpace", self.words.menu_title),
        )
        for key, title in steps:
            self.key(key)
            self.expect_title(title)
            look()

    def expect_same(self):
        self.assertEqual(self.desktop.windows.ids(), [self.window])
        self.assertEqual(self.desktop.windows.active(), self.window)

    def test_stays_where_the_player_puts_it(self):
        windows = self.desktop.windows
        first = windows.place(self.window)
        self.tool("windowsize", self.window, 900, 700)
        until(lambda: windows.place(self.window)[2:] == (900, 700), "another size")
        self.tool("windowmove", self.window, 111, 77)
        until(lambda: windows.place(self.window)[:2] != first[:2], "another place")
        place = windows.place(self.window)

        def look():
            self.expect_same()
            self.assertEqual(windows.place(self.window), place)

        self.go_round(look)

    def test_stays_maximized_and_comes_back_to_its_size(self):
        windows = self.desktop.windows
        small = windows.place(self.window)
        whole = {"MAXIMIZED_HORZ", "MAXIMIZED_VERT"}
        for state in whole:
            windows.change_state(self.window, state)
        until(lambda: whole <= windows.states(self.window), "a maximized window")

        def look():
            self.expect_same()
            self.assertLessEqual(whole, windows.states(self.window))

        self.go_round(look)
        for state in whole:
            windows.change_state(self.window, state, add=False)
        until(lambda: windows.place(self.window) == small, f"the place {small}")

    def test_stays_full_screen(self):
        windows = self.desktop.windows
        windows.change_state(self.window, "FULLSCREEN")
        until(lambda: "FULLSCREEN" in windows.states(self.window), "a full screen")

        def look():
            self.expect_same()
            self.assertEqual(windows.place(self.window), (0, 0, 1600, 1000))

        self.go_round(look)

    def again(self):
        self.end_program()
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def test_is_in_the_next_run_where_the_player_left_it(self):
        windows = self.desktop.windows
        self.tool("windowsize", self.window, 900, 700)
        until(lambda: windows.place(self.window)[2:] == (900, 700), "another size")
        self.tool("windowmove", self.window, 111, 77)
        until(lambda: "Quillor-Window.ini" in self.files(), "a file that keeps the place")
        place = windows.place(self.window)
        until(lambda: f"{place[0]}" in self.get("Quillor-Window.ini").decode(), "the last place")
        self.again()
        self.assertEqual(windows.place(self.window), place)

    def test_is_full_screen_again_in_the_next_run(self):
        self.key("F11")
        until(lambda: "Quillor-Window.ini" in self.files(), "a file that keeps the state")
        self.again()
        until(lambda: "FULLSCREEN" in self.desktop.windows.states(self.window), "a full screen")

    def test_is_maximised_again_in_the_next_run_and_comes_back_to_its_size(self):
        windows = self.desktop.windows
        small = windows.place(self.window)
        whole = {"MAXIMIZED_HORZ", "MAXIMIZED_VERT"}
        for state in whole:
            windows.change_state(self.window, state)
        until(lambda: "Quillor-Window.ini" in self.files(), "a file that keeps the state")
        self.again()
        until(lambda: whole <= windows.states(self.window), "a maximised window")
        for state in whole:
            windows.change_state(self.window, state, add=False)
        until(lambda: windows.place(self.window)[2:] == small[2:], f"the size of {small}")

    def test_comes_back_from_a_display_that_is_gone(self):
        self.end_program()
        self.put("Quillor-Window.ini", "4000\n200\n900\n700\n0\n")
        self.start_at_menu()
        left, top, width, height = self.desktop.windows.place(self.desktop.windows.active())
        self.assertEqual((width, height), (900, 700))
        self.assertTrue(0 <= left <= 700 and 0 <= top <= 300, f"it is at {left}, {top}")

    def test_keeps_nothing_of_a_window_that_is_left_alone(self):
        self.go_round(lambda: None)
        self.again()
        self.assertNotIn("Quillor-Window.ini", self.files())


class Dialogs(Player):
    """The screens over the game."""

    def setUp(self):
        super().setUp()
        self.put_settings()
        self.put_topic("A", "LETRAS")
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def open_dialog(self, game_key, title):
        self.key(game_key)
        self.expect_title(self.words.arcade_title if game_key == "a" else self.words.classic_title)
        self.key("Return")
        self.expect_title(title)
        return self.desktop.windows.active()

    def expect_belongs(self, dialog):
        windows = self.desktop.windows
        self.assertNotEqual(dialog, self.window)
        self.assertEqual(windows.owner(dialog), self.window)
        until(lambda: "MODAL" in windows.states(dialog), "a modal dialog")

    def test_topic_selection_belongs_to_the_window(self):
        self.expect_belongs(self.open_dialog("a", self.words.select_topic))

    def test_classic_entry_belongs_to_the_window(self):
        self.expect_belongs(self.open_dialog("c", self.words.entry_title))

    def test_opens_in_the_middle_at_once(self):
        windows = self.desktop.windows
        self.key("a")
        self.expect_title(self.words.arcade_title)
        left, top, width, height = windows.place(self.window)
        self.key("Return")
        dialog = until(lambda: [each for each in windows.ids() if each != self.window], "a dialog")[0]
        first = windows.place(dialog)
        self.expect_title(self.words.select_topic)
        self.assertEqual(windows.place(dialog), first)
        self.assertAlmostEqual(first[0] + first[2] / 2, left + width / 2, delta=2)
        self.assertAlmostEqual(first[1] + first[3] / 2, top + height / 2, delta=2)

    def test_keeps_the_keyboard_when_the_game_is_asked_for(self):
        self.open_dialog("a", self.words.select_topic)
        self.expect("lblOpt", "MANUAL")
        self.desktop.windows.activate(self.window)
        self.expect_title(self.words.select_topic)
        self.key("Right")
        self.expect("lblOpt", "REPETICIÓN")

    def test_does_not_let_the_game_be_closed_behind_it(self):
        self.open_dialog("a", self.words.select_topic)
        windows = self.desktop.windows
        left, top, width, _ = windows.place(self.window)
        _, right, above, _ = windows.frame(self.window)
        self.hands.click((left + width + right - above, top - above, above, above))
        self.expect_title(self.words.select_topic)
        self.assertFalse(self.program.has_ended())
        self.close_window()
        self.expect_title(self.words.arcade_title)
