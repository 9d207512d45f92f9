#!/usr/bin/env python3
"""The site as its readers get it: pages of a bearable size, links that lead somewhere, a place for every name, a search that finds.

    site_test.py [unittest options]    needs build/site/html, as site/build makes it
"""

import re
import sys
import time
import unittest
from collections import Counter
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

from selenium.webdriver.common.by import By

from browser import Browser

ROOT = Path(__file__).resolve().parents[2]
SITE = ROOT / "build/site/html"
LARGEST_PAGE = 1_000_000

# What people type into the search, and a page that must be among what it finds.
SEARCHES = {
    "normalize": "reference/L2Norm",
    "solve": "reference/LUBackSubst",
    "point cloud": "reference/Gaxpy",
    "dgetrf": "reference/LUDecomp",
    "least squares": "reference/QRBackSubst",
    "inverse": "reference/Invert",
    "pivotIndex": "reference/LUDecomp",
    "zelmMul_mama_64f_4x4_LS2": "reference/Mul.html#zelmMul_mama_64f_4x4_LS2",
    "a6_Det_ma_32f_5x5_L": "reference/Det.html#a6_Det_ma_32f_5x5_L",
}


class Page(HTMLParser):
    """The anchors and the links of a page."""

    def __init__(self, path):
        super().__init__()
        self.anchors, self.links = [], []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (tag == "a" and name == "name"):
                self.anchors.append(value)
            elif name == ("src" if tag in ("img", "script") else "href"):
                self.links.append(value)


class Site(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = {path.resolve(): Page(path) for path in SITE.rglob("*.html")}
        headers = "".join(path.read_text() for path in (ROOT / "include/zelm").glob("*.h"))
        cls.names = set(re.findall(r"^ZELM_API [^;]*?\b((?:zelm[A-Z]|a6_)\w+)\(", headers, re.M))

    def test_no_page_is_too_large(self):
        large = {path.name: path.stat().st_size for path in self.pages if path.stat().st_size > LARGEST_PAGE}
        self.assertEqual(large, {})

    def test_every_exported_name_has_one_anchor(self):
        anchors = Counter()
        for path, page in self.pages.items():
            if path.parent.name == "reference":
                anchors.update(anchor for anchor in page.anchors if re.match("zelm[A-Z]\\w+$|a6_", anchor))
        self.assertEqual(len(self.names), 5599)
        self.assertEqual(set(anchors), self.names)
        self.assertEqual(set(anchors.values()), {1})

    def test_every_link_leads_somewhere(self):
        dead = []
        for path, page in self.pages.items():
            for link in page.links:
                parts = urlsplit(link)
                if parts.scheme or link.startswith("data:"):
                    continue
                target = (path.parent / unquote(parts.path)).resolve() if parts.path else path
                anchors = self.pages[target].anchors if target in self.pages else [parts.fragment]
                if not target.exists() or (parts.fragment and not self.has_anchor(target, parts.fragment, anchors)):
                    dead.append(f"{path.relative_to(SITE.resolve())}: {link}")
        self.assertEqual(dead[:10], [])

    def has_anchor(self, target, fragment, anchors):
        """The finder makes its places itself: any exported name is one."""
        return unquote(fragment) in anchors or (target.name == "finder.html" and fragment in self.names)

    def test_every_document_is_a_page(self):
        for document in (ROOT / "docs").rglob("*.md"):
            page = SITE / document.relative_to(ROOT).with_suffix(".html")
            self.assertIn(page.resolve(), self.pages)

    def test_the_search_finds(self):
        with Browser() as driver:
            for words, wanted in SEARCHES.items():
                driver.get(f"{(SITE / 'search.html').as_uri()}?q={words.replace(' ', '+')}")
                self.assertIn(wanted, self.found(driver, wanted), words)

    def found(self, driver, wanted):
        """The results as one text of links, once `wanted` is there or nothing more comes."""
        links = ""
        for _ in range(50):
            links = " ".join(a.get_attribute("href") for a in driver.find_elements(By.CSS_SELECTOR, "#search-results li a"))
            if wanted in links:
                break
            time.sleep(0.1)
        return links


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
