"""Wayland desktops in memory."""

import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from . import processes
from .virtual_desktop import VirtualDesktop
from .waiting import NotYet, until

SOCKET = "quillor-test"
STARTS = 4


def is_there():
    return shutil.which("weston") is not None


class WaylandDesktop:
    """Has no keyboard and no mouse, so no window on it is ever active.

    Is ready once made; `close` takes it down, whatever has happened."""

    def __init__(self):
        self.scratch = Path(tempfile.mkdtemp(prefix="quillor-wayland-"))
        self.environment = self._make_environment()
        self._log = open(self.scratch / "weston.log", "wb")
        self._server = processes.start(
            ["weston", "--backend=headless-backend.so", "--use-pixman", "--width=1600",
             "--height=1000", "--idle-time=0", f"--socket={SOCKET}"],
            self.environment, self._log,
        )
        try:
            until(self._answers, "the Wayland desktop")
        except BaseException:
            self.close()
            raise

    def _make_environment(self):
        kept = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
        for name in ("HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            folder = self.scratch / name.lower()
            folder.mkdir(mode=0o700)
            environment[name] = str(folder)
        environment.update(
            LANG="C.UTF-8",
            XDG_SESSION_TYPE="wayland",
            QT_QPA_PLATFORM="wayland",
            WAYLAND_DISPLAY=SOCKET,
            # Qt 6.4's own input method for Wayland crashes where there is no keyboard.
            QT_IM_MODULE="compose",
        )
        return environment

    def _answers(self):
        return (Path(self.environment["XDG_RUNTIME_DIR"]) / SOCKET).exists()

    def run(self, command, seconds):
        """Runs a program to its end; returns its exit code and what it wrote."""
        done = subprocess.run(
            command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, timeout=seconds,
        )
        return done.returncode, done.stdout

    def close(self):
        processes.end(processes.marked_with(str(self.scratch)))
        self._server.wait()
        self._log.close()
        shutil.rmtree(self.scratch, ignore_errors=True)


class WaylandInAWindow(VirtualDesktop):
    """A Wayland desktop that is a window of an X desktop, and has its keyboard.

    Its windows are known to the screen reader alone.
    """

    is_wayland = True

    def _start_manager(self):
        """Now and then the compositor hangs before its window opens; then it is started again."""
        super()._start_manager()
        for _ in range(STARTS):
            self._start_process(
                ["weston", "--backend=x11-backend.so", "--use-pixman", "--no-config",
                 "--width=1400", "--height=900", "--idle-time=0", f"--socket={SOCKET}"]
            )
            try:
                until(self.windows.active, "the Wayland desktop to have the keyboard", patience=8)
                return
            except NotYet:
                processes.end([self._servers[-1].pid])
        raise RuntimeError("the Wayland desktop does not start")

    def start_program(self, command, extra_environment, log):
        on_wayland = {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET,
                      "XDG_SESSION_TYPE": "wayland"}
        return super().start_program(command, {**extra_environment, **on_wayland}, log)
