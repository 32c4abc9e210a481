#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every include stays on its floor: a file includes only from its own library or from one below, and no
includes lead in a circle, a header and the source of its name counted as one file.

usage: check_includes.py [ROOT]

Which library a file is in stands in the source lists of the CMakeLists.txt files; a header is in the library of the
source of its name. What each library may include stands in ALLOWED, a table without circles. Violations are printed as
file:line, and the exit code is then 1.
"""
import re
import sys
from pathlib import Path

BASE = {"velmora_base_text", "velmora_base_dates", "velmora_base_system", "velmora_base_settings"}
# The engine's wings from the ground up; each may include those before it.
WINGS = ["velmora_engine_text", "velmora_engine_values", "velmora_engine_sqlite", "velmora_engine_dialect",
         "velmora_engine_file", "velmora_engine_rows", "velmora_engine_repair"]
ENGINE_BASE = {"velmora_base_text", "velmora_base_dates", "velmora_base_system"}
# Of the engine the rest of the program sees its front, how it compares names, its values, its recordsets and the
# hook of long work.
ENGINE = {"velmora_engine", "velmora_engine_text", "velmora_engine_values", "velmora_engine_sqlite",
          "velmora_engine_rows"}
BELOW_FORMS = BASE | ENGINE | {"velmora_look"}
BELOW_CONTROLS = BELOW_FORMS | {"velmora_forms"}
# The cores see no window. The catalogue of the card file is below the other cores.
CARDFILE_CORE = BELOW_FORMS | {"velmora_session", "velmora_cardfile_core"}
CORES = {"velmora_cardfile_core", "velmora_cards_core", "velmora_queries_core", "velmora_search_core",
         "velmora_shell_core"}
SCREENS = {"velmora_cardfile", "velmora_cards", "velmora_queries", "velmora_search"}
BELOW_FRAME = BELOW_CONTROLS | CORES | {"velmora_session", "velmora_controls"}
BELOW_SCREENS = BELOW_FRAME | {"velmora_frame"}
BELOW_SHELL = BELOW_SCREENS | SCREENS

# What each library may include beside itself and resources/. No two libraries name each other.
ALLOWED = {
    "resources": set(),
    "velmora_base_text": set(),
    "velmora_base_dates": set(),
    "velmora_base_system": set(),
    "velmora_base_settings": {"velmora_base_system"},
    **{wing: ENGINE_BASE | set(WINGS[:place]) for place, wing in enumerate(WINGS)},
    "velmora_engine": ENGINE_BASE | set(WINGS),
    "velmora_look": set(),
    "velmora_forms": BELOW_FORMS,
    "velmora_session": BELOW_FORMS,
    "velmora_controls": BELOW_CONTROLS,
    "velmora_cardfile_core": BELOW_FORMS | {"velmora_session"},
    "velmora_cards_core": CARDFILE_CORE,
    "velmora_queries_core": CARDFILE_CORE,
    "velmora_search_core": CARDFILE_CORE,
    "velmora_shell_core": CARDFILE_CORE,
    "velmora_frame": BELOW_FRAME,
    **{screens: BELOW_SCREENS for screens in SCREENS},
    "velmora_shell": BELOW_SHELL,
    "velmora": BELOW_SHELL | {"velmora_shell"},
    # The help is a program of its own: nothing of the engine or the screens is in it.
    "velmora_help_core": set(),
    "velmora_help": {"velmora_help_core", "velmora_look"},
    "velmora_help_viewer": {"velmora_help_core", "velmora_help", "velmora_look"},
}

# Headers without a source of their name, in folders that hold more than one library.
HEADERS = {
    "base/system/Flag.h": "velmora_base_system",
    "cardfile/CardDesign.h": "velmora_cardfile_core",
    "cards/CallsDay.h": "velmora_cards_core",
    "forms/Default.h": "velmora_forms",
    "forms/Element.h": "velmora_forms",
    "forms/GridSource.h": "velmora_forms",
    "shell/Command.h": "velmora_shell_core",
}

FOLDERS = ["app", "base", "cardfile", "cards", "controls", "engine", "forms", "frame", "help", "queries",
           "resources", "search", "shell"]
SQLITE_FOLDER = "engine/"
# The headers that name SQLite's types; their folder alone may include them.
SQLITE_HEADERS = ("engine/sqlite/SqliteHandle.h", "engine/sqlite/SqlFunctionSupport.h")

TARGET = re.compile(r"velmora_(?:library|program)\(\s*(\w+)\s+(?:core|widgets)\s(.*?)\)", re.DOTALL)
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
GENERATED = re.compile(r"\.moc$|(^|/)(moc_|ui_|qrc_)")


def libraries_of_sources(root):
    """The library of each file that a source list names, by path from the root."""
    found = {}
    for lists in (path for folder in FOLDERS for path in sorted((root / folder).rglob("CMakeLists.txt"))):
        text = re.sub(r"#.*", "", lists.read_text(encoding="utf-8"))
        for name, arguments in TARGET.findall(text):
            sources = re.search(r"\bSOURCES\b(.*?)(?=\bLINKS\b|$)", arguments, re.DOTALL)
            for source in sources.group(1).split() if sources else []:
                found[(lists.parent / source).resolve().relative_to(root).as_posix()] = name
    return found


def library_of(path, sources):
    """The library that a file is in; nothing when no list tells."""
    if path.startswith("resources/"):
        return "resources"
    if path in HEADERS:
        return HEADERS[path]
    if path in sources:
        return sources[path]
    if path.endswith(".h"):
        stem = path[:-2] + ".cpp"
        if stem in sources:
            return sources[stem]
        folder = path.rsplit("/", 1)[0]
        beside = {name for source, name in sources.items() if source.rsplit("/", 1)[0] == folder}
        if len(beside) == 1:
            return beside.pop()
    return None


def check_include(path, library, bracket, target, root, sources):
    """What is wrong with one include; nothing when it is right."""
    if target == "sqlite3.h":
        if path in SQLITE_HEADERS or (path.startswith(SQLITE_FOLDER) and path.endswith(".cpp")):
            return None
        return "only engine/*.cpp may include sqlite3.h"
    if bracket == "<" or GENERATED.search(target):
        return None
    if not (root / target).is_file():
        return f'"{target}" is no file from the root of the sources'
    if target.split("/")[0] not in FOLDERS:
        return f'"{target}" is not part of the program'
    if target in SQLITE_HEADERS and not path.startswith(SQLITE_FOLDER):
        return f'"{target}" belongs to engine/ alone'
    other = library_of(target, sources)
    if other is None:
        return f'"{target}" is in no library'
    if other in (library, "resources") or other in ALLOWED[library]:
        return None
    return f'{library} may not include "{target}" of {other}'


def includes_of_files(root):
    """The includes of each file of the program, by path from the root: line, bracket and what is included."""
    found = {}
    for file in (path for folder in FOLDERS for path in sorted((root / folder).rglob("*"))
                 if path.suffix in (".h", ".cpp")):
        lines = file.read_text(encoding="utf-8").splitlines()
        matches = ((number, INCLUDE.match(line)) for number, line in enumerate(lines, 1))
        found[file.relative_to(root).as_posix()] = [(number, match[1], match[2]) for number, match in matches if match]
    return found


def floor_violations(root, files):
    """Each include that leaves its floor, and each file that has none."""
    sources = libraries_of_sources(root)
    for path, includes in files.items():
        library = library_of(path, sources)
        if library is None:
            yield f"{path}:1: is in no library: name it in a source list"
            continue
        if library not in ALLOWED:
            yield f"{path}:1: nothing says what {library} may include"
            continue
        for number, bracket, target in includes:
            wrong = check_include(path, library, bracket, target, root, sources)
            if wrong:
                yield f"{path}:{number}: {wrong}"


def shortest_loop(start, edges):
    """The shortest way from a node back to itself, as a list of nodes; nothing when there is none."""
    came_from = {}
    reached = [start]
    for node in reached:
        for target in sorted(edges.get(node, ())):
            if target == start:
                loop = [node]
                while loop[-1] != start:
                    loop.append(came_from[loop[-1]])
                return loop[::-1]
            if target not in came_from:
                came_from[target] = node
                reached.append(target)
    return None


def shortest_loops(edges):
    """For each node on a loop its shortest one, each told once."""
    told = set()
    for start in sorted(edges):
        loop = shortest_loop(start, edges)
        if loop and frozenset(loop) not in told:
            told.add(frozenset(loop))
            yield loop


def without_suffix(path):
    """A header and the source of its name are one node."""
    return path.rsplit(".", 1)[0]


def loop_violations(files):
    """Each loop between files, told at its first include."""
    edges = {}
    for path, includes in files.items():
        for number, _, target in includes:
            if target in files and without_suffix(target) != without_suffix(path):
                edges.setdefault(without_suffix(path), {})[without_suffix(target)] = f"{path}:{number}"
    for loop in shortest_loops(edges):
        first, *others = (edges[step][target] for step, target in zip(loop, loop[1:] + loop[:1]))
        yield f"{first}: a loop of includes, through {', '.join(others)}"


def violations(root):
    files = includes_of_files(root)
    for loop in shortest_loops(ALLOWED):
        yield "the libraries may include each other in a circle: " + ", ".join(loop)
    yield from floor_violations(root, files)
    yield from loop_violations(files)


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    if not any((root / folder).is_dir() for folder in FOLDERS):
        sys.exit(f"{root} does not hold the sources")
    found = list(violations(root))
    for violation in found:
        print(violation)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
