"""Stands in for the program that the desktop opens files and addresses with."""

from .waiting import until


class Opener:
    """Mixed into scenarios that hand something to another program."""

    def with_opener(self):
        """An environment in which xdg-open only notes down what it was given."""
        self.opened = self.desktop.scratch / "opened"
        folder = self.desktop.scratch / "bin"
        folder.mkdir()
        opener = folder / "xdg-open"
        opener.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >>"{self.opened}"\n')
        opener.chmod(0o755)
        return {"PATH": f"{folder}:{self.desktop.environment['PATH']}"}

    def expect_opened(self, look):
        """Waits until what was opened so far, a line each, satisfies `look`."""
        until(
            lambda: self.opened.exists() and look(self.opened.read_text()),
            lambda: f"an opening; {self.opened.exists() and self.opened.read_text()!r} so far",
        )
