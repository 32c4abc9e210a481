#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that check_includes.py passes a good tree of sources and fails on each kind of bad one."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import check_includes

SCRIPT = Path(check_includes.__file__)

# Two libraries of one folder, one of another above them, and a header that belongs to all.
GOOD_TREE = {
    "resources/strings.h": "",
    "engine/CMakeLists.txt": "velmora_library(velmora_engine core SOURCES Database.cpp LINKS SQLite::SQLite3)",
    "engine/Database.h": "#include <QString>\n",
    "engine/Database.cpp": '#include "engine/Database.h"\n#include <sqlite3.h>\n',
    "cards/CMakeLists.txt": "velmora_library(velmora_cards_core core SOURCES CardPlan.cpp LINKS velmora_engine)\n"
                            "velmora_library(velmora_cards widgets SOURCES CardForm.cpp CardForm.h # the editor\n"
                            "  LayoutCard.cpp ShowTable.cpp LINKS velmora_cards_core)",
    "cards/CardPlan.h": "",
    "cards/CardPlan.cpp": '#include "cards/CardPlan.h"\n#include "engine/Database.h"\n',
    "cards/CardForm.h": "#include <QWidget>\n",
    "cards/CardForm.cpp": '#include "cards/CardForm.h"\n#include "cards/LayoutCard.h"\n#include "CardForm.moc"\n',
    "cards/LayoutCard.h": '#include "cards/CardPlan.h"\n',
    "cards/LayoutCard.cpp": '#include "cards/LayoutCard.h"\n#include "resources/strings.h"\n',
}


class CheckIncludesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.write(GOOD_TREE)

    def write(self, files):
        for path, text in files.items():
            (self.root / path).parent.mkdir(parents=True, exist_ok=True)
            (self.root / path).write_text(text, encoding="utf-8")

    def found(self):
        """What is wrong with the tree as it now stands."""
        return list(check_includes.violations(self.root))

    def test_good_tree_passes(self):
        self.assertEqual(self.found(), [])

    def test_include_of_a_higher_library_fails(self):
        self.write({"engine/Database.cpp": '\n#include "cards/CardPlan.h"\n'})
        self.assertEqual(self.found(), [
            'engine/Database.cpp:2: velmora_engine may not include "cards/CardPlan.h" of velmora_cards_core',
            "cards/CardPlan.cpp:2: a loop of includes, through engine/Database.cpp:2"])

    def test_core_that_includes_its_screens_fails(self):
        self.write({"cards/CardPlan.h": '#include "cards/CardForm.h"\n'})
        self.assertEqual(self.found()[0],
                         'cards/CardPlan.h:1: velmora_cards_core may not include "cards/CardForm.h" of velmora_cards')

    def test_loop_inside_a_library_fails_though_no_header_closes_it(self):
        self.write({"cards/LayoutCard.cpp": '#include "cards/LayoutCard.h"\n#include "cards/CardForm.h"\n'})
        self.assertEqual(self.found(),
                         ["cards/CardForm.cpp:2: a loop of includes, through cards/LayoutCard.cpp:2"])

    def test_longer_loop_is_told_once_with_all_its_includes(self):
        self.write({"cards/LayoutCard.cpp": '#include "cards/ShowTable.h"\n',
                    "cards/ShowTable.h": '\n\n#include "cards/CardForm.h"\n'})
        self.assertEqual(self.found(), [
            "cards/CardForm.cpp:2: a loop of includes, through cards/LayoutCard.cpp:1, cards/ShowTable.h:3"])

    def test_two_loops_through_one_file_are_both_told(self):
        self.write({"cards/LayoutCard.cpp": '#include "cards/CardForm.h"\n#include "cards/ShowTable.h"\n',
                    "cards/ShowTable.h": '#include "cards/LayoutCard.h"\n'})
        self.assertEqual(self.found(), [
            "cards/CardForm.cpp:2: a loop of includes, through cards/LayoutCard.cpp:1",
            "cards/ShowTable.h:1: a loop of includes, through cards/LayoutCard.cpp:2"])

    def test_header_and_its_source_make_no_loop(self):
        self.write({"cards/CardForm.h": '#include "cards/CardForm.h"\n'})
        self.assertEqual(self.found(), [])

    def test_sqlite_outside_the_engine_fails(self):
        self.write({"cards/CardPlan.cpp": "#include <sqlite3.h>\n"})
        self.assertEqual(self.found(), ["cards/CardPlan.cpp:1: only engine/*.cpp may include sqlite3.h"])

    def test_sqlite_in_a_header_of_the_engine_fails(self):
        self.write({"engine/Database.h": "#include <sqlite3.h>\n"})
        self.assertEqual(self.found(), ["engine/Database.h:1: only engine/*.cpp may include sqlite3.h"])

    def test_unknown_library_fails(self):
        self.write({"engine/CMakeLists.txt": "velmora_library(velmora_motor core SOURCES Database.cpp LINKS none)"})
        self.assertIn("engine/Database.cpp:1: nothing says what velmora_motor may include", self.found())

    def test_source_in_no_list_fails(self):
        self.write({"cards/Forgotten.cpp": ""})
        self.assertEqual(self.found(), ["cards/Forgotten.cpp:1: is in no library: name it in a source list"])

    def test_file_outside_the_program_fails(self):
        self.write({"tests/support/CardFiles.h": "", "cards/CardPlan.h": '#include "tests/support/CardFiles.h"\n'})
        self.assertEqual(self.found(), ['cards/CardPlan.h:1: "tests/support/CardFiles.h" is not part of the program'])

    def test_include_not_from_the_root_fails(self):
        self.write({"cards/LayoutCard.h": '#include "CardPlan.h"\n'})
        self.assertEqual(self.found(), ['cards/LayoutCard.h:1: "CardPlan.h" is no file from the root of the sources'])

    def test_table_with_a_circle_fails(self):
        with mock.patch.dict(check_includes.ALLOWED, {"velmora_engine": {"velmora_cards_core"}}):
            self.assertIn("the libraries may include each other in a circle: "
                          "velmora_cards_core, velmora_engine", self.found())

    def test_exit_code_tells(self):
        def run():
            return subprocess.run([sys.executable, SCRIPT, self.root], capture_output=True, text=True, check=False)

        good = run()
        self.assertEqual((good.returncode, good.stdout), (0, ""))
        self.write({"cards/Forgotten.cpp": ""})
        bad = run()
        self.assertEqual((bad.returncode, bad.stdout.count("\n")), (1, 1))


if __name__ == "__main__":
    unittest.main()
