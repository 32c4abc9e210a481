#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A caller found without a mouse: from nothing at all, by a sample and a piece of the number, to the caller's card.

Usage: by_keys.py PROGRAM PICTURES
"""

import os
import sys

from card_file import CardFile, expect
from journey import VIEWER, WELCOME, Journey, run
from stage import JourneyError, wait_until

SAMPLES = "Open Samples"
QUICK_SEARCH = "Quick Search"
NUMBERS = "Telephone from Cards"
CARD = 87


class ByKeys(Journey):
    def __init__(self, stage, binary):
        super().__init__(stage, binary)
        self.path = os.path.join(stage.path("data"), "velmora", "Samples", "Shops.ddb")

    @staticmethod
    def program_class():
        from program import Program

        class Keyboard(Program):
            """The program on a desk without a mouse."""

            keys = 0

            def xdotool(self, *words):
                if words[0] not in ("key", "type"):
                    raise JourneyError(f"a mouse, where there is none: xdotool {' '.join(words)}")
                super().xdotool(*words)

            def key(self, *keys):
                Keyboard.keys += len(keys)
                super().key(*keys)

            def type(self, text):
                Keyboard.keys += len(text)
                super().type(text)

        return Keyboard

    def open_the_shops(self):
        program = self.program
        program.find("label", WELCOME)
        program.key("alt+s")
        program.screen(SAMPLES)
        program.wait_for_focus("OK", "push button", SAMPLES)
        program.key("Return")
        program.wait_for_focus("File name:", within="Open Sample")
        program.type("Shops.ddb")
        program.key("Return")
        program.wait_for_title(self.path)
        program.screen(VIEWER)

    def find_the_caller(self, piece):
        """The toolbar with the searches is one key away from the card; the tabs one key from the box."""
        program = self.program
        program.key("shift+F6")
        program.wait_for_focus("Quick Search: Cards/Contacts/Telephone", "push button")
        program.key("space")
        program.screen(QUICK_SEARCH)
        program.key("ctrl+Prior", "ctrl+Prior")
        program.wait_for_focus("Requested Tel. No.", within=QUICK_SEARCH)
        program.type(piece)
        program.key("Return")
        hits = program.grid(NUMBERS, QUICK_SEARCH)
        wait_until(lambda: hits.row_count() == 1, lambda: f"one card; there are {hits.row_count()}")
        self.stage.picture("caller")
        return hits.rows(1, 3)[0]

    def see_the_card(self, number):
        program = self.program
        program.key("F6")
        program.wait_for_focus("Enter Card Number")
        program.type(number)
        program.key("F6")
        program.wait_for_focus("Customer Card", "push button")
        program.key("space")
        program.no_screen(QUICK_SEARCH)
        program.screen(VIEWER)
        self.expect_number(int(number))

    def go(self):
        self.start()
        self.open_the_shops()
        [(shop, telephone, city)] = CardFile(self.path).rows(
            f'select Shop, Telephone, City from MainData where "Index@" = {CARD}')
        hit = self.find_the_caller(telephone[-6:])
        expect(hit, [str(CARD), shop, telephone], "the card that the number leads to")
        self.see_the_card(hit[0])
        for field, text in (("Shop", shop), ("City", city), ("Telephone", telephone)):
            self.expect_field(field, text)
        self.stage.picture("card")
        self.quit()
        print("Keys pressed:", self.program.keys)


if __name__ == "__main__":
    sys.exit(run(ByKeys, *sys.argv[1:3]))
