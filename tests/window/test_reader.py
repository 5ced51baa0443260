"""A whole game by keyboard alone, from what the screen reader says and nothing else."""

import re
import unittest

from harness import reader
from harness.player import Player

# A key waits for the screen reader's leave; a loaded machine may be slow to give it.
LATE = (r"^QSpiApplication::keyEventError",)


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
