"""The packed Windows program is started, played and set up as on other systems."""

import shlex
import subprocess

from harness.player import QUIET, SAME_LETTERS
from harness.waiting import until
from test_first_start import ENGLISH_SAMPLE, FIRST_SETTINGS, SPANISH_SAMPLE, stored
from windows_player import PATIENCE, PICTURES, WindowsPlayer

WON = "rgb(30,180,30)"
LOST = "rgb(250,30,30)"


def lines(*texts):
    return "".join(text + "\r\n" for text in texts).encode("cp1252")


class FirstStart(WindowsPlayer):
    sample = SPANISH_SAMPLE
    added = set()

    def test_leaves_the_settings_and_the_sample_beside_the_program(self):
        self.start_at_menu()
        topic = f"{self.words.topic_folder}/DEMO.txt"
        self.assertEqual(self.new_files(), {"Quillor-Config.ini", topic} | self.added)
        self.assertEqual(self.get("Quillor-Config.ini"), FIRST_SETTINGS)
        self.assertEqual(self.get(topic), stored(self.sample))
        self.picture(f"menu-{type(self).__name__}")


class FirstStartInEnglish(FirstStart):
    english = True
    sample = ENGLISH_SAMPLE
    added = {"English.txt"}


class Packs(WindowsPlayer):
    packs = True

    def test_are_laid_out_beside_the_program(self):
        self.start_at_menu()
        carried = {name.removeprefix("packs/") for name in self.packed if name.startswith("packs/")}
        self.assertGreaterEqual(len(carried), 80)
        self.assertEqual(
            self.new_files(), {"Quillor-Config.ini", "Quillor-Packs.txt"} | carried
        )
        for name in carried:
            self.assertEqual(self.get(name), self.get("packs/" + name))


class Console(WindowsPlayer):
    def says(self, *arguments):
        told = subprocess.run(
            ["wine", str(self.folder / "Quillor.exe"), *arguments],
            env=self.desktop.environment, capture_output=True, timeout=PATIENCE,
        )
        return told.returncode, told.stdout.decode()

    def test_help_version_and_findings_are_printed(self):
        self.put("bad.txt", "UNO\n")
        self.assertEqual(self.says("--version")[0], 0)
        self.assertRegex(self.says("--version")[1], r"^Quillor \d+\.\d+\.\d+")
        self.assertIn("--folder", self.says("--help")[1])
        code, findings = self.says("--check-topics", "Z:" + str(self.folder / "bad.txt"))
        self.assertEqual(code, 1)
        self.assertIn("bad.txt:", findings)

    def console_says(self, *arguments):
        """On a console of Windows' own, which stands in a terminal here, and in its letters."""
        command = shlex.join(["wine", "cmd", "/c", "start", "/wait", "Quillor.exe", *arguments])
        told = subprocess.run(
            ["script", "--quiet", "--return", "--command", command, "/dev/null"],
            env=self.desktop.environment, cwd=self.folder, stdin=subprocess.DEVNULL,
            capture_output=True, timeout=PATIENCE,
        )
        return told.stdout.decode()

    def test_console_shows_what_is_printed(self):
        self.put("bad.txt", "UNO\n")
        self.assertRegex(self.console_says("--version"), r"Quillor \d+\.\d+\.\d+")
        self.assertIn("--check-topics", self.console_says("--help"))
        self.assertIn("bad.txt:", self.console_says("--check-topics", "bad.txt"))


class SecondStart(WindowsPlayer):
    def setUp(self):
        super().setUp()
        self.put("Quillor-Config.ini", QUIET)
        self.put("Temas/Letras.txt", "\n".join(["LETRAS", *SAME_LETTERS]) + "\n")
        self.start_at_menu()
        self.window = self.desktop.windows.active()

    def again(self, *arguments):
        """Starts the program once more; returns what it ends with."""
        first = self.process
        self.start(*arguments)
        second, self.process = self.process, first
        return second.wait(PATIENCE)

    def test_leaves_the_first_in_front(self):
        self.assertEqual(self.again(), 0)
        self.assertEqual(self.desktop.windows.ids(), [self.window])
        self.assertEqual(self.title(), self.words.menu_title)

    def test_hands_its_topics_to_the_first(self):
        self.put("NUEVO.txt", "NUEVO [español]\nuna frase\notra frase\n")
        self.assertEqual(self.again("Z:" + str(self.folder / "NUEVO.txt")), 0)
        until(lambda: (self.folder / "Temas/NUEVO.txt").exists(), "the topic", PATIENCE)
        self.expect_title("Quillor")  # the question whether to load it
        self.picture("topic-of-a-second-start")


