#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that statements stand in the stores of their tables and nowhere else in the program.

usage: check_sql.py [ROOT]

A file outside STORES may neither open a recordset, nor execute, nor write down a statement. The engine is free.
"""
import re
import sys
from pathlib import Path

from check_includes import FOLDERS

FREE = ("engine", "resources")
STORES = {
    "cardfile/Cards.cpp",
    "cardfile/FieldCatalogue.cpp",
    "cardfile/FieldChanges.cpp",
    "cardfile/MakeCardFile.cpp",
    "cardfile/Options.cpp",
    "cardfile/ValueLists.cpp",
    "cards/Contacts.cpp",
    "cards/Reminders.cpp",
    # The texts of stored queries, with their values inside, and those who run them.
    "queries/QueryText.cpp",
    "queries/ResultQuery.cpp",
    "queries/SavedQueries.cpp",
    "search/SearchRows.cpp",
}

STATEMENT = re.compile(r'\b(?:OpenRecordset|Execute)\(|u"\s*(?:SELECT\s.*\sFROM|INSERT\s+INTO|UPDATE\s.*\sSET|DELETE\s.*FROM)\s',
                       re.IGNORECASE)
COMMENT = re.compile(r"//.*")


def violations(root):
    for file in (path for folder in FOLDERS if folder not in FREE for path in sorted((root / folder).rglob("*"))
                 if path.suffix in (".h", ".cpp")):
        path = file.relative_to(root).as_posix()
        if path in STORES:
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            if STATEMENT.search(COMMENT.sub("", line)):
                yield f"{path}:{number}: a statement outside the stores"


def main():
    found = list(violations(Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()))
    for violation in found:
        print(violation)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
