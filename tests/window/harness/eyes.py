"""What a player sees, and waiting until it is as expected."""

from .tree import Gone, State
from .waiting import until


class Eyes:
    """Mixed into the scenarios."""

    def caption(self, control_id):
        """The text on a control as it would be read out; None when it is not on show."""
        return self._read(control_id, "name")

    def content(self, control_id):
        """The text in a field; None when it is not on show."""
        return self._read(control_id, "text")

    def tip(self, control_id):
        """The tool tip of a control; None when it is not on show."""
        return self._read(control_id, "description")

    def _read(self, control_id, what):
        try:
            node = self.program.shown(control_id)
            return None if node is None else getattr(node, what)
        except Gone:
            return None

    def is_enabled(self, control_id):
        try:
            node = self.program.shown(control_id)
            return node is not None and node.has(State.ENABLED)
        except Gone:
            return False

    def focused(self):
        """The id of the control that has the keyboard."""
        try:
            for control_id, node in self.program.controls().items():
                if node.has(State.FOCUSED):
                    return control_id
        except Gone:
            pass
        return None

    def expect(self, control_id, caption):
        """Waits until a control shows that caption."""
        self.expect_any(control_id, (caption,))

    def expect_any(self, control_id, captions):
        """Waits until a control shows one of the captions and returns it."""
        found = until(
            lambda: [shown for shown in [self.caption(control_id)] if shown in captions],
            lambda: f"{control_id} to show {captions}; it shows {self.caption(control_id)!r}",
        )
        return found[0]

    def expect_content(self, control_id, text):
        until(
            lambda: self.content(control_id) == text,
            lambda: f"{control_id} to hold {text!r}; it holds {self.content(control_id)!r}",
        )

    def expect_shown(self, control_id):
        return until(lambda: self.program.shown(control_id), f"{control_id} to appear")

    def expect_hidden(self, control_id):
        until(lambda: self.program.shown(control_id) is None, f"{control_id} to disappear")

    def expect_focus(self, control_id):
        until(
            lambda: self.focused() == control_id,
            lambda: f"{control_id} to have the keyboard; it is with {self.focused()}",
        )

    def expect_title(self, title):
        """Waits until the window with the keyboard has that title."""
        until(
            lambda: self.program.title() == title,
            lambda: f"the title {title!r}; the windows are {self.program.titles()}",
        )

    def expect_file(self, name, content):
        """Waits until a file of the program folder holds exactly those bytes."""
        until(
            lambda: self._held(name) == content,
            lambda: f"{name} to hold {content!r}; it holds {self._held(name)!r}",
        )

    def _held(self, name):
        try:
            return self.get(name)
        except OSError as problem:
            return str(problem)
