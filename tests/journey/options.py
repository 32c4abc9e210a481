# SPDX-License-Identifier: MIT
"""The third evening: the options, with what waits for Apply and what acts at once, over the sample of companies."""

import configparser
import os

from card_file import expect
from journey import VIEWER
from searches import CARDS_TAB, NUMBERS_OF_CARDS, QUICK_SEARCH, SAMPLES
from stage import wait_until

OPTIONS = "Options"
FILE = "Companies.ddb"
TELEPHONE_TIP = "Choose a Card Field for Telephone No. -- This Will Enable Quick Search Identification"
# Numbers of an authority, which no company's own telephone is; they are searched like one.
FIELD = "CIK"
BACKGROUND = "Enter your settings for changing background"
SHORTCUT = "File Intended for Shortcut Button"
SHORTCUT_BUTTONS = "Transfer to the Program of Your Choice - See Options"
CHOSEN_PROGRAM = "The program of my choice"


class Options:
    """Works the program of a journey that has its samples, and leaves it with the companies in the viewer."""

    def __init__(self, journey, searches):
        self.journey = journey
        self.stage = journey.stage
        self.searches = searches

    @property
    def program(self):
        return self.journey.program

    @property
    def file(self):
        return self.searches.file

    def stored(self, section, key):
        """What the settings hold of it by now, which is what the next start reads."""
        settings = configparser.RawConfigParser()
        settings.optionxform = str.lower
        settings.read(os.path.join(self.stage.path("config"), "Velmora", "Velmora.ini"), encoding="utf-8")
        return settings.get(section, key, fallback=None)

    def expect_stored(self, section, key, value):
        expect(self.stored(section, key), value, f"{key} in the settings")

    def open_options(self, tab=None):
        self.program.menu(OPTIONS, OPTIONS)
        self.program.wait_for_title(OPTIONS)
        if tab is not None:
            self.program.tab(tab, within=OPTIONS)

    def close(self, button):
        self.program.press(button, within=OPTIONS)
        self.program.no_screen(OPTIONS)

    def fill(self, name, text):
        self.program.find("text", name, within=OPTIONS).click()
        self.program.fill(self.program.wait_for_focus(name, within=OPTIONS), text)

    # Steps

    def to_the_companies(self):
        """The samples are always at hand in the menu."""
        program = self.program
        program.menu("Help", "Samples")
        program.screen(SAMPLES)
        program.press("OK", within=SAMPLES)
        self.searches.open_sample(FILE)

    def expect_caller(self, is_found):
        """A number that only the chosen field of the cards can hold."""
        program = self.program
        [(number, company, code)] = self.file.rows(
            f'select "Index@", Company, cast("{FIELD}" as integer) from MainData where "Index@" = 3')
        self.searches.quick_search()
        program.tab("Telephone No.", within=QUICK_SEARCH)
        self.searches.type_into("Requested Tel. No.", str(code))
        program.key("Return")
        if is_found:
            self.searches.expect_hits([(number, company, code)], NUMBERS_OF_CARDS)
            self.stage.picture("found-by-the-chosen-field")
        else:
            program.answer("Number not found.", "OK")
        program.tab(CARDS_TAB, within=QUICK_SEARCH)
        self.searches.back_to_the_card()

    def choose_field(self):
        """By keys in the list of text and number fields, in the order of the design."""
        program = self.program
        fields = [name for (name,) in self.file.rows("select Name from Location where Type in (2, 3) order by rowid")]
        program.find("combo box", within=OPTIONS, where=lambda box: box.tip == TELEPHONE_TIP).click()
        program.key("Home", *["Down"] * fields.index(FIELD), "Return")
        program.find("combo box", FIELD, within=OPTIONS)

    def cancel_what_waits(self):
        self.open_options("General")
        self.choose_field()
        self.program.tab("Dialing", within=OPTIONS)
        self.fill("Area Code", "044")
        self.close("Cancel")
        self.expect_stored("Init", "AreaCode", None)
        self.file.expect_rows("select * from tOptions", [])
        self.expect_caller(False)

    def apply_it(self):
        program = self.program
        self.open_options("General")
        self.choose_field()
        self.fill("Enter Tax Percentage", "19")
        program.type("0")
        box = program.find("text", "Enter Tax Percentage", within=OPTIONS)
        wait_until(lambda: box.text == "", "a tax of 190 percent to go")
        self.fill("Enter Tax Percentage", "19")
        self.stage.picture("options")
        program.tab("Dialing", within=OPTIONS)
        self.fill("Area Code", "044")
        program.press("Apply", within=OPTIONS)
        wait_until(lambda: self.stored("Init", "AreaCode") == "044", "the area code to be stored")
        self.expect_stored("Init", "MAAM", "19")
        self.file.expect_rows("select txtKey, tVal from tOptions", [("FieldDial", FIELD)])
        # What was applied stays.
        self.close("Cancel")
        self.expect_caller(True)
        self.open_options("General")
        program.find("combo box", FIELD, within=OPTIONS)
        self.close("Cancel")

    # What acts at once

    def shot_of_the_strip(self):
        """What the strip shows behind its texts, as one number for its pixels."""
        left, top, width, height = (self.program.on_screen(length) for length in self.strip_without_texts())
        return self.stage.run("import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "-format", "%#",
                              "info:")

    def strip_without_texts(self):
        """Left of the contacts and under the arrows nothing is written."""
        left, top, _, height = self.program.find("push button", "Previous card").box
        contacts = self.program.find("combo box", where=lambda box: box.tip.startswith("Selected Contact")).box
        return left, top + height + 2, contacts[0] - left - 2, contacts[1] + contacts[3] - top - height - 2

    def wait_for_strip(self, fits, what):
        seen = [self.shot_of_the_strip()]

        def is_so():
            seen.append(self.shot_of_the_strip())
            return fits(seen[-1]) and seen[-1] == seen[-2]

        wait_until(is_so, what)
        return seen[-1]

    def choose_background(self):
        """The picture is stored with its choice; Cancel takes nothing back, and the next OK shows it."""
        program = self.program
        plain = self.shot_of_the_strip()
        self.open_options("Background")
        program.press("Browse...", within=OPTIONS)
        name = program.wait_for_focus("File name:")
        pictures = sorted(os.listdir(self.papers()))
        expect(len(pictures), 3, "the background pictures of the program")
        self.stage.picture("background-files")
        program.fill(name, pictures[0])
        program.key("Return")
        path = os.path.join(self.papers(), pictures[0])
        program.find("text", BACKGROUND, within=OPTIONS, where=lambda box: box.text == path)
        self.expect_stored("Init", "WallPap", path)
        self.stage.picture("background")
        self.close("Cancel")
        expect(self.wait_for_strip(lambda seen: True, "the strip"), plain, "the strip before the next OK")
        self.open_options()
        self.close("OK")
        shown = self.wait_for_strip(lambda seen: seen != plain, "the background picture")
        self.stage.picture("strip-with-background")
        return plain, shown

    def papers(self):
        return os.path.join(os.path.dirname(self.journey.binary), "WPapers")

    def keep_it_over_a_start(self, shown):
        self.journey.quit()
        self.journey.start()
        self.program.screen(VIEWER)
        self.wait_for_strip(lambda seen: seen == shown, "the background picture at the next start")

    def use_no_background(self, shown):
        program = self.program
        self.open_options("Background")
        program.find("check box", "Use background", within=OPTIONS).click()
        program.find("text", BACKGROUND, within=OPTIONS, where=lambda box: box.text == "(none)")
        self.expect_stored("Init", "UseBackground", "0")
        self.expect_stored("Init", "WallPap", "(none)")
        program.press("Apply", within=OPTIONS)
        self.wait_for_strip(lambda seen: seen != shown, "the background picture to go")
        self.close("Cancel")

    def choose_a_program(self):
        """For the first of the three buttons, which has the last number."""
        program = self.program
        path = self.journey.program_of_the_user("chosen", CHOSEN_PROGRAM)
        self.open_options("Buttons")
        program.find("check box", "Shortcut button 3", within=OPTIONS).click()
        self.fill(SHORTCUT, path)
        self.stage.picture("shortcut-buttons")
        program.press("Save", within=OPTIONS)
        wait_until(lambda: self.stored("ShellApp", "3") == path, "the program of the third button to be stored")
        self.close("Cancel")
        title = program.title()
        program.find_all("push button", SHORTCUT_BUTTONS)[0].click()
        self.journey.see_program_of_the_user(CHOSEN_PROGRAM)
        self.expect_minimised(title)
        self.journey.close_program_of_the_user(CHOSEN_PROGRAM)
        self.journey.back_to_the_frame(title)

    def expect_minimised(self, title):
        window = self.stage.run("xdotool", "search", "--name", f"^{title}$").split()[0]
        wait_until(lambda: "_NET_WM_STATE_HIDDEN" in self.stage.run("xprop", "-id", window, "_NET_WM_STATE"),
                   "the frame to give way to the program that it started")

    def go(self):
        """From a sample in the viewer to another one."""
        self.to_the_companies()
        self.cancel_what_waits()
        self.apply_it()
        _, shown = self.choose_background()
        self.keep_it_over_a_start(shown)
        self.use_no_background(shown)
