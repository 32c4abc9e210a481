#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that no source file of the program and of its tests is longer than a reader will bear. The tables in resources/
may be.

usage: check_sizes.py [ROOT]
"""
import sys
from pathlib import Path

from check_includes import FOLDERS

MOST_LINES = 400
TABLES = "resources"
HELD = [folder for folder in FOLDERS if folder != TABLES] + ["tests"]


def violations(root):
    for file in (path for folder in HELD for path in sorted((root / folder).rglob("*"))
                 if path.suffix in (".h", ".cpp", ".py")):
        lines = len(file.read_text(encoding="utf-8").splitlines())
        if lines > MOST_LINES:
            yield f"{file.relative_to(root).as_posix()}:{MOST_LINES + 1}: {lines} lines, {MOST_LINES} at most"


def main():
    found = list(violations(Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()))
    for violation in found:
        print(violation)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
