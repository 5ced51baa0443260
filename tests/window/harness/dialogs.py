"""Message, question and input boxes, read and answered as a player would."""

from .tree import Gone, Role
from .waiting import until


class Dialogs:
    """Mixed into the scenarios."""

    def expect_dialog(self, text):
        """Waits for a box titled "Quillor" with that text and returns its window."""
        return until(
            lambda: self._find_dialog(text),
            lambda: f"a box with {text!r}; there are {self._all_texts()}",
        )

    def _find_dialog(self, text):
        for dialog in self.program.dialogs():
            if text in self._texts(dialog):
                return dialog
        return None

    def dialog_buttons(self, dialog):
        """The captions of a box's buttons, sorted."""
        return sorted(self._buttons(dialog))

    def answer(self, text, button):
        """Clicks a button of the box with that text and waits until the box is gone."""
        dialog = self.expect_dialog(text)
        self.hands.click(self._buttons(dialog)[button].place)
        self.expect_no_dialog(text)

    def answer_input(self, prompt, typed):
        """Types an answer into the input box with that prompt."""
        self.expect_dialog(prompt)
        self.hands.type(typed)
        self.hands.key("Return")
        self.expect_no_dialog(prompt)

    def expect_no_dialog(self, text):
        until(
            lambda: self._find_dialog(text) is None, f"the box with {text!r} to close"
        )

    @staticmethod
    def _texts(dialog):
        try:
            shown = [node.name for node in dialog.below() if node.role == Role.LABEL]
            return [text.replace("\r\n", "\n") for text in shown]
        except Gone:
            return []

    def _all_texts(self):
        return [self._texts(dialog) for dialog in self.program.dialogs()]

    @staticmethod
    def _buttons(dialog):
        return {node.name: node for node in dialog.below() if node.role == Role.PUSH_BUTTON}
