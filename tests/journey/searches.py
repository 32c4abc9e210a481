# SPDX-License-Identifier: MIT
"""The first evening: a start without settings, the samples, and three ways to find somebody in one of them."""

import os

from card_file import CardFile, expect
from journey import EDITOR, SAVE_CHANGES, VIEWER, WELCOME
from stage import wait_until

SAMPLES = "Open Samples"
ABOUT_SAMPLES = "You may select one of the sample files which have been "
QUICK_SEARCH = "Quick Search"
SEARCH = "Search"
CARDS_TAB = "Cards"
CARDS = "Cards found"
CONTACTS = "Contacts found"
ROWS_IN_VIEW = 5
NUMBERS_OF_CONTACTS = "Telephone from Contact  List"
NUMBERS_OF_CARDS = "Telephone from Cards"
SIMILAR = "This name already exists in the file\nClick \"OK\" to view a list of similar names."


class Searches:
    """Works the program of a journey through its first start. Leaves it on a card of the sample of shops."""

    def __init__(self, journey):
        self.journey = journey
        self.stage = journey.stage
        self.file = None

    @property
    def program(self):
        return self.journey.program

    def expect_hits(self, hits, grid, within=QUICK_SEARCH, in_view=ROWS_IN_VIEW):
        """The grid has so many rows, and the first of them hold that; Null shows as nothing."""
        table = self.program.grid(grid, within)
        wanted = [["" if value is None else str(value) for value in hit] for hit in hits[:in_view]]

        def shown():
            return table.rows(min(len(wanted), table.row_count()), len(wanted[0]))

        wait_until(lambda: table.row_count() == len(hits) and shown() == wanted,
                   lambda: f"{len(hits)} rows with {wanted} in {grid!r}; of {table.row_count()} it shows {shown()}")

    # Samples

    def open_the_shops(self):
        program = self.program
        program.find("label", WELCOME)
        self.stage.picture("welcome")
        program.press("Samples")
        program.screen(SAMPLES)
        expect(program.find("text", within=SAMPLES).text.startswith(ABOUT_SAMPLES), True, "the text about the samples")
        own = self.journey.sample("")
        expect(os.path.exists(own), False, "samples of the user before they are asked for")
        self.stage.picture("samples")
        program.press("OK", within=SAMPLES)
        self.open_sample("Shops.ddb")
        self.expect_copies()
        self.expect_shop(1)
        self.stage.picture("shops")

    def open_sample(self, name):
        """The file dialog stands in the folder of the user's own samples."""
        program = self.program
        program.wait_for_title("Open Sample")
        program.fill(program.wait_for_focus("File name:"), name)
        self.stage.picture("open-sample")
        program.key("Return")
        program.wait_for_title(self.journey.sample(name))
        program.screen(VIEWER)
        self.file = CardFile(self.journey.sample(name))

    def expect_copies(self):
        """Whatever is done to the samples is done to the user's own."""
        names = sorted(os.listdir(self.journey.sample_of_the_program("")))
        expect(len(names), 3, "the samples of the program")
        expect(sorted(name for name in os.listdir(self.journey.sample("")) if name.endswith(".ddb")), names,
               "the user's own samples")

    def expect_shop(self, number):
        """The card of that number with all of it that is easily told."""
        [(shop, city)] = self.file.rows(f'select Shop, City from MainData where "Index@" = {number}')
        self.journey.expect_field("Shop", shop)
        self.journey.expect_field("City", city)
        self.journey.expect_number(number)

    # Quick search

    def shops(self, part):
        return self.file.rows(f"select \"Index@\", Shop from MainData where Shop like '%{part}%' order by rowid")

    def contacts(self, column, part):
        return self.file.rows(f"select \"Index\", Name, \"1\" from Agent where {column} like '%{part}%' "
                              "order by rowid")

    def callers(self, part):
        condition = " or ".join(f"a.\"{column}\" like '%{part}%'" for column in (7, 8, 9, 10))
        return self.file.rows("select a.\"Index\", m.Shop, a.Name from Agent a "
                              f"join MainData m on m.\"Index@\" = a.\"Index\" where {condition} order by a.rowid")

    def quick_search(self):
        self.program.press("Quick Search: Cards/Contacts/Telephone")
        self.program.screen(QUICK_SEARCH)

    def type_into(self, name, text, within=QUICK_SEARCH):
        self.program.find("text", name, within=within).click()
        self.program.fill(self.program.wait_for_focus(name, within=within), text)

    def find_by_name(self):
        """A name, or what it holds: the hits, another order of them, and the card of one."""
        program = self.program
        self.quick_search()
        self.type_into("Find:", "xyzzy")
        program.key("Return")
        program.answer("Text not found.", "OK")
        self.type_into("Find:", "market")
        program.press("Search", within=QUICK_SEARCH)
        hits = self.shops("market")
        self.expect_hits(hits, CARDS)
        self.stage.picture("quick-search")
        program.find("check box", "Sort by: Name", within=QUICK_SEARCH).click()
        hits.sort(key=lambda hit: hit[1].lower())
        self.expect_hits(hits, CARDS)
        number, shop = hits[-1]
        program.find("table cell", shop, within=QUICK_SEARCH).click(times=2)
        program.no_screen(QUICK_SEARCH)
        self.expect_shop(number)

    def find_by_contact(self):
        """From the name in the strip; a contact leads to a card by the number that the list tells."""
        program = self.program
        program.find("label", where=self.is_name_in_strip).click(times=2)
        program.screen(QUICK_SEARCH)
        program.tab("Contacts", within=QUICK_SEARCH)
        self.type_into("Search  by First Name", "ann")
        program.key("Return")
        self.expect_hits(self.contacts("Name", "ann"), CONTACTS)
        self.type_into("Search by Last Name", "son")
        program.key("Return")
        hits = self.contacts('"1"', "son")
        self.expect_hits(hits, CONTACTS)
        program.find("check box", "Sort by: Last Name", within=QUICK_SEARCH).click()
        hits.sort(key=lambda hit: hit[2].lower())
        self.expect_hits(hits, CONTACTS)
        self.stage.picture("quick-search-contacts")
        self.go_to(hits[0][0])

    def go_to(self, number):
        """By a number that a list told: the strip names its card beside the list, and a button shows it."""
        program = self.program
        box = program.find("text", "Enter Card Number")
        box.click()
        program.fill(box, str(number))
        [(shop,)] = self.file.rows(f'select Shop from MainData where "Index@" = {number}')
        program.find("label", shop, where=self.is_name_in_strip)
        self.back_to_the_card()
        self.expect_shop(number)

    @staticmethod
    def is_name_in_strip(label):
        return label.tip == "Double Click for Quick Search"

    def find_by_telephone(self):
        """A caller whose number is seen in part: among the contacts and among the cards."""
        program = self.program
        self.quick_search()
        program.tab("Telephone No.", within=QUICK_SEARCH)
        program.wait_for_focus("Requested Tel. No.", within=QUICK_SEARCH)
        program.type("12")
        program.key("Return")
        program.answer("Enter at least 4 digits.", "OK")
        self.type_into("Requested Tel. No.", "0000 0000")
        program.key("Return")
        program.answer("Number not found.", "OK")
        self.type_into("Requested Tel. No.", "555-4")
        program.press("Search", within=QUICK_SEARCH)
        self.expect_hits(self.callers("555-4"), NUMBERS_OF_CONTACTS, in_view=1)
        hits = self.file.rows("select \"Index@\", Shop, Telephone from MainData where Telephone like '%555-4%' "
                              "order by rowid")
        self.expect_hits(hits, NUMBERS_OF_CARDS, in_view=1)
        self.stage.picture("quick-search-telephone")
        self.go_to(hits[0][0])

    # Search by name

    def step_from_hit_to_hit(self):
        program = self.program
        program.press("List of Customers/Contacts")
        program.screen(SEARCH)
        program.wait_for_focus("Data", "push button", SEARCH)
        program.key("space")
        self.expect_hits(self.shops(""), CARDS, SEARCH)
        hits = self.shops("market")
        self.type_into("Find:", "market", SEARCH)
        for _, shop in hits:
            program.press("Find Next", within=SEARCH)
            self.expect_chosen(shop)
        program.press("Find Next", within=SEARCH)
        program.answer("You have reached the end of the text.", "OK")
        self.stage.picture("search")
        program.press("Find Previous", within=SEARCH)
        number, shop = hits[-2]
        self.expect_chosen(shop)
        program.press("Card", within=SEARCH)
        program.no_screen(SEARCH)
        self.expect_shop(number)

    def expect_chosen(self, text):
        self.program.find("table cell", text, within=SEARCH, where=lambda cell: cell.is_("selected"))

    # The name check

    def see_who_is_called_alike(self):
        """A new card whose name begins like another's: the editor makes room for those that have it."""
        program = self.program
        program.press("Create New Card")
        program.fill(program.wait_for_focus("Shop", within=EDITOR), "Old market hall")
        program.key("Return")
        program.answer(SIMILAR, "OK")
        program.answer(SAVE_CHANGES, "No")
        program.screen(QUICK_SEARCH)
        program.no_screen(EDITOR)
        self.expect_hits(self.shops("old"), CARDS)

    def back_to_the_card(self):
        program = self.program
        program.press("Customer Card")
        program.no_screen(QUICK_SEARCH)
        program.screen(VIEWER)

    def go(self):
        """From the first start to the viewer in front."""
        self.open_the_shops()
        self.find_by_name()
        self.find_by_contact()
        self.find_by_telephone()
        self.step_from_hit_to_hit()
        self.see_who_is_called_alike()
        self.back_to_the_card()
