#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The viewer of the help on a desktop: topics, a second start from another program, and keys.

Usage: help_viewer.py VIEWER FILE FOLDER
"""

import os
import subprocess
import sys
import traceback

from stage import Stage, wait_until

TITLE = " - Velmora Help"


class HelpViewer:
    """The viewer on a stage, looked at through its window."""

    def __init__(self, stage, viewer, file):
        self.stage = stage
        self.command = [viewer, file]
        self.process = None

    def start(self, *topic):
        self.process = self.stage.start([*self.command, *topic])

    def start_again(self, *topic):
        """A further start, which hands its topic over and ends."""
        subprocess.run([*self.command, *topic], env=self.stage.environment, check=True, timeout=30)

    def active_title(self):
        """The title of the window in front; empty while there is none."""
        asked = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], env=self.stage.environment,
                               capture_output=True, text=True)
        return asked.stdout.strip()

    def wait_for_page(self, title):
        wait_until(lambda: self.active_title() == title + TITLE, f"the page {title!r} in front")

    def key(self, *keys):
        self.stage.run("xdotool", "key", "--delay", "5", *keys)

    def type(self, text):
        self.stage.run("xdotool", "type", "--delay", "5", text)

    def window(self):
        return self.stage.run("xdotool", "getactivewindow").strip()

    def take(self, path):
        """Saves the window, with its frame, once it stands still."""
        looks = [""]

        def stands_still():
            looks.append(self.stage.run("import", "-window", "root", "-format", "%#", "info:"))
            return looks[-1] == looks[-2]

        wait_until(stands_still, "the screen to stand still")
        self.stage.run("import", "-frame", "-window", self.window(), path)

    def close(self):
        # A window has its title before it has the keys.
        wait_until(lambda: self.key("Escape") or self.process.poll() is not None, "the viewer to end")
        if self.process.returncode != 0:
            raise AssertionError(f"the viewer ended with code {self.process.returncode}")


def from_another_program(stage, help_viewer):
    """The window comes to the front of another program's, with the page that was asked for."""
    other = stage.start(["xev"], stdout=subprocess.DEVNULL)
    wait_until(lambda: help_viewer.active_title() == "Event Tester", "the other program in front")
    help_viewer.start_again("152")
    help_viewer.wait_for_page("Import and export")
    other.terminate()
    other.wait()


def journey(stage, help_viewer):
    help_viewer.start("113")
    help_viewer.wait_for_page("Designing a card")
    stage.picture("help")
    from_another_program(stage, help_viewer)
    help_viewer.key("alt+Left")
    help_viewer.wait_for_page("Designing a card")
    help_viewer.key("alt+Home", "ctrl+f")
    help_viewer.wait_for_page("Velmora: your customers on cards")
    help_viewer.type("apostrophe neill")
    # The answer takes the focus into its list; until it is there, the key asks again.
    wait_until(lambda: help_viewer.key("Return") or help_viewer.active_title() == "Limits" + TITLE, "the page found")
    stage.picture("help-search")
    help_viewer.start_again("no such topic")
    help_viewer.wait_for_page("Velmora: your customers on cards")
    stage.picture("help-unknown-topic")
    help_viewer.close()
    help_viewer.start()
    help_viewer.wait_for_page("Velmora: your customers on cards")
    help_viewer.close()


def main():
    viewer, file, folder = (os.path.abspath(path) for path in sys.argv[1:4])
    with Stage(folder) as stage:
        try:
            journey(stage, HelpViewer(stage, viewer, file))
        except Exception:
            traceback.print_exc()
            stage.picture("failure")
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
