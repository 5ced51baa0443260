"""A topic is invented, stored byte for byte, loaded by a restart and played."""

from harness.player import Player


class InventorInSpanish(Player):
    tag = " [español]"

    def setUp(self):
        super().setUp()
        self.put_settings()
        self.start_at_menu()
        self.key("i")
        self.expect_title("Quillor | Inventor")

    def name_topic(self, name):
        self.click("txtTheme")
        self.type(name)
        self.expect_content("txtFile", name.upper())

    def add(self, *phrases):
        """Adds phrases with the Return key."""
        self.click("txtWord")
        for phrase in phrases:
            self.type(phrase)
            self.key("Return")
            self.expect_content("txtWord", "")

    def entries(self):
        return list(self.list_entries())

    def stored(self, *lines):
        return "".join(line + "\r\n" for line in lines).encode("cp1252")

    def topic_file(self, name):
        return f"{self.words.topic_folder}/{name}.txt"

    def test_topic_is_written_loaded_and_played(self):
        self.name_topic("Aves y más")
        self.add("ñandú", "Andúñ")
        self.assertEqual(self.entries(), [" ÑANDÚ", " ANDÚÑ"])
        self.expect("lblCont", "02/50")
        self.picture(f"inventor-{type(self).__name__}")
        self.click("lblSave(0)")
        self.expect_dialog(self.words.ask_restart)
        written = self.get(self.topic_file("AVES Y MÁS"))
        self.assertEqual(written, self.stored(f"AVES Y MÁS{self.tag}", "ñandú", "andúñ"))
        self.answer(self.words.ask_restart, self.words.yes)
        self.expect_title(self.words.menu_title)
        self.open_arcade()
        self.play_topic("AVES Y MÁS")
        self.key("a", "n", "d", "u", "ntilde")
        self.expect("lblStatus", self.words.won)

    def test_refused_restart_empties_the_fields(self):
        self.name_topic("frutas")
        self.add("pera", "Uva verde")
        self.click("lstTopics")
        self.key("Return")
        self.answer(self.words.ask_restart, self.words.no)
        self.assertEqual(
            self.get(self.topic_file("FRUTAS")),
            self.stored(f"FRUTAS{self.tag}", "pera", "uva verde"),
        )
        self.expect_content("txtTheme", "")
        self.expect_content("txtFile", "")
        self.expect("lblCont", "00/50")
        self.expect_focus("txtTheme")

    def test_file_name_loses_what_no_file_may_have(self):
        self.click("txtTheme")
        self.type("Mi tema: 1")
        self.expect_content("txtFile", "MI TEMA 1")

    def test_entries_are_removed_by_button_and_key(self):
        self.name_topic("frutas")
        self.add("pera", "uva", "kiwi")
        self.click("lblDel")
        self.expect("lblCont", "02/50")
        self.assertEqual(self.entries(), [" PERA", " UVA"])
        self.hands.click(self.list_entries()[" PERA"].place)
        self.key("Delete")
        self.expect("lblCont", "01/50")
        self.assertEqual(self.entries(), [" UVA"])

    def test_nothing_to_save_cannot_be_saved(self):
        self.assertFalse(self.is_enabled("lblSave(0)"))
        self.add("pera")
        self.assertFalse(self.is_enabled("lblSave(0)"))
        self.click("txtFile")
        self.type("x")
        self.expect_content("txtFile", "x")
        self.assertTrue(self.is_enabled("lblSave(0)"))

    def test_held_keys_command_once_and_type_on(self):
        self.key("BackSpace")
        self.expect_title(self.words.menu_title)
        self.hands.hold_key("i", 1.2)
        self.expect_title("Quillor | Inventor")
        self.expect_content("txtTheme", "")
        self.hands.hold_key("x", 1.2)
        self.assertGreater(self.content("txtTheme").count("x"), 3)
        self.hands.hold_key("BackSpace", 2.5)
        self.expect_content("txtTheme", "")
        self.expect_title("Quillor | Inventor")

    def test_question_mark_gives_help_and_backspace_leads_back(self):
        self.click("txtTheme")
        self.type("?")
        self.answer(self.words.file_name_help, self.words.ok)
        self.answer(self.words.back_help, self.words.ok)
        self.expect_content("txtTheme", "")
        self.key("BackSpace")
        self.expect_title(self.words.menu_title)

    def test_phrase_field_copies_by_its_own_rules(self):
        self.click("txtWord")
        self.type("ana")
        self.key("shift+Left", "ctrl+c", "Home", "ctrl+v")
        self.expect_content("txtWord", "aana")
        self.key("End", "shift+Left", "ctrl+x")
        self.expect_content("txtWord", "n")


class InventorInEnglish(InventorInSpanish):
    english = True
    tag = ""
