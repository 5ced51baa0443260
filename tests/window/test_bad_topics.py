"""Topic folders and files that are not as they should be."""

from harness.bad_input import BadInput
from harness.player import SAME_LETTERS


class BadTopicFolder(BadInput):
    def test_file_in_place_of_the_folder_leaves_no_topics(self):
        self.put("Temas", b"not a folder")
        self.assertEqual(self.survives(), "box")
        self.answer(self.words.no_topics, self.words.ok)
        self.expect("lblStatus", self.words.new_game)

    def test_folder_in_place_of_a_file_spares_the_topics_before_it(self):
        self.put_topic("A", "PRIMERO")
        self.put("Temas/B.txt/inner", b"")
        self.survives()
        self.wins("PRIMERO")

    def test_other_files_are_no_topics(self):
        self.put_topic("A", "PRIMERO")
        self.put("Temas/B.text", "OTRO\nabc\ncab\n")
        self.put("Temas/C.TXT", "TERCERO\nabc\ncab\n")
        self.survives()
        self.assertEqual(list(self.list_entries()), ["PRIMERO", "TERCERO"])


class BadTopicFile(BadInput):
    def setUp(self):
        super().setUp()
        self.put_topic("A", "PRIMERO")

    def refused(self, entry):
        """Choosing the entry is answered by the box about too few phrases."""
        self.hands.click(self.list_entries()[entry].place)
        self.click("lblOk(1)")
        self.answer(self.words.too_few_phrases, self.words.ok)

    def test_52nd_line_ends_the_loading(self):
        self.put_topic("B", "LARGO", ["abc", "cab"] * 25 + ["bca"])
        self.put_topic("C", "DETRÁS")
        self.survives()
        self.assertEqual(list(self.list_entries()), ["PRIMERO", "LARGO", ""])
        self.wins("LARGO")

    def test_fifty_phrases_are_no_more_than_fit(self):
        self.put_topic("B", "LLENO", ["abc", "cab"] * 25)
        self.put_topic("C", "DETRÁS")
        self.survives()
        self.assertEqual(list(self.list_entries()), ["PRIMERO", "LLENO", "DETRÁS"])

    def test_line_of_ten_megabytes_is_no_obstacle(self):
        self.put("Temas/B.txt", b"ENORME\r\n" + b"x" * 10_000_000 + b"\r\nabc\r\n")
        self.survives()
        self.wins("PRIMERO")

    def test_empty_file_is_refused_for_its_lack_of_phrases(self):
        self.put("Temas/B.txt", b"")
        self.survives()
        self.refused("")
        self.wins("PRIMERO")

    def test_title_alone_is_refused_for_its_lack_of_phrases(self):
        self.put_topic("B", "SOLO", [])
        self.survives()
        self.refused("SOLO")

    def test_bytes_that_are_no_text_are_no_obstacle(self):
        self.put("Temas/B.txt", bytes(range(256)) * 20 + b"\0\r\n\0\0\r\n\0\r\n")
        self.survives()
        self.wins("PRIMERO")

    def test_utf_8_with_a_mark_is_read_as_such(self):
        lines = ["PIÑATA", *SAME_LETTERS]
        self.put("Temas/B.txt", "\ufeff".encode() + "\n".join(lines).encode())
        self.survives()
        self.wins("PIÑATA")

    def test_lines_that_end_in_other_ways_are_read_too(self):
        self.put("Temas/B.txt", b"UNIX\nabc\ncab\n")
        self.put("Temas/C.txt", b"MAC\rabc\rcab\r")
        self.survives()
        self.assertEqual(list(self.list_entries()), ["PRIMERO", "UNIX", "MAC"])


class BadPhrases(BadInput):
    def play(self, *phrases):
        self.put_topic("A", "PRIMERO", phrases)
        self.survives()
        self.choose_topic("PRIMERO")

    def test_sixty_letters_without_a_blank_do_not_stop_the_program(self):
        self.play("ab" * 30, "ba" * 30)
        self.key("a")
        self.expect_shown("lblCont")
        self.program.check_alive()
        self.key("F2")
        self.answer(self.words.leave_game, self.words.yes)
        self.expect_title(self.words.menu_title)

    def test_characters_of_no_key_can_still_be_answered(self):
        self.play("a-b", "b-a")
        self.expect("lblCont", "0/3")
        self.key("a", "b")
        self.expect("lblCont", "2/3")
        self.key("ctrl+e")
        self.expect_shown("lblCont")
        shown = [self.caption(f"lblLetter({i})") for i in (1, 3)]
        self.answer_input(self.words.enter_answer, "-".join(shown))
        self.expect("lblStatus", self.words.won)

    def test_phrase_for_more_than_three_rows_is_cut_with_a_word(self):
        words = " ".join(["abcabcabcabc"] * 4)
        self.put_topic("A", "PRIMERO", [words, words.replace("b", "c")])
        self.survives()
        self.hands.click(self.list_entries()["PRIMERO"].place)
        self.click("lblOk(1)")
        self.answer(self.words.phrase_cut, self.words.ok)
        self.expect("lblCont", "0/36")
