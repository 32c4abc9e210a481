# SPDX-License-Identifier: MIT
"""The fourth day: card files with a destroyed page are repaired, and opened again. Begins with the file of the first
days, which has no cards by now."""

import os
import shutil

from card_file import CardFile, expect
from stage import wait_until

CARDS = range(1, 601)
TOWN = "Łódź"


def name_of(number):
    return f"Bäckerei {number}"


def bytes_of(path):
    with open(path, "rb") as file:
        return file.read()


class DamagedFiles:
    """Works the program of a journey that is done with its file: `journey` starts it and knows the viewer."""

    def __init__(self, journey):
        self.journey = journey
        self.stage = journey.stage

    @property
    def program(self):
        return self.journey.program

    # The damage

    def make_file(self, name):
        """A file with the fields of the first day and with so many cards that they take several pages."""
        path = self.stage.path(name)
        shutil.copy(self.journey.path, path)
        CardFile(path).change('insert into MainData ("Index@", Company, City) '
                              f"select value, '{name_of('')}' || value, '{TOWN}' "
                              f"from generate_series({CARDS[0]}, {CARDS[-1]})")
        return path

    @staticmethod
    def pages(path, kind):
        """Number and count of cells of each page of the cards, in the order of the cards."""
        return CardFile(path).rows("select pageno, ncell from dbstat where name = 'MainData' "
                                   f"and pagetype = '{kind}' order by path")

    @staticmethod
    def destroy(path, page):
        (size,) = CardFile(path).rows("pragma page_size")[0]
        with open(path, "r+b") as file:
            file.seek((page - 1) * size)
            file.write(bytes(size))
        expect(CardFile(path).is_sound(), False, f"{path} without its page {page} passes for sound")

    # The program

    def choose_file(self, entry, place, path):
        """By keys alone: the File menu, its entry at that place, and the name of the file."""
        program = self.program
        program.key("alt+f")
        item = program.find("menu item", entry, where=lambda item: item.box[1] > 0)
        for _ in range(place):
            program.key("Down")
        wait_until(lambda: item.is_("focused"), f"the entry {entry!r} to be the chosen one")
        program.key("Return")
        program.fill(program.wait_for_focus("File name:"), path)
        self.stage.picture(entry.lower().replace(" ", "-"))
        program.key("Return")
        program.gone("text", "File name:")

    def repair(self, path, lost=()):
        """No message tells the end of it; the repaired file takes the place of the damaged one all at once."""
        damaged = bytes_of(path)
        self.choose_file("Repair File", 2, path)
        wait_until(lambda: bytes_of(path) != damaged, f"{path} to be repaired")
        file = CardFile(path)
        expect(file.is_sound(), True, f"{path} is sound")
        file.expect_rows('select "Index@", Company, City from MainData order by rowid',
                         [(number, name_of(number), TOWN) for number in CARDS if number not in lost])
        expect(file.tables(), CardFile(self.journey.path).tables(), "the tables, with none for cards of one number")
        # Nobody can tell what a destroyed page held, so the damaged file is kept in any case.
        name = os.path.basename(path)
        expect(sorted(found for found in os.listdir(os.path.dirname(path)) if found.startswith(name)),
               [name, f"{name}.damaged"], "the damaged file beside the repaired one")
        expect(bytes_of(f"{path}.damaged") == damaged, True, "the kept file is the damaged one")

    def open_and_see_cards(self, path, *numbers):
        self.choose_file("Open", 0, path)
        self.program.wait_for_title(path)
        self.journey.expect_card(1, name_of(1))
        for number in numbers:
            self.journey.seek(number, name_of(number))
            self.journey.expect_field("City", TOWN)

    # Steps

    def repair_what_leads_to_all_cards(self):
        path = self.make_file("Wurzel.ddb")
        [(root, _)] = self.pages(path, "internal")
        self.destroy(path, root)
        self.repair(path)
        self.open_and_see_cards(path, CARDS[len(CARDS) // 2], CARDS[-1])
        self.stage.picture("repaired")

    def repair_what_held_some_cards(self):
        path = self.make_file("Blatt.ddb")
        (_, before), (leaf, count), *_ = self.pages(path, "leaf")
        lost = CARDS[before:before + count]
        self.destroy(path, leaf)
        self.repair(path, lost)
        self.open_and_see_cards(path, CARDS[-1], lost[0] - 1)
        self.program.press("Next card")
        self.journey.expect_card(lost[-1] + 1, name_of(lost[-1] + 1))
        self.stage.picture("repaired-with-a-loss")

    def go(self):
        """One run of the program over both files."""
        self.journey.start()
        self.repair_what_leads_to_all_cards()
        self.repair_what_held_some_cards()
        self.program.key("ctrl+q")
        self.program.wait_for_end()
