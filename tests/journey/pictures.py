#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Takes a picture of every screen, in both looks.

Usage: pictures.py PROGRAM MAKEDEMO FOLDER
"""

import os
import subprocess
import sys
import traceback

from help_viewer import HelpViewer
from stage import Stage, wait_until
from tool_pictures import ToolPictures

WELCOME = "Welcome toVelmora!"
SAMPLES = "Open Samples"
ADVICE = "You can open up to 100 categories"
WIZARD = "Create Card Fields"
EDITOR = "Create a New Customer Card"
VIEWER = "Customer Cards"
VALUES = "Update Card Fields"
QUERY = "Preparation of Query Components"
TEXTS = "Contents of Card Field"
MULTI = "Choose a Multi-Variable Query"
NUMBERS = "Choice of Numerical Data"
YES_NO = "Choose Yes/No"
CHOOSER = "Choice of Query Fields"
RESULTS = "Query Results"
QUERY_LIST = "Query List"
NO_APOSTROPHE = "This string cannot contain the apostrophe ( ' ) character"
FIELDS = ("Street", "Postal code", "City", "Region", "Country", "Telephone 1", "Telephone 2", "Fax", "Founded")


class Photographer:
    """Runs the program on one stage and names its pictures after the look of that stage."""

    def __init__(self, stage, binary, suffix):
        self.stage = stage
        self.binary = binary
        self.suffix = suffix
        self.program = None

    def start(self):
        # Dates as a reader expects them; the rest of the stage keeps to the locale that every machine has.
        self.program = Program(self.stage, self.binary, LANG="en_GB.UTF-8")
        self.program.find("menu item", "File")

    def take(self, name):
        """Waits until the screen stands still, and saves the part of it that the program's windows cover."""
        path = os.path.join(self.stage.pictures, f"{name}-{self.suffix}.png")
        looks = [""]

        def stands_still():
            looks.append(self.stage.run("import", "-window", "root", "-format", "%#", "info:"))
            return looks[-1] == looks[-2]

        wait_until(stands_still, "the screen to stand still")
        left, top, right, bottom = self.program.covered()
        self.stage.run("import", "-window", "root", "-crop", f"{right - left}x{bottom - top}+{left}+{top}", "+repage",
                       path)
        print(path)

    def quit(self):
        self.program.key("ctrl+q")
        self.program.wait_for_end()

    def first_start(self):
        """The welcome and the samples, which are turned down."""
        program = self.program
        # The window manager has shown it by then.
        program.wait_for_focus("OK", role="push button")
        program.find("label", WELCOME)
        self.take("welcome")
        program.press("Samples")
        program.wait_for_focus("OK", role="push button", within=SAMPLES)
        self.take("samples")
        program.press("Cancel", within=SAMPLES)
        program.no_screen(SAMPLES)

    def new_file(self):
        program = self.program
        self.first_start()
        program.wait_for_title("Velmora")
        self.take("empty")
        program.key("alt+f")
        program.find("menu item", "New", where=lambda item: item.box[1] > 0)
        self.take("menu")
        program.key("Escape", "Escape")
        program.key("ctrl+n")
        program.wait_for_title("New")
        program.fill(program.wait_for_focus("File name:", within="New"), self.stage.path("Customers.ddb"))
        self.take("file-dialog")
        program.key("Return")
        program.find("label", where=lambda label: label.name.startswith(ADVICE))
        self.take("advice")
        program.key("Return")
        program.wait_for_focus("Main field", within=WIZARD)
        self.take("wizard")
        self.design()

    def design(self):
        program = self.program
        program.fill(program.wait_for_focus("Main field", within=WIZARD), "Company")
        count = program.find("text", "Number of fields on this page", within=WIZARD)
        count.click()
        program.key(*["Up"] * 20)
        wait_until(lambda: count.text == "21", "the number of fields")
        program.press("No. of fields per page", within=WIZARD)
        wait_until(lambda: len(program.find_all("text", "Field name", within=WIZARD)) == 21, "the rows")
        program.find("text", "Field name", within=WIZARD).click()
        for field in FIELDS:
            program.fill(program.wait_for_focus("Field name", within=WIZARD), field)
            program.key("Return")
        self.take("wizard-many")
        program.press("OK", within=WIZARD)
        program.wait_for_focus("Company", within=EDITOR)
        program.type("Berglund & Co")
        self.take("editor")
        program.find("text", "City", within=EDITOR).click(times=2)
        program.wait_for_title(VALUES)
        self.take("value-list-editor")
        program.press("Cancel", within=VALUES)
        program.no_screen(VALUES)
        program.press("Cancel", within=EDITOR)

    def demonstration(self):
        program = self.program
        program.screen(VIEWER)
        self.take("viewer-page-1")
        box = program.find("text", "City", within=VIEWER)
        box.click()
        program.type("L'Aquila")
        program.key("Return")
        program.message(NO_APOSTROPHE)
        self.take("message")
        program.answer(NO_APOSTROPHE, "OK")
        # With the apostrophe in it, the box would not be left.
        program.fill(program.wait_for_focus("City", within=VIEWER), "Nowhere")
        program.press("Cancel", within=VIEWER)
        program.find("text", "City", within=VIEWER, where=lambda control: control.text != "Nowhere")
        program.press("Enlarge the comments", within=VIEWER)
        self.take("viewer-comment")
        program.press("Shrink the comments", within=VIEWER)
        program.press("Trade", within=VIEWER)
        program.find("text", "Founded", within=VIEWER)
        self.take("viewer-page-2")
        program.press("Notes", within=VIEWER)
        program.find("text", "Next visit", within=VIEWER).click()
        program.wait_for_title("Date Setting")
        self.take("reminder")
        program.key("Escape")
        program.no_screen("Date Setting")
        program.key("ctrl+d")
        program.find("push button", "Cancel", within=MESSAGE_BOX)
        self.take("delete")
        program.press("Cancel", within=MESSAGE_BOX)
        self.value_list()
        self.query()

    def value_list(self):
        program = self.program
        program.press("Address", within=VIEWER)
        program.find("text", "Country", within=VIEWER).click(times=2)
        program.wait_for_title(VALUES)
        self.take("value-list")
        program.press("Cancel", within=VALUES)
        program.no_screen(VALUES)

    def query(self):
        program = self.program
        program.press("Queries")
        program.screen(QUERY)
        program.press("Country", within=QUERY)
        program.wait_for_title(TEXTS)
        program.find("text", "Text to look for", within=TEXTS).click()
        program.fill(program.wait_for_focus("Text to look for", within=TEXTS), "Germany")
        self.take("pick-texts")
        program.find("text", "Text to look for", within=TEXTS).click(times=2)
        program.wait_for_title(MULTI)
        self.take("pick-several")
        program.press("Cancel", within=MULTI)
        program.no_screen(MULTI)
        program.press("OK", within=TEXTS)
        program.no_screen(TEXTS)
        self.take("query")
        program.press("Trade", within=QUERY)
        program.press("Founded", within=QUERY)
        program.wait_for_title(NUMBERS)
        self.take("pick-numbers")
        program.press("Cancel", within=NUMBERS)
        program.no_screen(NUMBERS)
        program.press("Customer", within=QUERY)
        program.wait_for_title(YES_NO)
        self.take("pick-yes-no")
        program.press("Cancel", within=YES_NO)
        program.no_screen(YES_NO)
        program.press("OK", within=QUERY)
        program.wait_for_title(CHOOSER)
        program.press("Select All", within=CHOOSER)
        self.take("choose-fields")
        program.press("OK", within=CHOOSER)
        program.screen(RESULTS)
        self.take("results")
        program.press("List of Queries")
        program.wait_for_title(QUERY_LIST)
        self.take("query-list")
        program.press("Cancel", within=QUERY_LIST)
        program.no_screen(QUERY_LIST)


