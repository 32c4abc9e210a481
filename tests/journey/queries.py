# SPDX-License-Identifier: MIT
"""The second day: value lists, and queries from the toolbar to the card. Goes on with the cards of the first day."""

from card_file import CardFile, expect
from stage import wait_until

VIEWER = "Customer Cards"
VALUES = "Update Card Fields"
QUERY = "Preparation of Query Components"
CHOOSER = "Choice of Query Fields"
RESULTS = "Query Results"
QUERY_LIST = "Query List"
ROWS_IN_VIEW = 5
OVERWRITE = "Overwrite existing query?"


class Queries:
    """Works the program of a journey that has its cards: `journey` starts it and knows the viewer."""

    def __init__(self, journey):
        self.journey = journey
        self.stage = journey.stage

    @property
    def program(self):
        return self.journey.program

    # Value lists

    def fill_and_use_a_value_list(self):
        program = self.program
        self.journey.field("City").click(times=2)
        program.wait_for_title(VALUES)
        box = program.find("text", "New value", within=VALUES)
        box.click()
        for city in ("Montrouge", "Paris"):
            program.fill(box, city)
            program.key("Return")
            program.find("list item", city, within=VALUES)
            wait_until(lambda: box.text == "", "the box to be emptied")
        program.fill(box, "L'Aquila")
        program.key("Return")
        program.answer("This string cannot contain the apostrophe ( ' ) character", "OK")
        program.find("list item", "Paris", within=VALUES).click()
        self.stage.picture("value-list")
        program.press("Update", within=VALUES)
        program.no_screen(VALUES)
        self.journey.expect_field("City", "Paris")
        program.press("OK", within=VIEWER)
        program.press("Next card")
        program.press("Previous card")
        self.journey.expect_field("City", "Paris")

    # Queries

    def open_query_screen(self):
        self.program.press("Queries")
        self.program.screen(QUERY)

    def pick_texts(self, field, *texts):
        program = self.program
        program.press(field, within=QUERY)
        program.wait_for_title("Contents of Card Field")
        boxes = program.find_all("text", "Text to look for", within="Contents of Card Field")
        expect(len(boxes), 5, "the boxes for texts")
        for box, text in zip(boxes, texts):
            box.click()
            program.fill(box, text)
        self.stage.picture("pick-text")
        program.press("OK", within="Contents of Card Field")
        program.no_screen("Contents of Card Field")

    def pick_number(self, field, place_of_operator, digits):
        program = self.program
        program.press(field, within=QUERY)
        program.wait_for_title("Choice of Numerical Data")
        program.find("combo box", "Comparison", within="Choice of Numerical Data").click()
        program.key("Home", *["Down"] * place_of_operator, "Return")
        box = program.find("text", "Number", within="Choice of Numerical Data")
        box.click()
        program.fill(box, digits)
        self.stage.picture("pick-number")
        program.press("OK", within="Choice of Numerical Data")
        program.no_screen("Choice of Numerical Data")

    def pick_yes(self, field):
        program = self.program
        program.press(field, within=QUERY)
        program.wait_for_title("Choose Yes/No")
        box = program.find("check box", field, within="Choose Yes/No")
        box.click()
        wait_until(lambda: box.is_("checked"), "the tick")
        self.stage.picture("pick-yes")
        program.press("OK", within="Choose Yes/No")
        program.no_screen("Choose Yes/No")

    def choose_fields(self, name):
        """Takes all fields and the name, and lets the query run."""
        program = self.program
        program.press("OK", within=QUERY)
        program.wait_for_title(CHOOSER)
        program.press("Select All", within=CHOOSER)
        box = program.find("text", "Query Name", within=CHOOSER)
        box.click()
        program.fill(box, name)
        self.stage.picture("choose-fields")
        program.press("OK", within=CHOOSER)

    def expect_results(self, name, companies):
        """The result screen shows that query, and in view those companies in that order from the first on."""
        program = self.program
        program.screen(RESULTS)
        program.find("label", name, within=RESULTS)

        def shown():
            cells = [cell for cell in program.find_all("table cell", within=RESULTS)]
            texts = [cell.name for cell in cells]
            return [text for text in texts if text in self.journey.names()]

        def fits():
            found = shown()
            return found == companies[:len(found)] and len(found) >= min(len(companies), ROWS_IN_VIEW)

        wait_until(fits, f"{companies} in the result")

    def two_texts_and_a_number(self):
        self.open_query_screen()
        self.pick_texts("City", "Paris", "madrid")
        self.program.press("Trade", within=QUERY)
        self.pick_number("Founded", 1, "1900")
        self.stage.picture("query")
        self.choose_fields("Old")
        self.expect_results("Old", ["Société Générale", "Hermès", "Crédit Agricole"])
        self.stage.picture("results")

    def yes_narrowed_by_the_first(self):
        program = self.program
        self.open_query_screen()
        program.find("radio button", "OR Type Query", within=QUERY).click()
        # A list that has a text is called by that text, so it is told by its tip.
        program.find("combo box", within=QUERY, where=lambda box: box.tip == "Choose the Name of a Query").click()
        program.key("Down", "Return")
        self.pick_yes("Customer")
        self.choose_fields("Old customers")
        self.expect_results("Old customers", ["Hermès"])

    def all_cards_by_two_keys(self):
        program = self.program
        self.open_query_screen()
        self.choose_fields("Everybody")
        program.find("label", "Everybody", within=RESULTS)
        for name, place in (("Sort  by :", 3), ("Then By :", 1)):
            program.find("combo box", name, within=RESULTS).click()
            program.key("Home", *["Down"] * place, "Return")
        program.find("radio button", "Descending", within=RESULTS).click()
        program.press("Sort", within=RESULTS)
        # By city, the last one first; the cards of Paris by their numbers.
        by_city = ["Österreichische Post", "Nestlé", "Petróleo Brasileiro", "Société Générale", "Hermès",
                   "Crédit Agricole", "Estée Lauder", "Münchener Rück", "Grupo Bimbo", "Telefónica", "Ørsted"]
        self.expect_results("Everybody", by_city)
        self.stage.picture("results-sorted")

    def to_the_card_and_back(self):
        program = self.program
        program.find("table cell", "Nestlé", within=RESULTS).click(times=2)
        program.no_screen(RESULTS)
        self.journey.expect_card(1, "Nestlé")
        program.press("Return to Previous Query")
        program.find("label", "Everybody", within=RESULTS)
        program.find("table cell", "Nestlé", within=RESULTS)

    def overwrite_both_ways(self):
        program = self.program
        self.open_query_screen()
        self.pick_texts("Country", "Danmark")
        self.choose_fields("Old customers")
        program.answer(OVERWRITE, "Cancel")
        program.wait_for_title(CHOOSER)
        program.press("OK", within=CHOOSER)
        program.answer(OVERWRITE, "OK")
        self.expect_results("Old customers", ["Ørsted"])

    def delete_from_the_list(self):
        program = self.program
        program.press("List of Queries")
        program.wait_for_title(QUERY_LIST)
        self.stage.picture("query-list")
        program.find("list item", "Everybody", within=QUERY_LIST).click()
        program.press("Delete", within=QUERY_LIST)
        program.gone("list item", "Everybody", within=QUERY_LIST)
        program.find("list item", "Old", within=QUERY_LIST)
        program.press("Cancel", within=QUERY_LIST)
        program.no_screen(QUERY_LIST)
        program.screen(VIEWER)

    def drop_a_column_between_two_runs(self):
        program = self.program
        program.key("ctrl+q")
        program.wait_for_end()
        file = CardFile(self.journey.path)
        expect(file.rows('select Name from ".Queries" order by Name'), [("Old customers&",), ("Old&",)],
               "the stored queries after the quit")
        file.change("alter table MainData drop column Founded")
        self.journey.start()
        program = self.program
        program.screen(VIEWER)
        program.press("List of Queries")
        program.wait_for_title(QUERY_LIST)
        program.find("list item", "Old", within=QUERY_LIST).click(times=2)
        program.gone("list item", "Old", within=QUERY_LIST)
        program.screen(QUERY_LIST)
        program.press("Cancel", within=QUERY_LIST)
        program.no_screen(QUERY_LIST)
        program.key("ctrl+q")
        program.wait_for_end()

    def go(self):
        """From the viewer in front to the end of a later run."""
        self.fill_and_use_a_value_list()
        self.two_texts_and_a_number()
        self.yes_narrowed_by_the_first()
        self.all_cards_by_two_keys()
        self.to_the_card_and_back()
        self.overwrite_both_ways()
        self.delete_from_the_list()
        self.drop_a_column_between_two_runs()
