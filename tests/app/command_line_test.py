#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Starts the real program by its command line, with and without a display.

Usage: command_line_test.py PROGRAM SAMPLES
"""

import configparser
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

SAMPLES = pathlib.Path(sys.argv.pop(2)) if len(sys.argv) > 2 else None
PROGRAM = sys.argv.pop(1)
PATIENCE = 60  # seconds


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        self.settings = self.home / "config" / "Velmora" / "Velmora.ini"

    def Environment(self, **more):
        kept = {name: value for name, value in os.environ.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        return {**kept, "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
                "XDG_DATA_HOME": str(self.home / "data"), "LC_ALL": "C.UTF-8", **more}

    def Run(self, *words):
        """Without a display."""
        return subprocess.run([PROGRAM, *words], env=self.Environment(), cwd=self.home, capture_output=True, text=True,
                              timeout=PATIENCE)

    def StartUntilStored(self, path, *words):
        """On a display without a picture, until the settings name that file as the last one."""
        with subprocess.Popen([PROGRAM, *words], env=self.Environment(QT_QPA_PLATFORM="offscreen"), cwd=self.home) as run:
            try:
                end = time.monotonic() + PATIENCE
                while self.Stored("Path") != path:
                    self.assertLess(time.monotonic(), end, f"stored is {self.Stored('Path')}")
                    self.assertIsNone(run.poll(), "the program ended")
                    time.sleep(0.05)
            finally:
                run.kill()

    def Stored(self, key):
        settings = configparser.ConfigParser(interpolation=None)
        settings.read(self.settings, encoding="utf-8")
        return settings.get("Load", key, fallback=None)

    def test_Help_PrintsAndEnds(self):
        run = self.Run("--help")
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertIn("usage: velmora [FILE]", run.stdout)

    def test_Version_PrintsAndEnds(self):
        run = self.Run("--version")
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertRegex(run.stdout, r"^Velmora \d+\.\d+\.\d+\n$")

    def test_UnknownOption_IsRefused(self):
        run = self.Run("--frobnicate")
        self.assertEqual((run.returncode, run.stdout), (2, ""))
        self.assertIn("--frobnicate", run.stderr)

    def test_MissingFile_NoDisplay_TellsItWithExitCode2(self):
        run = self.Run("gone.ddb")
        self.assertEqual(run.returncode, 2)
        self.assertIn(f"there is no file {self.home}/gone.ddb", run.stderr)

    def test_MissingFile_DisplayThatDoesNotAnswer_TellsItWithExitCode2(self):
        run = subprocess.run([PROGRAM, "gone.ddb"], env=self.Environment(DISPLAY=":4711"), cwd=self.home,
                             capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual(run.returncode, 2)
        self.assertIn("there is no file", run.stderr)

    def test_NoFile_NoDisplay_TellsItAndDoesNotCrash(self):
        run = self.Run()
        self.assertEqual(run.returncode, 1)
        self.assertIn("no display", run.stderr)

    def test_RelativePath_StartsOnThatFileAndRemembersItAtOnce(self):
        shutil.copy(SAMPLES / "Companies.ddb", self.home / "My companies.ddb")
        self.StartUntilStored(str(self.home / "My companies.ddb"), "My companies.ddb")
        self.assertEqual(self.Stored("Name"), "My companies.ddb")
        self.assertEqual(self.Stored("Index"), "1")

    def test_FileAddress_StartsOnThatFile(self):
        copy = self.home / "My companies.ddb"
        shutil.copy(SAMPLES / "Companies.ddb", copy)
        self.StartUntilStored(str(copy), copy.as_uri())


if __name__ == "__main__":
    unittest.main()
