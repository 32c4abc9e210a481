#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that check_manual.py passes a good manual and fails on each kind of bad one."""
import tempfile
import unittest
from pathlib import Path

import check_manual

PAGE = """<html>
<head><title>{title}</title><link rel="stylesheet" type="text/css" href="manual.css"/></head>
<body><h1>{title}</h1>{body}</body>
</html>
"""
PROJECT = """<QtHelpProject version="1.0"><filterSection>
<toc><section title="First" ref="first.html"><section title="Second" ref="second.html"/>{toc}</section></toc>
<keywords><keyword name="apple" id="1" ref="second.html#core"/>{keywords}</keywords>
</filterSection></QtHelpProject>
"""
STRINGS = 'Text Save = u"&Save";\nText Long = u"Do you  wish "\n    u"to go?\\r\\nNow";\n'


class CheckManualTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("manual.css", "")
        self.write("strings.h", STRINGS)
        self.write("pictures/a-light.png", "")
        self.write("pictures/a-dark.png", "")
        self.page("first", "First", '<p><b>Save</b>, <b>Do you wish to go? Now</b> <a href="second.html#core">it</a></p>'
                                    '<img src="pictures/a-light.png" alt="a"/>')
        self.page("second", "Second", '<p><a name="core">Core</a></p>')
        self.project()

    def write(self, name, text):
        (self.root / name).parent.mkdir(exist_ok=True)
        (self.root / name).write_text(text, encoding="utf-8")

    def page(self, name, title, body):
        self.write(name + ".html", PAGE.format(title=title, body=body))

    def project(self, toc="", keywords=""):
        self.write("Velmora.qhp", PROJECT.format(toc=toc, keywords=keywords))

    def found(self):
        return list(check_manual.violations(self.root, self.root / "pictures", self.root / "strings.h"))

    def expect(self, *wrong):
        self.assertEqual(self.found(), list(wrong))

    def test_good_manual_passes(self):
        self.expect()

    def test_link_to_no_page_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><a href="third.html">there</a>')
        self.expect('second.html: the link "third.html" leads nowhere')

    def test_link_to_no_place_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><a href="#nowhere">there</a>')
        self.expect('second.html: the link "#nowhere" leads to no place on its page')

    def test_link_out_of_the_manual_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><a href="https://velmora.example">there</a>')
        self.expect('second.html: the link "https://velmora.example" leads out of the manual')

    def test_missing_dark_picture_fails(self):
        (self.root / "pictures/a-dark.png").unlink()
        self.expect('first.html: the picture "pictures/a-dark.png" is not there')

    def test_picture_without_words_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><img src="pictures/a-light.png"/>')
        self.expect("second.html: the picture pictures/a-light.png has no words in its place")

    def test_missing_style_sheet_fails(self):
        (self.root / "manual.css").unlink()
        self.assertEqual(len(self.found()), 2)

    def test_unknown_caption_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><b>Store</b>')
        self.expect('second.html: "Store" is no text of the program')

    def test_element_left_open_fails(self):
        self.page("second", "Second", '<a name="core">Core</a><p>')
        self.assertIn("second.html: </body> closes nothing", self.found())

    def test_page_outside_the_contents_fails(self):
        self.page("third", "Third", "")
        self.expect('Velmora.qhp: "third.html" is not in the contents')

    def test_other_title_in_the_contents_fails(self):
        self.page("third", "Third", "")
        self.project(toc='<section title="3rd" ref="third.html"/>')
        self.expect('Velmora.qhp: the contents call "third.html" "3rd", which is not its title')

    def test_page_twice_in_the_contents_fails(self):
        self.project(toc='<section title="Second" ref="second.html"/>')
        self.expect('Velmora.qhp: "second.html" stands twice in the contents')

    def test_keyword_twice_fails(self):
        self.project(keywords='<keyword name="Apple" ref="first.html"/>')
        self.expect('Velmora.qhp: the keyword "Apple" stands twice')

    def test_number_twice_fails(self):
        self.project(keywords='<keyword name="pear" id="1" ref="first.html"/>')
        self.expect('Velmora.qhp: the id "1" stands twice')

    def test_keyword_that_leads_nowhere_fails(self):
        self.project(keywords='<keyword name="pear" ref="first.html#core"/>')
        self.expect('Velmora.qhp: the keyword "pear" leads nowhere')


if __name__ == "__main__":
    unittest.main()
