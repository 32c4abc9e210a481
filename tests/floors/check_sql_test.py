#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that check_sql.py finds a statement in a screen, and leaves stores, the engine and comments alone."""
import tempfile
import unittest
from pathlib import Path

import check_sql


class CheckSqlTest(unittest.TestCase):
    def test_only_statements_outside_the_stores_fail(self):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder).resolve()
            for path, text in {
                    "cards/ShowTable.cpp": 'auto text = u"Select * from MainData";\n// OpenRecordset( is the store\'s\n',
                    "shell/Main.cpp": "\nfile.Execute(text);\n",
                    "cardfile/Cards.cpp": 'file.OpenRecordset(u"Select * from MainData");\n',
                    "engine/Database.cpp": "Execute(sql);\n",
                    "resources/strings.h": 'u"Select a card from the list";\n'}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text, encoding="utf-8")
            self.assertEqual(list(check_sql.violations(root)), [
                "cards/ShowTable.cpp:1: a statement outside the stores",
                "shell/Main.cpp:2: a statement outside the stores"])


if __name__ == "__main__":
    unittest.main()
