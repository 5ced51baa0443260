"""Drives the real program in a display of its own, as a player would."""
