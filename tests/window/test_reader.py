"""Whole games and every setting, from what the screen reader says and nothing else."""

import re
import unittest

from harness import reader
from harness.player import Player
from harness.waiting import until

# A key waits for the screen reader's leave; a loaded machine may be slow to give it.
LATE = (r"^QSpiApplication::(keyEventError|notifyKeyboardListenerCallback)",)


@unittest.skipUnless(reader.is_there(), "orca is not installed: not played by ear")
class ByEar(Player):
    expected_noise = LATE

    def setUp(self):
        super().setUp()
        self.put_topic("A", "LETRAS", ["PINGÜINO AZUL", "pingüino azul"])
        self.put_topic("B", "OTRAS", ["uno dos", "dos uno"])
        self.ear = reader.Reader(self.desktop)
        self.addCleanup(self.ear.close)
        self.ear.expect("Screen reader on")

    def begin(self, **settings):
        self.put_settings(**settings)
        self.start(environment={"QUILLOR_TEST_IDS": "0"})
        self.ear.expect("MODO ARCADE")
        self.key("space")
        self.ear.expect("JUGAR")
        self.key("space")
        self.ear.expect("LETRAS")

    def accept(self):
        """Takes the selected topic; returns the gaps of the new phrase."""
        self.key("Return")
        return self.gaps(self.ear.expect("TEMA: LETRAS", "Letras: 12"))

    @staticmethod
    def gaps(said):
        """The board at the end of what was said: a sign for each letter."""
        return re.findall(r"[_?A-ZÑÜ](?= )", re.split(r"Letras: \d+\. |de 6\. ", said)[-1])

    def test_arcade_game_is_won_by_letters(self):
        self.begin()
        board = self.accept()
        self.assertEqual(board, ["_"] * 12)
        for letter in "pinguoaz":
            self.key(letter)
            board = self.gaps(self.ear.expect(f"{letter.upper()}: sí"))
        self.assertEqual(board.count("_"), 1)
        self.key("l")
        said = self.ear.expect("VICTORIA", "PINGÜINO AZUL")
        self.assertRegex(said, r"Puntos de esta partida: \d+\. Puntaje: 1\d+")

    def test_arcade_game_is_lost_with_the_keys_of_the_screen(self):
        self.begin()
        self.accept()
        self.key("Right")
        for count, letter in enumerate("BCDEF", start=1):
            self.key("space")  # and the next key has the focus by itself
            self.ear.expect(f"{letter}: no", f"{count} de 6")
        self.key("w")
        said = self.ear.expect("MUERTO", "PINGÜINO AZUL")
        self.assertRegex(said, r"Puntos de esta partida: -\d+")

    def test_board_is_read_again_and_cell_by_cell(self):
        self.begin()
        self.accept()
        self.key("g")
        self.ear.expect("G: sí")
        self.key("F4")
        self.ear.expect("Tablero: _ _ _ G _")
        self.key("End", "Left")
        self.ear.expect("Casilla 11: por descubrir")

    def test_switches_and_ways_are_heard(self):
        self.begin()
        self.key("Right")
        self.ear.expect("Selección: REPETICIÓN")
        self.key("Left")
        self.ear.expect("Selección: MANUAL")
        self.accept()
        for key, said in (("ctrl+s", "Sonidos: sí"), ("ctrl+l", "Primera letra: sí"),
                          ("ctrl+o", "Letras ocultas: sí"), ("ctrl+t", "Selección: Turista"),
                          ("minus", "no es una tecla del juego")):
            self.key(key)
            self.ear.expect(said)

    def test_question_begins_with_no(self):
        self.begin()
        self.accept()
        self.key("Escape")
        self.ear.expect("abandonar esta partida")
        self.ear.expect("No")
        self.key("Return")
        self.key("g")
        self.ear.expect("G: sí")


# As often as letters are in Spanish: all that who plays by ear knows beforehand.
BY_FREQUENCY = "eaosrnidlctumpbgvyqhfzjñxkw"


