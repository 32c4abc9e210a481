#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Days of a user who begins with the samples: finding somebody, reshaping the cards, setting the program up, and its
help.

Usage: with_samples.py PROGRAM MANUAL PICTURES, with the folder of the manual's pages
"""

import os
import re
import sys

from field_editor import FieldEditor
from help_and_programs import HelpAndPrograms
from journey import Journey, run
from options import Options
from searches import Searches
from stage import JourneyError, wait_until


class WithSamples(Journey):
    def __init__(self, stage, binary, manual):
        super().__init__(stage, binary)
        self.manual = manual

    def sample(self, name):
        """The user's own copy of a sample."""
        return os.path.join(self.stage.path("data"), "velmora", "Samples", name)

    def sample_of_the_program(self, name):
        return os.path.join(os.path.dirname(self.binary), "Samples", name)

    def program_of_the_user(self, name, title):
        """Makes a program that shows a window of that title and writes its process number beside it; gives its path."""
        path = self.stage.path(name)
        with open(path, "w", encoding="utf-8") as script:
            script.write(f"#!/bin/sh\necho $$ >\"$0.process\"\nexec xmessage -title '{title}' 'Nothing else.'\n")
        os.chmod(path, 0o700)
        return path

    def windows(self, title):
        """The windows of that title, whoever has them."""
        try:
            return self.stage.run("xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()
        except JourneyError:
            return []  # it fails when there is none

    def see_program_of_the_user(self, title):
        """Whether it comes to the front by itself is for the window manager to say."""
        wait_until(lambda: self.windows(title), f"the window {title!r}")

    def close_program_of_the_user(self, title):
        self.stage.run("xdotool", "windowclose", *self.windows(title))
        wait_until(lambda: not self.windows(title), f"the window {title!r} to go")

    def back_to_the_frame(self, title):
        """As by the desktop's list of windows, out of which a minimised one comes too."""
        [window] = self.stage.run("xdotool", "search", "--name", f"^{re.escape(title)}$").split()
        self.stage.run("xdotool", "windowactivate", window)
        self.program.wait_for_title(title)
        wait_until(self.program.is_active, "the program to know that it is in front")

    def help_viewer(self):
        from program import HelpViewer
        return HelpViewer(self.stage)

    def go(self):
        self.start()
        searches = Searches(self)
        searches.go()
        FieldEditor(self).go()
        options = Options(self, searches)
        options.go()
        HelpAndPrograms(self).go()
        options.choose_a_program()
        self.quit()


if __name__ == "__main__":
    sys.exit(run(WithSamples, *sys.argv[1:4]))
