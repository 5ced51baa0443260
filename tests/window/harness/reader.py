"""The usual Linux screen reader, and what it says, as text.

It runs on the scenario's desktop without any sound; every utterance stands in its debug
file in the moment it would be heard.
"""

import re
import shutil
import time
from pathlib import Path

from . import processes
from .waiting import until

UTTERANCE = re.compile(r"SPEECH OUTPUT: '(.*?)' ?\{'", re.DOTALL)

PAUSE = 0.4  # seconds; what belongs together is said within it

# Each line of the file is to be had at once, and no speech server is waited for: what is
# handed to speech is written down in any case.
CUSTOM = """
from orca import debug, speech
debug.debugFile.reconfigure(line_buffering=True)
speech.init = lambda: None
"""


def is_there():
    return shutil.which("orca") is not None


class Reader:
    def __init__(self, desktop):
        self._desktop = desktop
        self._debug = desktop.scratch / "orca.debug"
        self._log = open(desktop.scratch / "orca.log", "wb")
        self._heard = 0
        own = Path(desktop.environment["XDG_DATA_HOME"]) / "orca"
        own.mkdir()
        (own / "orca-customizations.py").write_text(CUSTOM)
        environment = {**desktop.environment, "PYTHONDONTWRITEBYTECODE": "1"}
        self.process = processes.start(
            ["orca", "--replace", f"--debug-file={self._debug}", "--disable=braille"],
            environment, self._log,
        )

    def words(self):
        """Everything that was said so far, an utterance each."""
        if not self._debug.exists():
            return []
        return UTTERANCE.findall(self._debug.read_text(errors="replace"))

    def settled(self):
        """Everything that was said, once nothing more is for a moment."""
        before = []
        while before != self.words():
            before = self.words()
            time.sleep(PAUSE)
        return before

    def new_words(self):
        """What was said since this was asked last."""
        words = self.words()
        new, self._heard = words[self._heard:], len(words)
        return new

    def expect(self, *parts, patience=20):
        """Waits until an utterance since the last call holds all parts, and returns it.

        What was said up to it is over then.
        """

        def look():
            words = self.words()
            for index in range(self._heard, len(words)):
                if all(part in words[index] for part in parts):
                    self._heard = index + 1
                    return words[index]
            return None

        return until(
            look, lambda: f"{parts} to be heard; heard was {self.words()[-12:]}", patience=patience
        )

    def close(self):
        processes.end([self.process.pid])
        self.process.wait()
        self._log.close()