def demonstration_file(stage, makedemo):
    # The program starts in this folder; a bare name keeps the pictures the same at every run.
    path = "Demonstration.ddb"
    subprocess.run([makedemo, stage.path(path)], check=True)
    os.makedirs(os.path.join(stage.path("config"), "Velmora"))
    with open(os.path.join(stage.path("config"), "Velmora", "Velmora.ini"), "w", encoding="utf-8") as settings:
        settings.write(f"[Load]\nPath={path}\nName=Demonstration.ddb\nIndex=1\n")


def help_window(stage, programs, path):
    viewer = HelpViewer(stage, os.path.join(programs, "velmora-help"), os.path.join(programs, "Velmora"))
    viewer.start("value lists")
    viewer.wait_for_page("Value lists")
    viewer.take(path)
    print(path)
    viewer.close()


def picture_session(binary, makedemo, folder, suffix, **environment):
    """Takes the pictures of one look; runs in a process of its own, since the library that reads screens knows one bus."""
    with Stage(folder, **environment) as stage:
        global Program, MESSAGE_BOX
        from program import MESSAGE_BOX, Program
        photographer = Photographer(stage, binary, suffix)
        try:
            if "QT_SCALE_FACTOR" not in environment:
                photographer.start()
                photographer.new_file()
                photographer.quit()
                os.remove(os.path.join(stage.path("config"), "Velmora", "Velmora.ini"))
                os.rmdir(os.path.join(stage.path("config"), "Velmora"))
            demonstration_file(stage, makedemo)
            photographer.start()
            if "QT_SCALE_FACTOR" in environment:
                photographer.program.screen(VIEWER)
                photographer.take("viewer-page-1")
            else:
                photographer.demonstration()
            ToolPictures(photographer).go()
            photographer.quit()
            help_window(stage, os.path.dirname(binary), os.path.join(folder, f"help-{suffix}.png"))
        except Exception:
            traceback.print_exc()
            if photographer.program is not None:
                print(photographer.program.tree())
            return 1
    return 0


SESSIONS = {"light": {"VELMORA_LOOK": "light"}, "dark": {"VELMORA_LOOK": "dark"},
            "150": {"VELMORA_LOOK": "light", "QT_SCALE_FACTOR": "1.5"}}


def main():
    binary, makedemo, folder = (os.path.abspath(path) for path in sys.argv[1:4])
    if len(sys.argv) == 5:
        return picture_session(binary, makedemo, folder, sys.argv[4], **SESSIONS[sys.argv[4]])
    for suffix in SESSIONS:
        subprocess.run([sys.executable, __file__, binary, makedemo, folder, suffix], check=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
