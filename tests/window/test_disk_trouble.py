"""The real program on a disk that gives trouble, and killed at any moment while it saves.

It plays by itself and needs no display: it changes settings, writes a topic and plays a
game. Whatever happens, each file is the old or the new one, whole, and the next start
leaves nothing else. CI tries some of all moments; QUILLOR_KILLS=2000 (as many kills, and
with them every failure of a file operation) tries them all.
"""

import itertools
import os
import re
import shutil
import subprocess
import tempfile
import threading
import unittest
from pathlib import Path

from harness.program import executable

KILLS = int(os.environ.get("QUILLOR_KILLS", "24"))
THOROUGH = KILLS > 1000
LIBRARIES = ("QUILLOR_QUICK_TIME", "QUILLOR_TYPED_KEYS", "QUILLOR_TROUBLED_FILES")
KEYS = (
    "@Start s @Setting w d i c {} Backspace @Start "
    "i @Inventor t Return {} Return Tab Tab Tab Return @Inventor ^q "
    "@Start a @Arcade Return @Select Return @Arcade "
    + " ".join("bcdfghjklmnpqrstvwxyzaeiou0123456789") + " @Arcade Escape @Start ^q"
)
WORDS = ("s o l", "l u n a")
WHOLE = {
    "Quillor-Config.ini": rb"(\d+\r\n){10}\d*\r\n",
    "Quillor-Progress.txt": rb"Quillor-Progress 1\r\n(games won: .*\r\n)(.+: .*\r\n){5}"
                            rb"answers typed: \d+\r\nlast scores: [\d ]*\r\n(solved: .*\r\n)*",
    "Quillor-Window.ini": rb"(-?\d+\r\n){5}",
    "Topics/DEMO.txt": rb"[\s\S]{460}",
    "Topics/T.txt": rb"T\r\n(sol|luna)\r\n",
    "English.txt": rb"",
}
# Where it cannot be found out that English is spoken.
SPANISH = {
    "Temas/DEMO.txt": rb"[\s\S]{461}",
    "Temas/T.txt": rb"T \[espa\xf1ol\]\r\n(sol|luna)\r\n",
}
DRAFT = re.compile(r"Quillor-Saving-[0-9a-f]{16}\.tmp")


class Copy:
    """A running copy's program folder, and how it is started there."""

    def __init__(self, root, name):
        self.root = root
        self.folder = root / name
        self.folder.mkdir()
        (self.folder / "English.txt").touch()
        self.runtime = Path(tempfile.mkdtemp(prefix="quillor-run-"))
        self.met = self.runtime / "met"
        self.rounds = itertools.count()

    def close(self):
        shutil.rmtree(self.runtime)

    def files(self):
        """All files by their names in the folder; also behind links."""
        return sorted(
            os.path.relpath(os.path.join(folder, name), self.folder)
            for folder, _, names in os.walk(self.folder, followlinks=True) for name in names
        )

    def run(self, trouble, at):
        """Plays to the end or to the trouble; returns whether that was met."""
        number = next(self.rounds)
        self.met.unlink(missing_ok=True)
        environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.runtime), "XDG_RUNTIME_DIR": str(self.runtime),
            "QT_QPA_PLATFORM": "offscreen", "SDL_AUDIODRIVER": "none",
            "LD_PRELOAD": " ".join(os.environ[name] for name in LIBRARIES),
            "QUILLOR_TIMES_AS_FAST": "20",
            "QUILLOR_KEYS": KEYS.format(1 + number % 4, WORDS[number % len(WORDS)]),
            "QUILLOR_TROUBLED": str(self.root), "QUILLOR_TROUBLE": trouble,
            "QUILLOR_TROUBLE_AT": str(at), "QUILLOR_TROUBLE_MET": str(self.met),
        }
        done = subprocess.run(
            [executable(), "--folder", self.folder], env=environment, timeout=120,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
        )
        met = self.met.exists()
        expected = [-9] if trouble == "kill" and met else [0]
        if b"cannot use the folder" in done.stdout:
            expected.append(2)
        if done.returncode not in expected:
            raise AssertionError(f"{trouble} at {at}: {done.returncode} {done.stdout!r}")
        return met


class DiskTrouble(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp(prefix="quillor-trouble-", dir="/dev/shm"))
        self.addCleanup(shutil.rmtree, self.root)

    def copy(self, name):
        copy = Copy(self.root, name)
        self.addCleanup(copy.close)
        return copy

    def expect_whole(self, copy, drafts=True):
        """All files that are there are whole; beside them there are drafts at most."""
        for name in copy.files():
            if not (drafts and DRAFT.fullmatch(Path(name).name)):
                path = copy.folder / name
                whole = {**WHOLE, **SPANISH}[name]
                self.assertTrue(re.fullmatch(whole, path.read_bytes()), (name, path.read_bytes()))

    def expect_all_saved(self, copy):
        """A start without trouble goes to its end, and nothing else is left."""
        self.assertFalse(copy.run("", 0))
        self.expect_whole(copy, drafts=False)
        self.assertEqual((set(copy.files()) | {"Quillor-Window.ini"}) - set(SPANISH), set(WHOLE))

    def kill(self, copy, kills, step, first):
        """So often, at every `step`th file operation from `first` on; returns how often."""
        done = 0
        for start in itertools.count(first):
            at = 1 + start % step
            while copy.run("kill", at):
                self.expect_whole(copy)
                done += 1
                if done == kills:
                    return
                at += step
            self.expect_whole(copy)

    def kill_both(self, copies):
        failures = []

        def work(copy, first):
            try:
                self.kill(copy, KILLS // 4, 1 if THOROUGH else 41, first)
            except Exception as failure:
                failures.append(failure)

        threads = [threading.Thread(target=work, args=each) for each in zip(copies, (0, 7))]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(failures, [])
        for copy in copies:
            self.expect_all_saved(copy)

    def test_copies_killed_in_two_folders_leave_whole_files(self):
        self.kill_both([self.copy("a"), self.copy("b")])

    def test_copies_killed_over_the_same_files_leave_them_whole(self):
        one, other = self.copy("a"), self.copy("b")
        self.assertFalse(one.run("", 0))
        for name in ("Topics", "Quillor-Config.ini", "Quillor-Progress.txt"):
            (other.folder / name).symlink_to(one.folder / name)
        self.kill_both([one, other])

    def try_all(self, trouble, step):
        copy = self.copy("a")
        at = 0 if trouble == "full" else 1
        while copy.run(trouble, at):
            self.expect_whole(copy)
            if not THOROUGH or at % 10 == 0:
                self.expect_all_saved(copy)
            at += step
        self.expect_all_saved(copy)
        return at

    def test_operation_that_fails_leaves_whole_files(self):
        self.try_all("fail", 1 if THOROUGH else 61)

    def test_disk_that_dies_leaves_whole_files(self):
        self.try_all("dead", 1 if THOROUGH else 61)

    def test_disk_that_is_full_leaves_whole_files(self):
        self.try_all("full", 1 if THOROUGH else 193)
