#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Installs the built program into a folder of its own and checks that all is there, that the desktop understands what
it gets.

usage: check_install.py CMAKE BUILD
"""
import configparser
import subprocess
import sys
import tempfile
from pathlib import Path

APPLICATION = "org.velmora.Velmora"
EXPECTED = ["bin/velmora", "bin/velmora-help", "share/velmora/Velmora.rtf", "share/velmora/Velmora.qch",
            f"share/applications/{APPLICATION}.desktop", f"share/metainfo/{APPLICATION}.metainfo.xml",
            f"share/mime/packages/{APPLICATION}.xml",
            f"share/icons/hicolor/scalable/apps/{APPLICATION}.svg", "share/doc/velmora/LICENSE"]


def faults(prefix):
    missing = [name for name in EXPECTED if not (prefix / name).is_file()]
    yield from (f"{name} is not installed" for name in missing)
    if missing:
        return
    path = prefix / f"share/applications/{APPLICATION}.desktop"
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    entry = parser["Desktop Entry"]
    if not (prefix / "bin" / entry["Exec"].split()[0]).is_file():
        yield f"the entry starts {entry['Exec']}, which is not installed"
    if entry["Icon"] != APPLICATION:
        yield f"the entry's icon is {entry['Icon']}"
    for check in (["desktop-file-validate", path],
                  ["appstreamcli", "validate", "--no-net", prefix / f"share/metainfo/{APPLICATION}.metainfo.xml"]):
        done = subprocess.run(check, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            yield f"{check[0]}: {done.stdout}{done.stderr}"


def main():
    cmake, build = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        prefix = Path(folder)
        subprocess.run([cmake, "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        found = list(faults(prefix))
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
