"""A classic game between two players: one types a phrase, the other finds it."""

from harness.player import Player


class ClassicInSpanish(Player):
    def setUp(self):
        super().setUp()
        self.put_settings()
        self.start_at_menu()
        self.key("c")
        self.expect_title(self.words.classic_title)
        self.key("Return")
        self.expect_title(self.words.entry_title)

    def enter(self, phrase, topic):
        """Types both and accepts with the keyboard alone."""
        self.click("txtWord")
        self.type(phrase)
        self.key("Return")
        self.expect_focus("txtTheme")
        self.type(topic)
        self.key("Return")
        self.expect_title(self.words.classic_title)

    def test_phrase_is_typed_found_and_another_one_typed(self):
        self.enter("casa roja", "cosas")
        self.expect_playing("COSAS")
        self.expect("lblCont", "0/8")
        self.key("c", "a", "s", "r", "o", "j")
        self.expect("lblStatus", self.words.won)
        self.assertEqual(self.caption("lblMode"), self.words.classic)
        self.assertIsNone(self.caption("lblScore"))
        self.assertIsNone(self.caption("lblPoints"))
        self.picture(f"classic-won-{type(self).__name__}")
        self.key("Return")
        self.expect_title(self.words.entry_title)
        self.expect_content("txtTheme", "COSAS")
        self.expect_content("txtWord", "")
        self.key("Escape")
        self.expect_title(self.words.classic_title)
        self.expect("lblStatus", self.words.new_game)

    def test_accents_are_found_by_their_plain_letter_but_for_ñ(self):
        self.enter("ñandú", "aves")
        self.expect("lblCont", "0/5")
        self.key("n", "a", "d", "u")
        self.expect("lblCont", "4/5")
        self.key("ntilde")
        self.expect("lblStatus", self.words.won)
        board = [self.caption(f"lblLetter({i})") for i in range(1, 6)]
        self.assertEqual("".join(board), "ÑANDÚ")

    def test_untouched_topic_is_no_topic(self):
        self.expect_content("txtTheme", self.words.no_topic)
        self.click("txtWord")
        self.type("sol")
        self.picture(f"classic-entry-{type(self).__name__}")
        self.click("lblOk(1)")
        self.expect_playing(self.words.no_topic)

    def test_phrase_is_filtered_and_limited_while_it_is_typed(self):
        self.click("txtWord")
        self.type(" ?a!b-1")
        self.expect_content("txtWord", "AB1")
        self.type("x" * 40)
        self.expect_content("txtWord", "AB1" + "X" * 32)
        self.key("Return")
        self.expect_focus("txtTheme")
        self.type("t" * 30)
        self.expect_content("txtTheme", "T" * 22)

    def test_button_waits_for_a_phrase(self):
        self.assertFalse(self.is_enabled("lblOk(1)"))
        self.click("txtWord")
        self.type("a")
        self.expect_content("txtWord", "A")
        self.assertTrue(self.is_enabled("lblOk(1)"))
        self.key("BackSpace")
        self.expect_content("txtWord", "")
        self.assertFalse(self.is_enabled("lblOk(1)"))

    def test_pasted_characters_that_no_key_offers_are_refused(self):
        self.click("txtTheme")
        self.type("a!b")
        self.key("ctrl+a", "ctrl+x")
        self.click("txtWord")
        self.key("ctrl+v")
        self.expect_content("txtWord", "A!B")
        self.click("lblOk(1)")
        self.answer(self.words.bad_characters, self.words.ok)
        self.expect_content("txtWord", "A!B")


class ClassicInEnglish(ClassicInSpanish):
    english = True
