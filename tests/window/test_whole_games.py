"""Whole games without a mouse, in either language."""

import unittest

from harness.whole_games import WholeGames


class InSpanish(WholeGames):
    pass


class InEnglish(WholeGames):
    english = True


def load_tests(loader, _tests, _pattern):
    """Without the class that both have in common."""
    return unittest.TestSuite(map(loader.loadTestsFromTestCase, (InSpanish, InEnglish)))
