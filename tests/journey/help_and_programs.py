# SPDX-License-Identifier: MIT
"""The fourth evening: the help from every place that leads to it, other programs, and what this program is."""

import os
import re

from card_file import expect
from journey import EDITOR, VIEWER
from stage import wait_until

CONTENTS = "contents"
BEHIND_PAGE = " - Velmora Help"
QUERY = "Preparation of Query Components"
CHOOSER = "Choice of Query Fields"
FIELD_EDITOR = "Add/Delete File Fields"
WIZARD = "Create Card Fields"
QUICK_SEARCH = "Quick Search"
SEARCH = "Search"
ABOUT = "About Velmora"
DESCRIPTION = "Features Not in This Program"
CALCULATOR = "My calculator"
CALCULATOR_RUNS = "The calculator is already running."
ENTRY = """[Desktop Entry]
Type=Application
Name={name}
Exec={path}
Categories=Utility;Calculator;
"""


class HelpAndPrograms:
    """Works the program of a journey with a sample in the viewer, to its end."""

    def __init__(self, journey):
        self.journey = journey
        self.stage = journey.stage
        self.titles = self.read_manual()

    @property
    def program(self):
        return self.journey.program

    def read_manual(self):
        """The title of the page that each numbered topic opens."""
        folder = self.journey.manual
        with open(os.path.join(folder, "Velmora.qhp"), encoding="utf-8") as project:
            pages = re.findall(r'id="(\w+)" ref="([\w-]+\.html)', project.read())
        titles = {}
        for topic, page in pages:
            with open(os.path.join(folder, page), encoding="utf-8") as text:
                titles[topic] = re.search("<title>(.*)</title>", text.read()).group(1)
        return titles

    # Help

    def expect_help(self, topic):
        """The viewer comes up with that topic, its page begins with its title, and Esc closes it."""
        title = self.titles[topic]
        self.program.wait_for_title(title + BEHIND_PAGE)
        viewer = self.journey.help_viewer()
        wait_until(lambda: viewer.text_of("Page of the help").startswith(title),
                   lambda: f"{title!r} on the page; it shows {viewer.text_of('Page of the help')[:80]!r}")
        self.stage.picture(f"help-{topic}")
        # A window has its title before it has the keys.
        wait_until(viewer.is_active, "the viewer to know that it is in front")
        viewer.key("Escape")
        self.program.wait_for_title(self.title)
        wait_until(self.program.is_active, "the program to know that it is in front")
        viewer.wait_for_end()

    def help_of(self, screen, topic, tab=None):
        """By its button, and by the key."""
        if tab is not None:
            self.program.tab(tab, within=screen)
        self.program.press("Help", within=screen)
        self.expect_help(topic)
        self.help_by_key(topic)

    def help_by_key(self, topic):
        self.program.key("F1")
        self.expect_help(topic)

    def help_of_cards_and_queries(self):
        program = self.program
        self.help_of(VIEWER, "118")
        program.press("Create New Card")
        program.screen(EDITOR)
        self.help_of(EDITOR, "118")
        program.press("Queries")
        # Wider than the frame in this file, it is not wholly in view.
        program.find("radio button", "OR Type Query", within=QUERY)
        self.help_of(QUERY, "122")
        program.press("OK", within=QUERY)
        program.wait_for_title(CHOOSER)
        program.press("Help", within=CHOOSER)
        self.expect_help_over(CHOOSER, "122")
        program.press("Cancel", within=CHOOSER)
        program.no_screen(CHOOSER)

    def expect_help_over(self, dialog, topic):
        """The viewer is no part of the program: a dialog of it stays in front of its own windows only."""
        frame, self.title = self.title, dialog
        self.expect_help(topic)
        self.title = frame

    def help_of_searches(self):
        program = self.program
        program.press("Quick Search: Cards/Contacts/Telephone")
        program.screen(QUICK_SEARCH)
        for tab in ("Telephone No.", "Contacts", "Cards"):
            program.tab(tab, within=QUICK_SEARCH)
            program.press("Help", within=QUICK_SEARCH)
            self.expect_help("147")
        program.press("List of Customers/Contacts")
        program.screen(SEARCH)
        self.help_of(SEARCH, "147", "Contacts")
        program.tab("Cards", within=SEARCH)
        program.press("Help", within=SEARCH)
        self.expect_help("147")

    def help_of_design(self):
        program = self.program
        program.press("Add/Delete Card Fields")
        program.screen(FIELD_EDITOR)
        self.help_of(FIELD_EDITOR, "113")
        program.press("Cancel", within=FIELD_EDITOR)
        program.key("ctrl+n")
        program.fill(program.wait_for_focus("File name:"), self.stage.path("New.ddb"))
        program.key("Return")
        program.screen(WIZARD)
        program.press("Help", within=WIZARD)
        self.expect_help("113")
        program.press("Cancel", within=WIZARD)
        program.no_screen(WIZARD)

    def help_of_the_menu(self):
        self.program.menu("Tools", "Help on Import Data")
        self.expect_help("152")
        self.program.menu("Help", "Help Topics")
        self.expect_help(CONTENTS)

    # Other programs, and this one

    def calculate(self):
        """The desktop's own calculator is started once, and no second one beside it."""
        program = self.program
        path = self.journey.program_of_the_user("calculator", CALCULATOR)
        entries = os.path.join(self.stage.path("data"), "applications")
        os.makedirs(entries)
        with open(os.path.join(entries, "calculator.desktop"), "w", encoding="utf-8") as entry:
            entry.write(ENTRY.format(name=CALCULATOR, path=path))
        program.press("Calculator")
        self.journey.see_program_of_the_user(CALCULATOR)
        self.journey.back_to_the_frame(self.title)
        program.press("Calculator")
        # It does not tell the desktop which process it is yet, so that nobody can bring it back.
        program.find(name=CALCULATOR_RUNS)
        self.tell_process(path)
        program.press("Calculator")
        program.wait_for_title(CALCULATOR)
        expect(len(self.journey.windows(CALCULATOR)), 1, "calculators")
        self.journey.close_program_of_the_user(CALCULATOR)
        self.journey.back_to_the_frame(self.title)

    def tell_process(self, path):
        """Puts on the calculator's window what most programs put there by themselves."""
        [window] = self.journey.windows(CALCULATOR)
        with open(path + ".process", encoding="utf-8") as file:
            number = file.read().strip()
        self.stage.run("xprop", "-id", window, "-f", "_NET_WM_PID", "32c", "-set", "_NET_WM_PID", number)

    def read_what_is_missing(self):
        """A button of a feature that the program does not have describes it; so does the next one."""
        program = self.program
        program.press("Appointments")
        program.screen(DESCRIPTION)
        text = program.find("text", within=DESCRIPTION)
        wait_until(lambda: "appointment" in text.text.lower(), lambda: f"the description; it is {text.text[:200]!r}")
        self.stage.picture("description")
        program.press("Send E-mail")
        program.screen(DESCRIPTION)
        program.key("Escape")
        program.no_screen(DESCRIPTION)

    def see_what_it_is(self):
        program = self.program
        program.menu("Help", ABOUT)
        program.screen(ABOUT)
        program.find("label", within=ABOUT, where=lambda label: re.fullmatch(r"Velmora  Zenlet v\d+\.\d+\.\d+", label.name))
        self.stage.picture("about")
        program.press("OK", within=ABOUT)
        program.no_screen(ABOUT)

    def go(self):
        """From the viewer in front to the viewer in front."""
        self.title = self.program.title()
        self.help_of_cards_and_queries()
        self.help_of_searches()
        self.help_of_design()
        self.help_of_the_menu()
        self.calculate()
        self.read_what_is_missing()
        self.see_what_it_is()
        self.program.press("Customer Card")
        self.program.screen(VIEWER)
