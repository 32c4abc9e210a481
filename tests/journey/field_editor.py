# SPDX-License-Identifier: MIT
"""The second evening: the sample of shops, which has no room left, loses fields and gets one of each kind."""

from card_file import CardFile, expect
from journey import VIEWER
from stage import wait_until

EDITOR = "Add/Delete File Fields"
FIELDS = "Fields of this page"
FULL = "You have 100 fields in file\nIn order to add a field you must delete one or more fields."
DELETE = "Do you wish to delete this field?"
NO_QUERY_GOES = "No saved query goes with it."
LAST_PAGE = 10
PAGE_NAME = "Our own"
# One of each kind, in the order in which the kinds are offered, with the kind's number in the catalogue.
NEW_FIELDS = (("Nickname", "Text", 2), ("Rooms", "Number", 3), ("Open on Sunday", "Yes/No", 4), ("Next fair", "Date", 5))
TEXT, NUMBER, YES_NO, DATE = (name for name, _, _ in NEW_FIELDS)


class FieldEditor:
    """Works the program of a journey with the sample of shops in the viewer, and leaves it there."""

    def __init__(self, journey):
        self.journey = journey
        self.stage = journey.stage
        self.file = CardFile(journey.sample("Shops.ddb"))

    @property
    def program(self):
        return self.journey.program

    def fields_of(self, page):
        return [name for (name,) in
                self.file.rows(f"select Name from Location where Type > 1 and Tab = {page} order by rowid")]

    def title_of(self, page):
        return self.file.rows(f"select Name from Location where Type = 1 and Tab = {page}")

    def columns(self):
        return [name for (name,) in self.file.rows("select name from pragma_table_info('MainData') order by cid")]

    def open_at(self, page):
        program = self.program
        program.press("Add/Delete Card Fields")
        program.screen(EDITOR)
        self.turn_to(page)

    def turn_to(self, page):
        self.program.press(str(page), within=EDITOR)
        self.expect_page(page)

    def expect_page(self, page):
        """The editor shows that page and its fields, as the file has them."""
        program = self.program
        program.find("label", str(page), within=EDITOR)
        wanted = self.fields_of(page)

        def shown():
            return [item.name for item in program.find_all("list item", within=EDITOR)
                    if item.name not in ("Text", "Number", "Yes/No", "Date")]

        wait_until(lambda: shown() == wanted, lambda: f"the fields {wanted} of page {page}; there are {shown()}")

    def leave(self, button="OK"):
        program = self.program
        program.press(button, within=EDITOR)
        program.no_screen(EDITOR)
        program.screen(VIEWER)

    # Steps

    def be_refused(self):
        """The file is full."""
        program = self.program
        self.open_at(LAST_PAGE)
        program.fill(program.wait_for_focus("New field", within=EDITOR), TEXT)
        program.press("Add", within=EDITOR)
        self.stage.picture("field-editor-full")
        program.answer(FULL, "OK")
        program.find("text", "New field", within=EDITOR).click()
        program.key("ctrl+a", "Delete")

    def delete(self, name, note, page=LAST_PAGE):
        program = self.program
        program.find("list item", name, within=EDITOR).click()
        program.press("Delete", within=EDITOR)
        program.message(note)
        program.answer(DELETE, "OK")
        wait_until(lambda: name not in self.columns(), f"the column {name!r} to go")
        self.expect_page(page)

    def make_room(self):
        """All fields of the last page go, the last one with the page's title, and the saved queries with the first."""
        program = self.program
        [(queries,)] = self.file.rows('select count(*) from ".Queries"')
        expect(queries > 1, True, "several saved queries in the sample")
        first, *others = fields = self.fields_of(LAST_PAGE)
        program.find("list item", first, within=EDITOR).click()
        program.press("Delete", within=EDITOR)
        program.message(f"{queries} saved queries go with it.")
        self.stage.picture("delete-field")
        program.answer(DELETE, "Cancel")
        expect(self.fields_of(LAST_PAGE), fields, "the fields after Cancel")
        self.delete(first, f"{queries} saved queries go with it.")
        for name in others:
            self.delete(name, NO_QUERY_GOES)
        expect(self.title_of(LAST_PAGE), [], "the title of a page without fields")
        before = LAST_PAGE - 1
        self.turn_to(before)
        self.delete(self.fields_of(before)[-1], NO_QUERY_GOES, before)

    def add_one_of_each_kind(self):
        program = self.program
        self.turn_to(LAST_PAGE)
        for place, (name, kind, _) in enumerate(NEW_FIELDS):
            program.fill(program.wait_for_focus("New field", within=EDITOR), name)
            program.key("Tab", "Home", *["Down"] * place)
            program.find("combo box", kind, within=EDITOR, where=lambda control: control.is_("focused"))
            program.press("Add", within=EDITOR)
            program.find("list item", name, within=EDITOR)
        program.find("text", "Page name", within=EDITOR).click()
        program.fill(program.wait_for_focus("Page name", within=EDITOR), PAGE_NAME)
        program.press("Apply", within=EDITOR)
        wait_until(lambda: self.title_of(LAST_PAGE) == [(PAGE_NAME,)], "the title of the page")
        self.stage.picture("field-editor")
        self.file.expect_rows(f"select Name, Type from Location where Tab = {LAST_PAGE} and Type > 1 order by rowid",
                              [(name, kind) for name, _, kind in NEW_FIELDS])
        self.leave()

    def fill_them(self):
        """On one card; the next one has nothing of it."""
        program = self.program
        journey = self.journey
        program.press(PAGE_NAME, within=VIEWER)
        for name, text in ((TEXT, "Corner shop"), (NUMBER, "12")):
            journey.field(name).click()
            program.fill(program.wait_for_focus(name, within=VIEWER), text)
        check = journey.field(YES_NO, role="check box")
        check.click()
        wait_until(lambda: check.is_("checked"), "the tick")
        journey.field(DATE).click()
        program.wait_for_title("Date Setting")
        program.press("OK", within="Date Setting")
        program.no_screen("Date Setting")
        date = wait_until(lambda: journey.field(DATE).text, "the date of the fair")
        self.stage.picture("new-fields")
        program.press("OK", within=VIEWER)
        program.press("Next card")
        for name in (TEXT, NUMBER, DATE):
            journey.expect_field(name, "")
        wait_until(lambda: not check.is_("checked"), "the tick to go")
        program.press("Previous card")
        for name, text in ((TEXT, "Corner shop"), (NUMBER, "12"), (DATE, date)):
            journey.expect_field(name, text)
        wait_until(lambda: check.is_("checked"), "the tick to come back")
        columns = ", ".join(f'"{name}"' for name in (TEXT, NUMBER, YES_NO))
        self.file.expect_rows(f'select {columns}, length("{DATE}") from MainData where "{TEXT}" > \' \'',
                              [("Corner shop", 12, -1, 10)])

    def take_them_back(self):
        program = self.program
        self.open_at(LAST_PAGE)
        for name, _, _ in NEW_FIELDS:
            self.delete(name, NO_QUERY_GOES)
        self.leave("Cancel")
        # The page went with its last field.
        program.gone("push button", PAGE_NAME, within=VIEWER)
        self.stage.picture("without-the-fields")

    def look_into_the_file(self, kept):
        """What was not deleted is as it was."""
        file = self.file
        expect(file.is_sound(), True, "the sample is sound")
        expect(self.columns(), kept, "the columns that are left")
        expect(f"{TEXT}T" in file.tables(), False, "the value list of a field that is gone")
        file.expect_rows('select count(*) from ".Queries"', [(0,)])
        original = CardFile(self.journey.sample_of_the_program("Shops.ddb"))
        cards = f'select {", ".join(f"{chr(34)}{name}{chr(34)}" for name in kept)} from MainData order by rowid'
        file.expect_rows(cards, original.rows(cards))

    def go(self):
        """From the viewer in front to the viewer in front, with fewer fields."""
        self.be_refused()
        self.make_room()
        kept = self.columns()
        self.add_one_of_each_kind()
        self.fill_them()
        self.take_them_back()
        self.look_into_the_file(kept)
