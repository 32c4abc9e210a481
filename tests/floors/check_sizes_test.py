#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that check_sizes.py fails on the first file that is too long, and on no table."""
import tempfile
import unittest
from pathlib import Path

import check_sizes


class CheckSizesTest(unittest.TestCase):
    def test_only_a_source_file_of_401_lines_fails(self):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder).resolve()
            for path, lines in {"cards/Full.cpp": 400, "cards/Long.h": 401, "cards/notes.txt": 999,
                                "engine/text/Long.cpp": 450, "resources/strings.h": 999,
                                "tests/cards/LongTest.cpp": 402, "tests/journey/long.py": 403}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text("\n" * lines, encoding="utf-8")
            self.assertEqual(list(check_sizes.violations(root)), [
                "cards/Long.h:401: 401 lines, 400 at most", "engine/text/Long.cpp:401: 450 lines, 400 at most",
                "tests/cards/LongTest.cpp:401: 402 lines, 400 at most",
                "tests/journey/long.py:401: 403 lines, 400 at most"])


if __name__ == "__main__":
    unittest.main()
