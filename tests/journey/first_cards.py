#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The first days with the program: from no settings at all to queries over a file of cards and to the repair of one, by
keys and clicks alone.

Usage: first_cards.py PROGRAM DDBSQL PICTURES
"""

import os
import sys

from card_file import CardFile, expect
from damaged_files import DamagedFiles
from journey import EDITOR, SAVE_CHANGES, VIEWER, WELCOME, Journey, run
from queries import Queries
from stage import wait_until
from strip_and_menu import StripAndMenu

WIZARD = "Create Card Fields"
NO_APOSTROPHE = "This string cannot contain the apostrophe ( ' ) character"

# Page by page: title, and the fields with their kinds.
DESIGN = (
    ("Anschrift", (("City", "Text"), ("Country", "Text"), ("Customer", "Yes/No"))),
    ("Trade", (("Founded", "Number"), ("Next visit", "Date"), ("Größe", "Text"))),
)
KINDS = ("Text", "Number", "Yes/No", "Date")

# The number that the card ends up with, then what is typed.
COMPANIES = (
    (1, "Nestlé", "Vevey", "Suisse", "1866"),
    (2, "Société Générale", "Paris", "France", "1864"),
    (3, "Hermès", "Paris", "France", "1837"),
    (4, "Münchener Rück", "München", "Deutschland", "1880"),
    (20, "Österreichische Post", "Wien", "Österreich", "1999"),
    (21, "Telefónica", "Madrid", "España", "1924"),
    (22, "Petróleo Brasileiro", "Rio de Janeiro", "Brasil", "1953"),
    (5, "Grupo Bimbo", "Ciudad de México", "México", "1945"),
    (23, "Crédit Agricole", "Montrouge", "France", "1894"),
    (40, "Ørsted", "Fredericia", "Danmark", "1973"),
    (41, "Türk Telekom", "Ankara", "Türkiye", "1995"),
    (42, "Estée Lauder", "New York", "USA", "1946"),
)
CUSTOMERS = {1, 3, 21, 42}
FILE_NAME = "Kunden März.ddb"
TYPED = "".join(word for row in COMPANIES for word in row[1:]) + FILE_NAME + "Größe" + "É"
SPECIAL = {character for character in TYPED if ord(character) > 126}


class FirstCards(Journey):
    def __init__(self, stage, binary, ddbsql):
        super().__init__(stage, binary)
        self.ddbsql = ddbsql
        self.path = stage.path(FILE_NAME)

    @staticmethod
    def names():
        return {name for _, name, *_ in COMPANIES}

    def expect_card(self, number, name):
        """The viewer and the strip show that card."""
        self.expect_field("Company", name)
        self.expect_number(number)

    def seek(self, number, name):
        box = self.program.find("text", "Enter Card Number")
        box.click()
        self.program.fill(box, str(number))
        self.expect_card(number, name)

    # Steps

    def turn_the_welcome_down(self):
        """A first start greets its user; Cancel leaves an empty frame."""
        # The window manager has shown it by then.
        self.program.wait_for_focus("OK", role="push button")
        self.program.find("label", WELCOME)
        self.stage.picture("welcome")
        self.program.press("Cancel")
        self.program.gone("label", WELCOME)

    def new_file_by_keys_and_menu(self):
        program = self.program
        self.turn_the_welcome_down()
        program.wait_for_title("Velmora")
        program.key("ctrl+n")
        program.wait_for_title("New")
        program.key("Escape")
        program.wait_for_title("Velmora")
        program.find("menu item", "File").click()
        self.stage.picture("menu")
        program.find("menu item", "New").click()
        program.wait_for_title("New")
        name = program.wait_for_focus("File name:", within="New")
        program.fill(name, self.path)
        self.stage.picture("file-dialog")
        program.key("Return")
        program.screen(WIZARD)

    def design_the_card(self):
        program = self.program
        box = program.wait_for_focus("Main field", within=WIZARD)
        program.fill(box, "Index@")
        program.key("Return")
        program.answer("Please select a different name.", "OK")
        program.find("text", "Main field", within=WIZARD).click()
        program.fill(box, "Company")
        for page, (title, fields) in enumerate(DESIGN, 1):
            self.design_page(page, title, fields)
        self.stage.picture("wizard")
        program.press("OK", within=WIZARD)
        program.no_screen(WIZARD)
        program.screen(EDITOR)
        program.wait_for_title(self.path)

    def design_page(self, page, title, fields):
        program = self.program
        program.press(str(page), within=WIZARD)
        program.find("label", str(page), within=WIZARD)
        program.find("text", "Page name", within=WIZARD).click()
        program.fill(program.wait_for_focus("Page name", within=WIZARD), title)
        count = program.find("text", "Number of fields on this page", within=WIZARD)
        present = int(count.text)
        count.click()
        program.wait_for_focus("Number of fields on this page", "scroll bar", WIZARD)
        program.key(*["Up"] * (len(fields) - present))
        wait_until(lambda: count.text == str(len(fields)), "the number of fields")
        program.press("No. of fields per page", within=WIZARD)
        wait_until(lambda: len(program.find_all("text", "Field name", within=WIZARD)) == len(fields), "the rows")
        program.find("text", "Field name", within=WIZARD).click()
        for name, kind in fields:
            program.fill(program.wait_for_focus("Field name", within=WIZARD), name)
            program.key("Tab", *["Down"] * KINDS.index(kind))
            program.find("combo box", kind, within=WIZARD, where=lambda control: control.is_("focused"))
            program.key("Tab")

    def enter_companies(self):
        for place, company in enumerate(COMPANIES):
            if place > 0:
                self.program.press("Create New Card")
            self.enter_company(place, *company)

    def enter_company(self, place, number, name, city, country, founded):
        program = self.program
        box = program.wait_for_focus("Company", within=EDITOR)
        if number == 1:
            self.stage.picture("editor")
        self.choose_number(number)
        if number == 42:
            program.fill(box, "NESTLÉ")
            program.key("Return")
            program.answer("This name already exists! ", "OK")
            wait_until(lambda: box.text == "", "the name to be emptied")
        program.fill(program.wait_for_focus("Company", within=EDITOR), name)
        program.key("Return")
        city_box = program.wait_for_focus("City", within=EDITOR)
        if number == 42:
            program.type("L'Aquila")
            program.key("Return")
            program.message(NO_APOSTROPHE)
            self.stage.picture("apostrophe")
            program.answer(NO_APOSTROPHE, "OK")
            program.wait_for_focus("City", within=EDITOR)
        program.fill(city_box, city)
        program.key("Return")
        program.fill(program.wait_for_focus("Country", within=EDITOR), country)
        program.key("Return")
        check = program.wait_for_focus("Customer", "check box", EDITOR)
        if number in CUSTOMERS:
            program.key("space")
            wait_until(lambda: check.is_("checked"), "the tick")
        program.key("ctrl+Next")
        program.fill(program.wait_for_focus("Founded", within=EDITOR), founded)
        if place == 1:
            self.stage.picture("editor-page-2")
        program.press("OK", within=EDITOR)
        program.no_screen(EDITOR)
        self.expect_card(number, name)

    def choose_number(self, number):
        program = self.program
        box = program.find("text", "Card No.", within=EDITOR)
        if number in (20, 40):
            box.click()
            program.fill(box, str(number))
            program.key("Tab")
        elif number == 21:
            box.click()
            program.fill(box, "20")
            program.key("Tab")
            program.answer("This number already exists!", "OK")
        elif number == 5:
            program.press("Card No.", within=EDITOR)
        wait_until(lambda: box.text == str(number), f"the number {number}; it is {box.text!r}")
        if number in (20, 40, 5):
            program.find("text", "Company", within=EDITOR).click()
        program.wait_for_focus("Company", within=EDITOR)

    def step_and_seek(self):
        program = self.program
        for button, number, name in (
                ("Next card", 42, "Estée Lauder"),
                ("Previous card", 41, "Türk Telekom"),
                ("Previous card", 40, "Ørsted"),
                ("Previous card", 23, "Crédit Agricole"),
                ("Next card", 40, "Ørsted")):
            program.press(button)
            self.expect_card(number, name)
        seek = program.find("text", "Enter Card Number")
        seek.click()
        program.type("20")
        self.expect_card(20, "Österreichische Post")
        # There is no card 6: going down from 20, the next one below it is meant.
        program.key("ctrl+a")
        program.type("6")
        self.expect_card(5, "Grupo Bimbo")
        wait_until(lambda: seek.text == "6", "the number to stay")
        program.type("x")
        wait_until(lambda: seek.text == "", "what is no number to go")
        self.expect_card(5, "Grupo Bimbo")

    def save_one_change_and_drop_another(self):
        program = self.program
        self.field("City").click()
        program.fill(program.wait_for_focus("City", within=VIEWER), "Monterrey, México")
        program.press("OK", within=VIEWER)
        program.press("Next card")
        self.expect_card(20, "Österreichische Post")
        program.press("Previous card")
        self.expect_card(5, "Grupo Bimbo")
        self.expect_field("City", "Monterrey, México")
        self.field("Country").click()
        program.fill(program.wait_for_focus("Country", within=VIEWER), "Nowhere")
        program.press("Next card")
        program.message(SAVE_CHANGES)
        self.stage.picture("question")
        program.answer(SAVE_CHANGES, "No")
        self.expect_card(20, "Österreichische Post")
        program.press("Previous card")
        self.expect_card(5, "Grupo Bimbo")
        self.expect_field("Country", "México")

    def set_reminder(self):
        program = self.program
        program.press("Trade", within=VIEWER)
        self.stage.picture("viewer-page-2")
        self.field("Next visit").click()
        program.wait_for_title("Date Setting")
        program.key("Prior")
        program.find("check box", "Reminder", within="Date Setting").click()
        self.stage.picture("reminder")
        program.press("OK", within="Date Setting")
        program.wait_for_title(self.path)
        wait_until(lambda: self.field("Next visit").text != "", "the date of the visit")
        program.press("OK", within=VIEWER)
        self.expect_card(5, "Grupo Bimbo")

    def delete_card(self):
        program = self.program
        self.seek(41, "Türk Telekom")
        question = "Are you sure you want to delete this card?\nCard Name :Türk Telekom"
        program.key("ctrl+d")
        program.message(question)
        self.stage.picture("delete")
        program.answer(question, "Cancel")
        self.expect_card(41, "Türk Telekom")
        program.key("ctrl+d")
        program.answer(question, "OK")
        self.expect_card(2, "Société Générale")

    def quit_on(self, number, name):
        self.seek(number, name)
        self.program.key("ctrl+q")
        self.program.wait_for_end()

    def start_again(self):
        self.start()
        self.program.wait_for_title(self.path)
        self.expect_card(23, "Crédit Agricole")
        self.expect_field("City", "Montrouge")
        self.stage.picture("started-again")
        self.program.key("ctrl+q")
        self.program.wait_for_end()

    def look_into_the_file(self):
        file = CardFile(self.path)
        file.expect_rows("pragma integrity_check", [("ok",)])
        file.expect_tables({
            "Location": "Name Text, Tab Long, Type Long",
            "MainData": "Index@ Long, Company TEXT(150), City TEXT(200), Country TEXT(200), Customer Yes/No, "
                        "Founded Double, Next visit Date, Größe TEXT(200), Remarks Memo",
            "CityT": "City Text",
            "CountryT": "Country Text",
            "GrößeT": "Größe Text",
            "TableDatesRemainder": "Index Long, Next visit Date, Next visitAgents Text",
            "SupportRemainder": "Name Text",
        })
        file.expect_rows("select Name, Tab, Type from Location order by rowid", [
            ("Company", 0, 0), ("Anschrift", 1, 1), ("Trade", 2, 1),
            ("City", 1, 2), ("Country", 1, 2), ("Customer", 1, 4), ("Founded", 2, 3), ("Next visit", 2, 5),
            ("Größe", 2, 2)])
        file.expect_rows("select Name from SupportRemainder", [("Next visit",)])
        cities = {5: "Monterrey, México"}
        file.expect_rows(
            'select "Index@", Company, City, Country, Customer, Founded, Größe, Remarks from MainData order by rowid',
            [(number, name, cities.get(number, city), country, -1 if number in CUSTOMERS else 0, float(founded), " ", " ")
             for number, name, city, country, founded in COMPANIES if number != 41])
        file.expect_rows('select "Index@" from MainData where "Next visit" is not null', [(5,)])
        file.expect_rows('select count(*) from MainData m, TableDatesRemainder r where m."Index@" = r."Index" '
                         'and m."Next visit" = r."Next visit" and r."Next visit" > date(\'now\', \'+360 days\') '
                         'and length(r."Next visit") = 10', [(1,)])
        file.expect_rows("select \"unique\" from pragma_index_list('MainData')", [(1,)])
        expect([name for name in os.listdir(os.path.dirname(self.path)) if "ddb" in name or "~" in name],
               [os.path.basename(self.path)], "the files beside the card file")

    def go(self):
        from program import put_on_keyboard
        put_on_keyboard(self.stage, SPECIAL)
        self.start()
        self.stage.picture("empty")
        self.new_file_by_keys_and_menu()
        self.design_the_card()
        self.enter_companies()
        self.stage.picture("viewer")
        self.step_and_seek()
        self.save_one_change_and_drop_another()
        self.set_reminder()
        self.delete_card()
        self.quit_on(23, "Crédit Agricole")
        self.start_again()
        self.look_into_the_file()
        self.start()
        self.program.screen(VIEWER)
        Queries(self).go()
        StripAndMenu(self, self.ddbsql).go()
        DamagedFiles(self).go()


if __name__ == "__main__":
    sys.exit(run(FirstCards, *sys.argv[1:4]))