@unittest.skipUnless(reader.is_there(), "orca is not installed: not played by ear")
class Blindfold(Player):
    """Knows no phrase, no place and no id: every step follows from what was heard."""

    expected_noise = LATE

    def setUp(self):
        super().setUp()
        self.ear = reader.Reader(self.desktop)
        self.addCleanup(self.ear.close)
        self.ear.expect("Screen reader on")

    def begin(self, *phrases):
        self.put_settings()
        if phrases:
            self.put_topic("A", "LETRAS", phrases)
        self.start(environment={"QUILLOR_TEST_IDS": "0"})
        self.ear.expect("MODO ARCADE")

    def go(self, key, *words):
        """Presses a key, at least once, until those words are heard."""
        after = self.ear.settled()
        for _ in range(60):
            heard = after
            self.key(key)
            until(lambda: len(self.ear.words()) > len(heard), "something to be heard")
            after = self.ear.settled()
            for said in after[len(heard):]:
                if all(word in said for word in words):
                    self.ear.new_words()
                    return said
        self.fail(f"{words} was never heard; the last was {self.ear.words()[-12:]}")

    def guess_until_the_end(self):
        """Tries letter after letter until the game is over; returns how that was said."""
        for letter in BY_FREQUENCY:
            self.key("ntilde" if letter == "ñ" else letter)
            said = self.ear.expect("notification")
            if "VICTORIA" in said or "MUERTO" in said:
                return said
            self.assertIn(f"{letter.upper()}: ", said)
        self.fail("the game never ended")

    def test_arcade_game_is_won(self):
        self.begin("la rosa", "las rosas")
        self.key("space")
        self.ear.expect("JUGAR")
        self.key("space")
        self.ear.expect("LETRAS")
        self.key("Return")
        self.ear.expect("TEMA: LETRAS", "Letras: ")
        said = self.guess_until_the_end()
        self.assertIn("VICTORIA", said)
        self.assertRegex(said, "La respuesta: (LA ROSA|LAS ROSAS)")

    def test_arcade_game_is_lost(self):
        self.begin("kiwi", "kiwis")
        self.key("space")
        self.ear.expect("JUGAR")
        self.key("space")
        self.ear.expect("LETRAS")
        self.key("Return")
        self.ear.expect("Letras: ")
        said = self.guess_until_the_end()
        self.assertIn("MUERTO", said)
        self.assertIn("La respuesta: KIWI", said)

    def test_classic_game_is_set_and_played(self):
        self.begin()
        self.go("Down", "MODO CLÁSICO")
        self.key("space")
        self.ear.expect("JUGAR")
        self.key("space")
        self.ear.expect("Frase")
        self.type("la rosa")
        self.go("Tab", "Tema")
        self.type("flores")
        self.go("Tab", "ACEPTAR")
        self.key("space")
        self.ear.expect("TEMA: FLORES", "Letras: 6")
        self.assertIn("VICTORIA", self.guess_until_the_end())

    def test_topic_is_invented_and_played(self):
        self.begin()
        self.go("Down", "INVENTOR")
        self.key("space")
        self.ear.expect("Nombre del tema")
        self.type("flores")
        self.go("Tab", "Frase a agregar")
        for phrase in ("la rosa", "las rosas"):
            self.type(phrase)
            self.key("Return")
        self.go("Tab", "GUARDAR Y CREAR push button")
        self.key("space")
        self.ear.expect("reiniciar el juego")
        self.ear.expect("Sí push button")
        self.key("space")
        self.ear.expect("MODO ARCADE")
        self.key("space")
        self.ear.expect("JUGAR")
        self.key("space")
        self.ear.expect("notification")
        self.go("Down", "FLORES")
        self.key("Return")
        self.ear.expect("TEMA: FLORES", "Letras: ")
        self.assertIn("VICTORIA", self.guess_until_the_end())

    def test_every_setting_is_changed(self):
        self.begin()
        self.go("Down", "AJUSTES")
        self.key("space")
        self.ear.expect("Quillor | Ajustes")
        self.go("Tab", "USAR WIKIPEDIA")
        for name in ("USAR WIKIPEDIA", "PUNTAJE DIFÍCIL", "PUNTAJE INFINITO", "CONTRA RELOJ"):
            if name != "USAR WIKIPEDIA":
                self.go("Down", name, "not checked")
            self.go("space", "checked")
        for key, design in (("1", "Tinta negra"), ("2", "Tinta azul"), ("3", "Fondo negro"),
                            ("4", "Fondo azul")):
            self.key(key)
            self.ear.expect("Diseño: ", design)
        self.assertEqual(self.get("Quillor-Config.ini").decode().split()[:7],
                         ["3", "0", "1", "0", "1", "1", "1"])
