"""Real keys and real clicks, sent through the X server."""


class Hands:
    def __init__(self, desktop):
        self._desktop = desktop

    def _do(self, *words):
        self._desktop.run(["xdotool", *map(str, words)])

    def move(self, place):
        """Puts the mouse on the middle of a rectangle."""
        left, top, width, height = place
        self._do("mousemove", "--sync", left + width // 2, top + height // 2)

    def click(self, place, button=1, times=1):
        self.move(place)
        self._do("click", "--repeat", times, "--delay", 60, button)

    def hold(self, place):
        self.move(place)
        self._do("mousedown", 1)

    def release(self):
        self._do("mouseup", 1)

    def key(self, *names):
        """Presses keys one after the other, by their X names: "a", "Return", "ctrl+e"."""
        self._do("key", "--delay", 30, *names)

    def hold_key(self, name, seconds):
        """Holds a key for so long, in which it repeats; the keyboard waits 0.66 s at first."""
        self._do("keydown", name, "sleep", seconds, "keyup", name)

    def type(self, text):
        """Types a text; characters that are on no key of the keyboard work too."""
        self._do("type", "--delay", 30, "--", text)
