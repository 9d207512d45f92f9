#!/usr/bin/env python3
"""One release number everywhere, and packages that are named after the library's soname.

    versions_test.py SOURCES
"""

import re
import sys
import unittest
from pathlib import Path

SOURCES = Path(sys.argv.pop(1))


def read(name):
    return (SOURCES / name).read_text()


def declared():
    parts = re.findall(r"^#define ZELM_VERSION_(MAJOR|MINOR|PATCH) (\d+)$", read("include/zelm/version.h"), re.MULTILINE)
    assert [name for name, _ in parts] == ["MAJOR", "MINOR", "PATCH"]
    return ".".join(number for _, number in parts)


class Release(unittest.TestCase):
    """The header is the source; these can't read it."""

    def test_debian_changelog(self):
        self.assertRegex(read("packaging/debian/changelog"), rf"\Azelm \({re.escape(declared())}-0zelm\d+\) ")

    def test_changelog(self):
        self.assertEqual(re.search(r"^## (\S+)$", read("CHANGELOG.md"), re.MULTILINE)[1], declared())

    def test_python(self):
        self.assertIn(f'\nversion = "{declared()}"\n', read("python/pyproject.toml"))
        self.assertIn(f'\n__version__ = "{declared()}"\n', read("python/zelm/__init__.py"))


class Packages(unittest.TestCase):
    def setUp(self):
        self.major = declared().split(".")[0]
        paragraphs = read("packaging/debian/control").split("\n\n")
        self.fields = {re.search(r"^(?:Source|Package): (.*)$", text, re.MULTILINE)[1]: text for text in paragraphs}

    def test_the_64_bit_library_is_named_after_its_soname(self):
        package = f"libzelmx64-{self.major}"
        self.assertIn(package, self.fields)
        self.assertTrue(read(f"packaging/debian/{package}.symbols").startswith(f"libzelmx64.so.{self.major} {package} "))
        self.assertIn(f"usr/lib/*/libzelmx64.so.{self.major}\n", read(f"packaging/debian/{package}.install"))
        self.assertIn(f"usr/lib/*/glibc-hwcaps/*/libzelmx64.so.{self.major}\n", read(f"packaging/debian/{package}.install"))
        self.assertIn(f'SONAME = "libzelmx64.so.{self.major}"', read("python/setup.py"))

    def test_development_files_depend_on_the_same_release(self):
        for library in (f"libzelmx64-{self.major}", "libzelmt7"):
            self.assertIn(f"{library} (= ${{binary:Version}})", self.fields["libzelm-dev"])

    def test_cmake_is_as_new_as_the_project_asks_for(self):
        wanted = re.search(r"cmake_minimum_required\(VERSION (\S+)\)", read("CMakeLists.txt"))[1]
        self.assertIn(f"cmake (>= {wanted})", self.fields["zelm"])

    def test_the_changelog_is_the_maintainers(self):
        maintainer = re.search(r"^Maintainer: (.*)$", self.fields["zelm"], re.MULTILINE)[1]
        self.assertIn(f"\n -- {maintainer}  ", read("packaging/debian/changelog"))


if __name__ == "__main__":
    unittest.main()
