"""A desktop in memory: X server, session bus, accessibility bus, window manager."""

import contextlib
import os
import pwd
import shutil
import subprocess
import tempfile
from pathlib import Path

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from . import processes  # noqa: E402
from .keyboard import add_keys  # noqa: E402
from .waiting import until  # noqa: E402
from .windows import Windows  # noqa: E402

SCREEN = "1600x1000x24"
_CLIENT = (
    Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
)


class VirtualDesktop:
    """Is ready once made; `close` takes all of it down, whatever has happened."""

    is_wayland = False

    def __init__(self, user=None):
        self.user = user
        self.windows = None
        self._servers = []
        self.scratch = Path(tempfile.mkdtemp(prefix="quillor-window-"))
        self._log = open(self.scratch / "desktop.log", "wb")
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def _start(self):
        self.environment = self._make_environment()
        self.environment["DISPLAY"] = ":" + self._serve(
            ["Xvfb", "-displayfd", "{fd}", "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset",
             "-ac"]
        )
        add_keys(self.environment["DISPLAY"])
        address = self._serve(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={fd}"]
        )
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        with self._as_its_user():
            self.accessibility = self._accessibility_bus(address)
        self.windows = Windows(self.environment["DISPLAY"])
        self._start_manager()

    def _start_manager(self):
        """Without one no window is active and focus is lost after a dialog."""
        # It says that it manages windows a moment before it does; one that opens just then
        # is never shown.
        ready = self.scratch / "managed"
        self._start_process(["openbox", "--startup", f"touch {ready}"])
        until(ready.exists, "the window manager")

    def _make_environment(self):
        """Nothing of the tester's own desktop gets in, nothing is left in it."""
        kept = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
        for name in ("HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            folder = self.scratch / name.lower()
            folder.mkdir(mode=0o700)
            environment[name] = str(folder)
            self.give(folder)
        self.give(self.scratch)
        environment.update(
            LANG="C.UTF-8",
            GSETTINGS_BACKEND="memory",
            XDG_SESSION_TYPE="x11",
            QT_QPA_PLATFORM="xcb",
        )
        return environment

    def give(self, path):
        """Makes a file or folder the desktop user's own."""
        if self.user is not None:
            entry = pwd.getpwnam(self.user)
            os.chown(path, entry.pw_uid, entry.pw_gid)

    def _start_process(self, command, **options):
        started = processes.start(command, self.environment, self._log, self.user, **options)
        self._servers.append(started)

    def _serve(self, command):
        """Starts a server that writes where it can be reached to the file {fd}."""
        reader, writer = os.pipe()
        self._start_process(
            [word.replace("{fd}", str(writer)) for word in command], pass_fds=[writer]
        )
        os.close(writer)
        with os.fdopen(reader) as answer:
            line = answer.readline().strip()
        if not line:
            raise RuntimeError(f"{command[0]} did not start; see {self._log.name}")
        return line

    @contextlib.contextmanager
    def _as_its_user(self):
        """Buses talk to their own user only, not even to root."""
        if self.user is None:
            yield
            return
        os.seteuid(pwd.getpwnam(self.user).pw_uid)
        try:
            yield
        finally:
            os.seteuid(0)

    @staticmethod
    def _accessibility_bus(session_address):
        """Asking for its address starts it; the program has to find it running."""
        session = Gio.DBusConnection.new_for_address_sync(session_address, _CLIENT, None, None)
        answer = session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
            None, GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, 20000, None,
        )
        session.close_sync(None)
        return Gio.DBusConnection.new_for_address_sync(answer.unpack()[0], _CLIENT, None, None)

    def run(self, command, check=True):
        """Runs a small tool on this desktop and returns what it printed."""
        done = subprocess.run(
            command, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True,
            text=True, timeout=60,
        )
        if check and done.returncode != 0:
            raise RuntimeError(f"{' '.join(command)}: {done.stderr.strip()}")
        return done.stdout

    def start_program(self, command, extra_environment, log):
        environment = {**self.environment, **extra_environment}
        return processes.start(command, environment, log, self.user)

    def close(self):
        if self.windows is not None:
            self.windows.close()
        processes.end(processes.marked_with(str(self.scratch)))
        for server in self._servers:
            server.wait()
        self._log.close()
        shutil.rmtree(self.scratch, ignore_errors=True)
