# SPDX-License-Identifier: MIT
"""What every journey has: the program on a stage, the cards that it shows, and the end that tells what went wrong."""

import os
import shutil
import traceback

from stage import Stage, wait_until

WELCOME = "Welcome toVelmora!"
EDITOR = "Create a New Customer Card"
VIEWER = "Customer Cards"
SAVE_CHANGES = "Do you wish to save changes?"


class Journey:
    """Starts the program, and knows the viewer and the strip. A journey of its own says in `go` what is done."""

    def __init__(self, stage, binary):
        self.stage = stage
        self.binary = binary
        self.program = None

    @staticmethod
    def program_class():
        """Comes late: the bus must be there before the library that reads it."""
        from program import Program
        return Program

    def start(self, *arguments):
        self.program = self.program_class()(self.stage, self.binary, *arguments)
        self.program.find("menu item", "File")

    def quit(self):
        self.program.key("ctrl+q")
        self.program.wait_for_end()

    def field(self, name, screen=VIEWER, role="text"):
        return self.program.find(role, name, within=screen)

    def expect_field(self, name, text, screen=VIEWER):
        box = self.field(name, screen)
        wait_until(lambda: box.text == text, f"{text!r} in {name!r}; it holds {box.text!r}")

    def expect_number(self, number):
        """The viewer shows the card of that number."""
        self.program.find("label", f"{number:,}", within=VIEWER)

    def go(self):
        raise NotImplementedError


def run(journey_class, binary, *rest):
    """Lets a journey go; the last argument is the folder for its pictures. Gives the code to exit with."""
    *others, pictures = (os.path.abspath(path) for path in rest)
    # What an earlier run left would pass for this one's.
    shutil.rmtree(pictures, ignore_errors=True)
    with Stage(pictures) as stage:
        journey = journey_class(stage, os.path.abspath(binary), *others)
        try:
            journey.go()
        except Exception:
            traceback.print_exc()
            print("Picture:", stage.picture("failure"))
            if journey.program is not None:
                print(journey.program.tree())
            return 1
    print("The journey is done; its pictures are in", pictures)
    return 0
