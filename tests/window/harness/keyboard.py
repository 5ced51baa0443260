"""Keys for the letters that the virtual keyboard lacks.

Given once, before any program looks at the keyboard: giving them while typing
confuses the case of letters and is slower.
"""

from Xlib import display

# Small letter and capital of each key.
EXTRA_KEYS = ("áÁ", "àÀ", "éÉ", "èÈ", "íÍ", "ìÌ", "ñÑ", "óÓ", "òÒ", "úÚ", "ùÙ", "üÜ", "¿¡", "çÇ")
NO_SYMBOL = 0


def add_keys(display_name):
    """Puts the extra letters on key codes that have no meaning so far."""
    connection = display.Display(display_name)
    lowest, highest = connection.display.info.min_keycode, connection.display.info.max_keycode
    rows = connection.get_keyboard_mapping(lowest, highest - lowest + 1)
    free = [lowest + i for i, row in enumerate(rows) if all(symbol == NO_SYMBOL for symbol in row)]
    # Symbols of Latin-1 letters have the letters' own numbers.
    for key_code, letters in zip(free[-len(EXTRA_KEYS):], EXTRA_KEYS, strict=True):
        connection.change_keyboard_mapping(key_code, [[ord(letter) for letter in letters]])
    connection.sync()
    connection.close()
