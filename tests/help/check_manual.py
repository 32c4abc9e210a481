#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the manual: its pages, its project file and the pictures that go with them.

usage: check_manual.py MANUAL PICTURES STRINGS

MANUAL is the folder of the pages and of Velmora.qhp, PICTURES that of the screens' pictures, STRINGS the table of the
texts that the program shows. Every link, picture and style sheet must be there, the dark picture of every light one too;
every page must be in the contents once, under its title; a keyword stands once; and what a page shows as a caption (in
<b>) must be a text of the program. Violations are printed as file: what, and the exit code is then 1.
"""
import re
import sys
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser
from pathlib import Path

LITERAL = re.compile(r'u"((?:[^"\\]|\\.)*)"')
ESCAPES = {"\\r": " ", "\\n": " ", '\\"': '"', "\\\\": "\\"}
VOID = {"meta", "link", "img", "br", "hr"}


def plain(text):
    return " ".join(text.split())


def captions(strings):
    """The texts of the program as a reader sees them: without the marks of access keys, with single spaces."""
    text = re.sub(r"(?m)^\s*//.*", "", strings.read_text(encoding="utf-8"))
    # Literals one behind the other are one text.
    text = re.sub(r'"\s+u"', "", text)
    found = set()
    for literal in LITERAL.findall(text):
        for escape, meaning in ESCAPES.items():
            literal = literal.replace(escape, meaning)
        found.add(plain(literal.replace("&", "")))
    return found


class Page(HTMLParser):
    """What one page holds; what is wrong with its elements stands in `wrong`."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.title, self.headings, self.bold = "", [], []
        self.links, self.pictures, self.sheets, self.anchors = [], [], [], set()
        self.wrong = []
        self.open = []
        self.feed(text)
        self.close()
        self.wrong += [f"<{name}> is not closed" for name in self.open]

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if tag not in VOID:
            self.open.append(tag)
        if tag == "a":
            if "href" in values:
                self.links.append(values["href"])
            if "name" in values:
                self.anchors.add(values["name"])
        elif tag == "img":
            self.pictures.append(values.get("src", ""))
            if not values.get("alt"):
                self.wrong.append(f'the picture {values.get("src")} has no words in its place')
        elif tag == "link":
            self.sheets.append(values.get("href", ""))
        elif tag == "h1":
            self.headings.append("")
        elif tag == "b":
            self.bold.append("")

    def handle_startendtag(self, tag, attributes):
        self.handle_starttag(tag, attributes)
        if tag not in VOID:
            self.open.pop()

    def handle_endtag(self, tag):
        if not self.open or self.open[-1] != tag:
            self.wrong.append(f"</{tag}> closes nothing")
        else:
            self.open.pop()

    def handle_data(self, data):
        if "title" in self.open:
            self.title += data
        if "h1" in self.open:
            self.headings[-1] += data
        if "b" in self.open:
            self.bold[-1] += data


def page_violations(name, page, pages, manual, pictures, texts):
    yield from page.wrong
    if page.headings != [page.title]:
        yield f'the title "{page.title}" is not its one heading'
    for link in page.links:
        target, _, anchor = link.partition("#")
        if re.match(r"\w+:", link):
            yield f'the link "{link}" leads out of the manual'
        elif (target or name) not in pages:
            yield f'the link "{link}" leads nowhere'
        elif anchor and anchor not in pages[target or name].anchors:
            yield f'the link "{link}" leads to no place on its page'
    for picture in page.pictures:
        for wanted in (picture, picture.replace("-light.", "-dark.")):
            if not wanted.startswith("pictures/") or not (pictures / wanted[len("pictures/"):]).is_file():
                yield f'the picture "{wanted}" is not there'
    for sheet in page.sheets:
        if not (manual / sheet).is_file():
            yield f'the style sheet "{sheet}" is not there'
    for caption in page.bold:
        if plain(caption) not in texts:
            yield f'"{plain(caption)}" is no text of the program'


def project_violations(project, pages):
    listed = {}
    for section in project.iter("section"):
        name, title = section.get("ref"), section.get("title")
        if name not in pages:
            yield f'the contents name "{name}", which is no page'
        elif pages[name].title != title:
            yield f'the contents call "{name}" "{title}", which is not its title'
        if name in listed:
            yield f'"{name}" stands twice in the contents'
        listed[name] = title
    yield from (f'"{name}" is not in the contents' for name in pages if name not in listed)
    names, numbers = set(), set()
    for keyword in project.iter("keyword"):
        name, number = keyword.get("name"), keyword.get("id")
        target, _, anchor = keyword.get("ref").partition("#")
        if target not in pages or (anchor and anchor not in pages[target].anchors):
            yield f'the keyword "{name}" leads nowhere'
        if name.lower() in names:
            yield f'the keyword "{name}" stands twice'
        if number is not None and number in numbers:
            yield f'the id "{number}" stands twice'
        names.add(name.lower())
        numbers.add(number)


def violations(manual, pictures, strings):
    texts = captions(strings)
    pages = {file.name: Page(file.read_text(encoding="utf-8")) for file in sorted(manual.glob("*.html"))}
    if not pages:
        yield f"{manual}: there are no pages"
    for name, page in pages.items():
        for wrong in page_violations(name, page, pages, manual, pictures, texts):
            yield f"{name}: {wrong}"
    for wrong in project_violations(ElementTree.parse(manual / "Velmora.qhp"), pages):
        yield f"Velmora.qhp: {wrong}"


def main():
    found = list(violations(*(Path(argument) for argument in sys.argv[1:4])))
    for violation in found:
        print(violation)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
