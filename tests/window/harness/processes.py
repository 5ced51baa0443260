"""Child processes that are certain to be gone afterwards."""

import os
import signal
import subprocess
from pathlib import Path

from .waiting import NotYet, until


def is_alive(pid):
    """Whether a process runs; one that only waits to be collected does not."""
    try:
        state = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0]
    except OSError:
        return False
    return state != "Z"


def marked_with(text):
    """The processes whose environment holds the text, youngest first.

    Servers that the session bus starts are nobody's children any more; the
    private folder in their environment tells that they are ours.
    """
    found = []
    for entry in Path("/proc").iterdir():
        if not entry.name.isdigit() or int(entry.name) == os.getpid():
            continue
        try:
            environment = (entry / "environ").read_bytes()
        except OSError:
            continue  # ended meanwhile, or another user's
        if text.encode() in environment:
            found.append(int(entry.name))
    return sorted(found, reverse=True)


def binary(pid):
    """The file that a process runs. Raises OSError when it has ended."""
    return Path(os.readlink(f"/proc/{pid}/exe"))


def end(pids):
    """Ends processes by their ids: first with a request, then for good."""
    for sign in (signal.SIGTERM, signal.SIGKILL):
        for pid in pids:
            try:
                os.kill(pid, sign)
            except ProcessLookupError:
                pass
        try:
            until(lambda: not any(is_alive(pid) for pid in pids), "processes to end", patience=5)
            return
        except NotYet:
            continue


def start(command, environment, log, user=None, **options):
    """Starts a command, its output going to the file `log`.

    With `user` the command runs as that user, which only root can ask for.
    """
    if user is not None:
        options.update(user=user, group="nogroup", extra_groups=[])
    return subprocess.Popen(
        command,
        env=environment,
        stdin=subprocess.DEVNULL,
        stdout=options.pop("stdout", log),
        stderr=log,
        **options,
    )