class Games(WindowsPlayer):
    def setUp(self):
        super().setUp()
        self.put("Quillor-Config.ini", QUIET)
        self.put("Temas/Letras.txt", "\n".join(["LETRAS", *SAME_LETTERS]) + "\n")
        self.start_at_menu()
        self.open("a", self.words.arcade_title)

    def deal(self, title):
        self.open("Return", self.words.select_topic)
        self.open("Return", title)

    def test_one_is_won_and_one_is_lost_by_keyboard(self):
        self.deal(self.words.arcade_title)
        self.key("a", "b", "c")
        self.expect_much_of(WON, "game-won")
        self.deal(f"{self.words.arcade_title} [1]")
        self.picture("game-begun")
        self.key("a", "d", "e", "f", "g", "h", "i")
        self.expect_much_of(LOST, "game-lost")
        self.open("F2", self.words.menu_title)

    def test_one_in_play_is_left_only_after_asking(self):
        self.deal(self.words.arcade_title)
        self.open("F2", "Quillor")
        self.picture("question")
        self.open("Escape", self.words.arcade_title)
        self.key("b")
        self.open("F2", "Quillor")
        self.open("Escape", self.words.arcade_title)


class Settings(WindowsPlayer):
    def test_are_on_the_disk_at_once_and_come_back(self):
        self.put("Quillor-Config.ini", QUIET)
        self.start_at_menu()
        self.open("s", self.words.settings_title)
        held = ["0"] * 10 + [""]  # no topic is kept
        for key, line, value in (("w", 2, "1"), ("d", 4, "1"), ("c", 6, "1"), ("4", 0, "3")):
            self.key(key)
            held[line] = value
            self.expect_file("Quillor-Config.ini", lines(*held))
        self.picture("settings")
        self.open("BackSpace", self.words.menu_title)
        self.open("a", self.words.arcade_title + self.words.hard_and_time)


class Inventor(WindowsPlayer):
    def setUp(self):
        super().setUp()
        self.put("Quillor-Config.ini", QUIET)

    def write_topic(self, name, *phrases):
        self.open("i", "Quillor | Inventor")
        self.hands.type(name)
        self.key("Return")
        for phrase in phrases:
            self.hands.type(phrase)
            self.key("Return")

    def save(self):
        """From the phrase field past its two buttons to the list, where Return saves."""
        self.key("Tab", "Tab", "Tab")
        self.open("Return", "Quillor")
        self.picture("restart-question")

    def test_topic_is_played_after_the_restart(self):
        self.start_at_menu()
        self.write_topic("Años", "ñab", "añb", "bañ")
        self.picture("inventor")
        self.save()
        self.assertEqual(self.get("Temas/AÑOS.txt"), lines("AÑOS [español]", "ñab", "añb", "bañ"))
        self.open("Return", self.words.menu_title)
        self.open("a", self.words.arcade_title)
        self.open("Return", self.words.select_topic)
        self.open("Return", self.words.arcade_title)
        self.picture("own-topic-begun")
        self.key("a", "b", "ntilde")
        self.expect_much_of(WON, "own-topic-won")


class Tour(WindowsPlayer):
    def test_plays_itself_through_every_screen(self):
        pictures = PICTURES / "tour"
        windows_path = "Z:" + str(pictures).replace("/", "\\")
        self.start("--tour", windows_path)
        self.assertEqual(self.process.wait(PATIENCE * 5), 0)
        self.assertGreater(len(list(pictures.glob("*.png"))), 20)
