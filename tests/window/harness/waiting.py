"""Waiting for something to become so: by asking again, and never for ever."""

import time

PATIENCE = 20.0  # seconds; a loaded machine with two cores stays far below
PAUSE = 0.02  # seconds between two looks


class NotYet(AssertionError):
    """What was waited for did not come in time."""


def until(look, what, patience=PATIENCE):
    """Returns the first true result of `look`; raises NotYet with the last one.

    `what` says what was waited for: a text, or a function that makes one.
    """
    deadline = time.monotonic() + patience
    while True:
        result = look()
        if result:
            return result
        if time.monotonic() > deadline:
            said = what() if callable(what) else what
            raise NotYet(f"waited {patience:g} s for {said}; last seen: {result!r}")
        time.sleep(PAUSE)
