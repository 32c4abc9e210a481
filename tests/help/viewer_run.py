#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the real viewer: what it prints, how it ends, and that a second start reaches the first.

usage: viewer_run.py VIEWER FILE
"""
import os
import socket
import subprocess
import sys
import tempfile
import time
import unittest

VIEWER, FILE = sys.argv[1:3]
PATIENCE = 60


class ViewerRunTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        running = os.path.join(self.folder, "run")
        os.mkdir(running, mode=0o700)
        self.environment = dict(os.environ, HOME=self.folder, XDG_CACHE_HOME=os.path.join(self.folder, "cache"),
                                XDG_CONFIG_HOME=os.path.join(self.folder, "config"), XDG_RUNTIME_DIR=running,
                                QT_QPA_PLATFORM="offscreen")

    def run_viewer(self, *arguments, **options):
        return subprocess.run([VIEWER, *arguments], env=options.get("env", self.environment), cwd=options.get("cwd"),
                              capture_output=True, text=True, timeout=PATIENCE)

    def somebody_listens(self):
        running = self.environment["XDG_RUNTIME_DIR"]
        for name in os.listdir(running):
            if name.startswith("velmora-help-") and not name.endswith(".lock"):
                with socket.socket(socket.AF_UNIX) as client:
                    return client.connect_ex(os.path.join(running, name)) == 0
        return False

    def start(self, *arguments):
        process = subprocess.Popen([VIEWER, *arguments], env=self.environment)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        end = time.monotonic() + PATIENCE
        while not self.somebody_listens():
            self.assertIsNone(process.poll(), "the viewer has ended")
            self.assertLess(time.monotonic(), end, "the viewer does not come up")
            time.sleep(0.05)
        return process

    def test_version_and_help_need_no_display(self):
        bare = {name: value for name, value in self.environment.items()
                if name not in ("QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY")}
        self.assertRegex(self.run_viewer("--version", env=bare).stdout, r"^velmora-help \d+\.\d+\.\d+\n$")
        self.assertIn("usage: velmora-help FILE [TOPIC]", self.run_viewer("--help", env=bare).stdout)

    def test_without_a_display_it_says_so(self):
        bare = {name: value for name, value in self.environment.items()
                if name not in ("QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY")}
        ended = self.run_viewer(FILE, env=bare)
        self.assertEqual(ended.returncode, 2)
        self.assertIn("no display", ended.stderr)

    def test_wrong_arguments_get_the_usage(self):
        for arguments in ((), ("--topic", "113"), (FILE, "113", "114")):
            ended = self.run_viewer(*arguments)
            self.assertEqual(ended.returncode, 2)
            self.assertIn("usage:", ended.stderr)

    def test_second_start_hands_over_and_ends(self):
        first = self.start(FILE, "113")
        for topic in ("152", "no such topic"):
            second = self.run_viewer(FILE, topic)
            self.assertEqual((second.returncode, second.stderr.count("velmora")), (0, 0))
        self.assertIsNone(first.poll())

    def test_start_after_a_killed_viewer_comes_up(self):
        first = self.start(FILE)
        first.kill()
        first.wait()
        second = self.start(FILE)
        self.assertEqual(self.run_viewer(FILE, "118").returncode, 0)
        self.assertIsNone(second.poll())

    def test_two_starts_at_once_make_one_viewer(self):
        processes = [subprocess.Popen([VIEWER, FILE], env=self.environment) for _ in range(4)]
        for process in processes:
            self.addCleanup(process.wait)
            self.addCleanup(process.kill)
        end = time.monotonic() + PATIENCE
        while sum(process.poll() is None for process in processes) > 1:
            self.assertLess(time.monotonic(), end, "more than one stays")
            time.sleep(0.05)
        self.assertEqual([process.poll() for process in processes].count(0), 3)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
