#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that what the documents name is there: every path between backticks, and every routine named behind one.

usage: check_paths.py [ROOT]

A path begins with a folder of the sources. "`shell/Main.cpp`: `Load`, `Activate`" names routines, which the file must
hold. Links between documents are checked too. Violations are printed as file:line, and the exit code is then 1.
"""
import re
import sys
from pathlib import Path

FOLDERS = ["app", "base", "bench", "cardfile", "cards", "controls", "docs", "engine", "forms", "frame", "help",
           "packaging", "queries", "resources", "search", "shell", "tests", "tools"]
DOCUMENTS = ["*.md", "docs/*.md"]

PATH = re.compile(r"`((?:%s)/[\w./-]*\w)`" % "|".join(FOLDERS))
ROUTINES = re.compile(r": ((?:`\w+`(?:, )?)+)")
LINK = re.compile(r"\]\((?!https?:)([^)#]+)")


def missing_in_line(root, folder, line):
    for match in PATH.finditer(line):
        path = root / match[1]
        if not path.exists():
            yield f'"{match[1]}" is not there'
            continue
        routines = ROUTINES.match(line, match.end())
        if routines and path.is_file():
            text = path.read_text(encoding="utf-8")
            for name in re.findall(r"\w+", routines[1]):
                if not re.search(rf"\b{name}\b", text):
                    yield f'"{match[1]}" does not hold "{name}"'
    for match in LINK.finditer(line):
        if not (folder / match[1]).exists():
            yield f'the link "{match[1]}" leads nowhere'


def violations(root):
    for document in sorted(path for pattern in DOCUMENTS for path in root.glob(pattern)):
        for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
            for missing in missing_in_line(root, document.parent, line):
                yield f"{document.relative_to(root)}:{number}: {missing}"


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    if not (root / "docs").is_dir():
        sys.exit(f"{root} holds no documents")
    found = list(violations(root))
    for violation in found:
        print(violation)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
