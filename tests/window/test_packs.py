"""The topics that come with the program: laid out once, loaded, and dealt from."""

import os
import shutil

from harness.player import Player
from harness.program import executable


class Packs(Player):
    """A copy of the installed program, which keeps everything in its own folder."""

    def setUp(self):
        super().setUp()
        shutil.rmtree(self.folder)
        shutil.copytree(executable().parent, self.folder)
        for left in ("Temas", "Topics"):
            shutil.rmtree(self.folder / left, ignore_errors=True)
        (self.folder / "Quillor-Packs.txt").unlink(missing_ok=True)
        if self.english:
            self.put("English.txt", "")

    def start_own(self):
        self.start_at_menu(binary=self.folder / "quillor", own_folder=True)

    def carried(self, folder):
        return sorted(os.listdir(self.folder / "packs" / folder))

    def laid_out(self, folder):
        return sorted(os.listdir(self.folder / folder))


class LaidOut(Packs):
    def test_once_beside_the_program(self):
        self.put("Temas/Aves.txt", "MÍO\nuno\ndos\n")
        self.start_own()
        for folder in ("Temas", "Topics"):
            self.assertEqual(self.laid_out(folder), self.carried(folder))
        self.assertEqual(
            self.get("Temas/El mar.txt"), self.get("packs/Temas/El mar.txt")
        )
        self.assertEqual(self.get("Temas/Aves.txt"), "MÍO\r\nuno\r\ndos\r\n".encode("cp1252"))
        self.end_program()
        self.put("Temas/Ropa.txt", "ROPA MÍA\nuno\ndos\n")
        (self.folder / "Topics/Birds.txt").unlink()
        self.start_own()
        self.assertEqual(self.laid_out("Temas"), self.carried("Temas"))
        self.assertNotIn("Birds.txt", self.laid_out("Topics"))
        self.assertIn("MÍA".encode("cp1252"), self.get("Temas/Ropa.txt"))

    def test_not_in_a_folder_that_was_given(self):
        given = self.folder / "given"
        given.mkdir()
        self.folder, own = given, self.folder
        self.start_at_menu(binary=own / "quillor")
        self.assertEqual(self.laid_out("Temas"), ["DEMO.txt"])


class Shared(Player):
    def test_named_on_the_command_line_is_copied_and_loaded(self):
        self.put_settings()
        topic = self.put("elsewhere/Mis aves.txt", "MIS AVES [español]\nbúho\nmirlo\n")
        self.put_topic("A", "LETRAS")
        self.start_at_menu(str(topic))
        self.answer(self.words.ask_restart, self.words.yes)
        self.expect_title(self.words.menu_title)
        self.assertEqual(self.get("Temas/Mis aves.txt"), topic.read_bytes())
        self.open_arcade()
        self.play_topic("MIS AVES")


class Dealt(Packs):
    def titles(self):
        """The titles in the order of the tour, which is that of the files."""
        names = sorted(self.carried(self.words.topic_folder), key=str.upper)
        lines = [self.get(f"packs/{self.words.topic_folder}/{name}") for name in names]
        return [
            line.decode("cp1252").splitlines()[0].replace(" [español]", "") for line in lines
        ]

    def test_from_each_on_a_tour(self):
        self.put_settings(line_5="1")
        self.start_own()
        self.open_arcade()
        titles = self.titles()
        self.key("Return")
        self.expect_title(self.words.select_topic)
        self.assertEqual(list(self.list_entries()), titles)
        self.key("Right", "Right", "Return")
        for number, title in enumerate(titles, 1):
            self.expect_playing(title)
            self.assertGreaterEqual(int(self.caption("lblCont").split("/")[1]), 3)
            self.key(*"1234567890")
            if number < len(titles):
                self.expect("lblStatus", self.words.dead)
                self.key("Return")
        self.answer(self.words.tour_completed, self.words.ok)


class DealtInEnglish(Dealt):
    english = True
