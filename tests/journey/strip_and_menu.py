# SPDX-License-Identifier: MIT
"""The third day: contacts in the strip, the Edit menu by keys, and other programs in between. Goes on with the cards
of the first two days."""

import json
import subprocess

from card_file import CardFile, expect
from stage import JourneyError, wait_until

EDITOR = "Create a New Customer Card"
VIEWER = "Customer Cards"
SAVE_CHANGES = "Do you wish to save changes?"
CONTACTS = "Selected Contact / Click to Receive Contacts for this Card"
TELEPHONES = "Contact Telephone No."

# No screen edits contacts: the card, first name, last name, post, whether active, two telephones and the cellular.
PEOPLE = (
    (1, "Ann", "Keller", "Chief", True, "021 1", "", "079 1"),
    (1, "Bo", "Keller", "Buyer", False, "", "021 2", "079 2"),
    (2, "Claire", "Petit", "", False, "01 40", "", ""),
    (2, None, "Nobody", "", True, "01 41", "", ""),
)


class StripAndMenu:
    """Works the program of a journey that has its cards: `journey` starts it and knows the viewer."""

    def __init__(self, journey, ddbsql):
        self.journey = journey
        self.stage = journey.stage
        self._ddbsql = ddbsql

    @property
    def program(self):
        return self.journey.program

    def ask_engine(self, *requests):
        """Works on the closed card file by the tool that speaks to the engine."""
        done = subprocess.run([self._ddbsql, self.journey.path], input="\n".join(map(json.dumps, requests)),
                              capture_output=True, text=True, check=False)
        answers = [json.loads(line) for line in done.stdout.splitlines()]
        if done.returncode != 0 or len(answers) != len(requests) or any("error" in answer for answer in answers):
            raise JourneyError(f"ddbsql: {done.stdout}{done.stderr}")

    # Contacts

    def bring_back_the_column(self):
        """What another tool took away on the second day: without it no card is shown to its end."""
        CardFile(self.journey.path).change("alter table MainData add column Founded DOUBLE")

    def put_in_contacts(self):
        columns = ("Index", "Name", "1", "6", "Activ", "7", "8", "9")
        rows = [(card, name, last, post, active, *numbers) for card, name, last, post, active, *numbers in PEOPLE]
        self.ask_engine(*({"add": "Agent", "values": dict(zip(columns, row))} for row in rows))

    def list_of(self, tip):
        # A list that has a text is called by that text, so it is told by its tip.
        return self.program.find("combo box", where=lambda box: box.tip == tip)

    def expect_strip(self, contact, telephone):
        for tip, text in ((CONTACTS, contact), (TELEPHONES, telephone)):
            wait_until(lambda: self.list_of(tip).name in (text, text or tip),
                       f"{text!r} in {tip!r}; it holds {self.list_of(tip).name!r}")

    def see_contacts(self):
        program = self.program
        self.journey.seek(1, "Nestlé")
        self.expect_strip("Ann   Keller   Chief", "021 1")
        self.list_of(CONTACTS).click()
        program.key("Down", "Down")
        self.expect_strip("Bo   Keller   Buyer", "021 2")
        self.stage.picture("contacts")
        # The one whose name is missing ends the list, so that nobody is the active one here.
        program.press("Next card")
        self.journey.expect_card(2, "Société Générale")
        self.expect_strip("", "")
        self.list_of(CONTACTS).click()
        program.key("Down")
        self.expect_strip("Claire   Petit   ", "01 40")
        program.press("Next card")
        self.journey.expect_card(3, "Hermès")
        self.expect_strip("", "")
        program.press("Previous card")
        program.press("Previous card")
        self.journey.expect_card(1, "Nestlé")
        self.expect_strip("Ann   Keller   Chief", "021 1")

    # The Edit menu

    def edit_by_keys(self):
        program = self.program
        city = self.journey.field("City")
        city.click()
        program.fill(program.wait_for_focus("City", within=VIEWER), "Amsterdam")
        program.key("Home", "shift+Right", "shift+Right")
        # Undo is the first entry, and Cut the next one.
        program.key("alt+e")
        program.find("menu item", "Cut", where=lambda item: item.box[1] > 0)
        program.key("Down", "Return")
        self.journey.expect_field("City", "sterdam")
        program.wait_for_focus("City", within=VIEWER)
        program.key("End", "ctrl+v")
        self.journey.expect_field("City", "sterdamAm")
        program.key("shift+Home", "ctrl+x")
        self.journey.expect_field("City", "")
        program.key("ctrl+v", "ctrl+v")
        self.journey.expect_field("City", "sterdamAmsterdamAm")
        program.press("Cancel", within=VIEWER)
        self.journey.expect_field("City", "Vevey")

    # Other programs

    def to_another_program_and_back(self):
        """Another program comes to the front, and the window manager goes back to this one when that has ended."""
        title = self.program.title()
        other = self.stage.start(["xmessage", "-title", "Another program", "Somebody calls."])
        self.program.wait_for_title("Another program")
        # The program itself hears of it a little later.
        wait_until(lambda: not self.program.is_active(), "the program to know that it was left")
        other.terminate()
        other.wait()
        self.program.wait_for_title(title)
        wait_until(self.program.is_active, "the program to know that it is in front")

    def come_back_to_a_changed_card(self):
        program = self.program
        size = program.frame_size()
        program.resize_frame(size[0] + 60, size[1] + 40)
        wait_until(lambda: program.frame_size() != size, "the frame to get larger")
        self.journey.field("City").click()
        program.fill(program.wait_for_focus("City", within=VIEWER), "Bern")
        self.to_another_program_and_back()
        wait_until(lambda: program.frame_size() == size, f"the size {size}; it is {program.frame_size()}")
        self.journey.expect_field("City", "Bern")
        program.press("Next card")
        program.answer(SAVE_CHANGES, "No")
        self.journey.expect_card(2, "Société Générale")

    def come_back_to_a_new_card(self):
        program = self.program
        program.press("Create New Card")
        program.fill(program.wait_for_focus("Company", within=EDITOR), "Fresh")
        self.to_another_program_and_back()
        # The program was left, and not this screen: what was typed is still worth a question.
        wait_until(lambda: program.find("text", "Company", within=EDITOR).text == "Fresh", "what was typed")
        program.press("Customer Card")
        program.answer(SAVE_CHANGES, "No")
        program.no_screen(EDITOR)
        program.screen(VIEWER)
        program.key("ctrl+q")
        program.wait_for_end()

    def come_back_to_a_file_without_cards(self):
        self.ask_engine({"sql": "Delete * from MainData"})
        self.journey.start()
        program = self.program
        program.wait_for_focus("Company", within=EDITOR)
        program.key("Escape")
        program.no_screen(EDITOR)
        self.to_another_program_and_back()
        program.wait_for_focus("Company", within=EDITOR)
        self.stage.picture("first-card-again")
        expect(program.has_screen(VIEWER), False, "the viewer beside the editor")
        program.key("ctrl+q")
        program.wait_for_end()

    def go(self):
        """From the end of a run to the end of a later one."""
        self.bring_back_the_column()
        self.put_in_contacts()
        self.journey.start()
        self.program.screen(VIEWER)
        self.see_contacts()
        self.edit_by_keys()
        self.come_back_to_a_changed_card()
        self.come_back_to_a_new_card()
        self.come_back_to_a_file_without_cards()
