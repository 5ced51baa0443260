"""The real program, running on a virtual desktop in a program folder of its own."""

import os
import signal
from pathlib import Path

from . import tree
from .tree import Gone, Role, State
from .waiting import until

DIALOG_ROLES = (Role.DIALOG, Role.ALERT)


class ProgramEnded(AssertionError):
    """The program is gone although nobody asked it to end."""


def executable():
    """The program under test; the build says where it is."""
    return Path(os.environ["QUILLOR_PROGRAM"])


class Program:
    def __init__(
        self, desktop, folder, arguments=(), environment=None, binary=None, own_folder=False
    ):
        self.desktop = desktop
        self.folder = folder
        self._known = {}  # control id -> Node
        self._log_path = desktop.scratch / "program.log"
        settings = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QUILLOR_TEST_IDS": "1"}
        named = [] if own_folder else ["--folder", str(folder)]
        command = [str(binary or executable()), *named, *arguments]
        with open(self._log_path, "wb") as log:
            self.process = desktop.start_program(command, {**settings, **(environment or {})}, log)

    # What is there

    def noise(self):
        """The lines that the program wrote to standard output and standard error."""
        return self._log_path.read_text(errors="replace").splitlines()

    def has_ended(self):
        return self.process.poll() is not None

    def check_alive(self):
        if self.has_ended():
            raise ProgramEnded(
                f"the program ended with {self.process.returncode}: " + "\n".join(self.noise())
            )

    def windows(self):
        """The program's windows that are on show, as the screen reader knows them."""
        self.check_alive()
        try:
            found = [
                window
                for application in tree.applications(self.desktop.accessibility)
                for window in application.children
            ]
        except Gone:
            return []
        return [window for window in found if self._is_showing(window)]

    @staticmethod
    def _is_showing(node):
        try:
            return node.has(State.SHOWING)
        except Gone:
            return False

    def titles(self):
        """The titles of the windows that the window manager shows, oldest first."""
        if self.desktop.is_wayland:
            return self._named(State.SHOWING)
        windows = self.desktop.windows
        return [windows.title(window) for window in windows.ids()]

    def _named(self, state):
        """The names of the windows in that state, as the screen reader knows them."""
        try:
            return [window.name for window in self.windows() if window.has(state)]
        except Gone:
            return []

    def title(self):
        """The title of the window that has the keyboard, or None."""
        self.check_alive()
        if self.desktop.is_wayland:
            return next(iter(self._named(State.ACTIVE)), None)
        active = self.desktop.windows.active()
        return None if active is None else self.desktop.windows.title(active)

    # Controls

    def find(self, control_id):
        """The control with that id, or None. One on show goes before a hidden one."""
        self.check_alive()
        node = self._known.get(control_id)
        if node is None or not self._is_still(node, control_id):
            self._look_around()
            node = self._known.get(control_id)
        return node

    def _is_still(self, node, control_id):
        try:
            return node.has(State.SHOWING) and node.id == control_id
        except Gone:
            return False

    def _look_around(self):
        self._known = {}
        for window in self.windows():
            try:
                for node in window.below():
                    self._remember(node)
            except Gone:
                continue  # it closed while it was read

    def _remember(self, node):
        control_id = node.id
        if control_id is None:
            return
        # A dialog comes after the window that it stands over, and goes before it.
        known = self._known.get(control_id)
        if known is None or self._is_showing(node) or not self._is_showing(known):
            self._known[control_id] = node

    def shown(self, control_id):
        """The control when it is on show, or None."""
        node = self.find(control_id)
        return node if node is not None and self._is_showing(node) else None

    def controls(self):
        """All controls of the windows on show by their ids, hidden ones included."""
        self._look_around()
        return dict(self._known)

    def dialogs(self):
        """The open message, question and input boxes."""
        found = []
        for window in self.windows():
            try:
                if window.role in DIALOG_ROLES and window.name == "Quillor":
                    found.append(window)
            except Gone:
                continue
        return found

    def describe(self):
        """Everything on show, a line each: what to look at when a test fails."""
        lines = []
        for window in self.windows():
            lines.append(f"{window.role_name} {window.name!r}")
            for node in window.below():
                if self._is_showing(node):
                    states = " ".join(state.name.lower() for state in sorted(node.states))
                    lines.append(f"  {node.id} {node.role_name} {node.name!r} {node.place} [{states}]")
        return "\n".join(lines)

    # Its end

    def wait_for_end(self):
        """Waits until the program has ended by itself and returns its exit code."""
        until(self.has_ended, "the program to end")
        return self.process.returncode

    def stop(self):
        """Ends the program from outside and returns the exit code it had or got."""
        if not self.has_ended():
            self.process.send_signal(signal.SIGTERM)
            try:
                self.process.wait(10)
            except Exception:
                self.process.kill()
                self.process.wait(10)
        return self.process.returncode
