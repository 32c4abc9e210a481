# SPDX-License-Identifier: MIT
"""Pictures of the screens around the cards: searches, field editor, options, and what the program tells of itself."""

import os

from journey import VIEWER

QUICK_SEARCH = "Quick Search"
SEARCH = "Search"
FIELD_EDITOR = "Add/Delete File Fields"
DELETE_FIELD = "Do you wish to delete this field?"
OPTIONS = "Options"
TELEPHONE_TIP = "Choose a Card Field for Telephone No. -- This Will Enable Quick Search Identification"
ABOUT = "About Velmora"
DESCRIPTION = "Features Not in This Program"


class ToolPictures:
    """Goes with a photographer whose program has the demonstration file in its viewer, and brings it back there."""

    def __init__(self, photographer):
        self.program = photographer.program
        self.take = photographer.take
        self.papers = os.path.join(os.path.dirname(photographer.binary), "WPapers")

    def find(self, box, text, within):
        self.program.find("text", box, within=within).click()
        self.program.fill(self.program.wait_for_focus(box, within=within), text)
        self.program.key("Return")

    def quick_search(self):
        program = self.program
        program.press("Quick Search: Cards/Contacts/Telephone")
        program.screen(QUICK_SEARCH)
        self.find("Find:", "an", QUICK_SEARCH)
        program.find("table cell", within=QUICK_SEARCH)
        self.take("quick-search-cards")
        program.tab("Contacts", within=QUICK_SEARCH)
        self.find("Search  by First Name", "an", QUICK_SEARCH)
        program.find("table cell", within=QUICK_SEARCH)
        self.take("quick-search-contacts")
        program.tab("Telephone No.", within=QUICK_SEARCH)
        self.find("Requested Tel. No.", "555-4", QUICK_SEARCH)
        program.find("table cell", within=QUICK_SEARCH)
        self.take("quick-search-telephone")

    def search(self):
        program = self.program
        program.press("List of Customers/Contacts")
        program.screen(SEARCH)
        program.press("Data", within=SEARCH)
        program.find("table cell", within=SEARCH)
        self.find("Find:", "an", SEARCH)
        program.find("table cell", within=SEARCH, where=lambda cell: cell.is_("selected"))
        self.take("search")

    def field_editor(self):
        program = self.program
        program.press("Add/Delete Card Fields")
        program.screen(FIELD_EDITOR)
        program.fill(program.wait_for_focus("New field", within=FIELD_EDITOR), "Opening hours")
        self.take("field-editor")
        program.find("list item", "Country", within=FIELD_EDITOR).click()
        program.press("Delete", within=FIELD_EDITOR)
        program.message(DELETE_FIELD)
        self.take("delete-field")
        program.answer(DELETE_FIELD, "Cancel")
        program.press("Cancel", within=FIELD_EDITOR)
        program.no_screen(FIELD_EDITOR)

    def options(self):
        """Stores the telephone field, for the pictures of the quick search."""
        program = self.program
        program.menu(OPTIONS, OPTIONS)
        program.wait_for_title(OPTIONS)
        program.find("combo box", within=OPTIONS, where=lambda box: box.tip == TELEPHONE_TIP).click()
        program.key("Home", *["Down"] * 4, "Return")
        program.find("combo box", "Telephone", within=OPTIONS)
        for tab in ("General", "Buttons", "Dialing", "Internet"):
            program.tab(tab, within=OPTIONS)
            self.take(f"options-{tab.lower()}")
        program.tab("Background", within=OPTIONS)
        program.press("Browse...", within=OPTIONS)
        program.fill(program.wait_for_focus("File name:"), os.path.join(self.papers, "Hills.jpg"))
        program.key("Return")
        program.wait_for_title(OPTIONS)
        self.take("options-background")
        program.press("OK", within=OPTIONS)
        program.no_screen(OPTIONS)
        self.take("viewer-background")

    def description_and_about(self):
        program = self.program
        program.press("Appointments")
        program.screen(DESCRIPTION)
        self.take("description")
        program.key("Escape")
        program.no_screen(DESCRIPTION)
        program.menu("Help", ABOUT)
        program.screen(ABOUT)
        self.take("about")
        program.press("OK", within=ABOUT)
        program.no_screen(ABOUT)

    def go(self):
        self.options()
        self.quick_search()
        self.search()
        self.field_editor()
        self.description_and_about()
        self.program.press("Customer Card")
        self.program.screen(VIEWER)
