#!/usr/bin/env python3
"""Bills of materials are what SPDX 2.3 asks for, and true of the files that they list.

    sbom_test.py SOURCES             the bill of a small tree that is made for it
    sbom_test.py SOURCES --tree DIR  the bills in an unpacked package
"""

import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES = Path(sys.argv.pop(1))
TREE = Path(sys.argv.pop(2)) if sys.argv[1:2] == ["--tree"] else None
if TREE:
    sys.argv.remove("--tree")

# Clauses 6 to 11 of SPDX 2.3: what must be there, and what it looks like.
ANYTHING = r"[^\n]+"
IDENTIFIER = r"SPDXRef-[A-Za-z0-9.-]+"
LICENCE = r"NONE|NOASSERTION|(MIT|BSD-2-Clause)( AND (MIT|BSD-2-Clause))*"
DOCUMENT = {
    "spdxVersion": r"SPDX-2\.3",
    "dataLicense": r"CC0-1\.0",
    "SPDXID": r"SPDXRef-DOCUMENT",
    "name": ANYTHING,
    "documentNamespace": r"[a-z]+:[^#]+",
}
CREATION = {"created": r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ"}
CREATOR = r"(Organization|Person|Tool): .+"
PACKAGE = {"name": ANYTHING, "SPDXID": IDENTIFIER, "downloadLocation": ANYTHING, "licenseConcluded": LICENCE}
FILE = {"fileName": r"\./.+", "SPDXID": IDENTIFIER, "licenseConcluded": LICENCE}
RELATION = {"spdxElementId": IDENTIFIER, "relatedSpdxElement": IDENTIFIER, "relationshipType": r"DESCRIBES|CONTAINS"}
LENGTHS = {"SHA1": 40, "SHA256": 64}


def checksum(program, path):
    """By another implementation than the one that wrote it."""
    return subprocess.run([program, path], check=True, capture_output=True, text=True).stdout.split()[0]


def small_tree(root):
    """A library, a link to it, a style sheet of others, and what the package manager reads."""
    for name, text in {
        "usr/lib/libzelm.so.4": "library",
        "usr/share/doc/small/html/_static/basic.css": "style",
        "DEBIAN/control": "Package: small",
    }.items():
        path = root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
    (root / "usr/lib/libzelm.so").symlink_to("libzelm.so.4")
    words = ["--package", "small", "--version", "1.2-3", "--architecture", "amd64", "--root", root, "--date", "1000000000"]
    subprocess.run([sys.executable, "-B", SOURCES / "packaging/sbom.py", *words], check=True)


class Bill(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = TREE
        if not TREE:
            folder = tempfile.TemporaryDirectory()
            cls.addClassCleanup(folder.cleanup)
            cls.root = Path(folder.name)
            small_tree(cls.root)
        (cls.path,) = cls.root.glob("usr/share/doc/*/*.spdx.json")
        cls.bill = json.loads(cls.path.read_text())
        cls.package = cls.bill["packages"][0]

    def has(self, entry, fields):
        for name, pattern in fields.items():
            self.assertRegex(entry.get(name, ""), rf"\A(?:{pattern})\Z", f"{name} of {entry.get('SPDXID', entry)}")

    def test_required_fields(self):
        self.has(self.bill, DOCUMENT)
        self.has(self.bill["creationInfo"], CREATION)
        for creator in self.bill["creationInfo"]["creators"]:
            self.assertRegex(creator, rf"\A{CREATOR}\Z")
        for package in self.bill["packages"]:
            self.has(package, PACKAGE)
            self.assertEqual(package["filesAnalyzed"], "packageVerificationCode" in package)
        for file in self.bill["files"]:
            self.has(file, FILE)
            self.assertEqual({sum["algorithm"]: len(sum["checksumValue"]) for sum in file["checksums"]}, LENGTHS)
        for relation in self.bill["relationships"]:
            self.has(relation, RELATION)

    def test_identifiers_are_unique_and_relations_lead_somewhere(self):
        names = [entry["SPDXID"] for entry in (self.bill, *self.bill["packages"], *self.bill["files"])]
        self.assertEqual(len(names), len(set(names)))
        for relation in self.bill["relationships"]:
            self.assertLessEqual({relation["spdxElementId"], relation["relatedSpdxElement"]}, set(names))
        described = [r["relatedSpdxElement"] for r in self.bill["relationships"] if r["relationshipType"] == "DESCRIBES"]
        self.assertEqual(described, [self.package["SPDXID"]])

    def test_every_file_is_there_once(self):
        found = subprocess.run(
            ["find", ".", "-path", "./DEBIAN", "-prune", "-o", "-type", "f", "-print"],
            cwd=self.root,
            check=True,
            capture_output=True,
            text=True,
        ).stdout.split("\n")[:-1]
        listed = [file["fileName"] for file in self.bill["files"]]
        excluded = self.package["packageVerificationCode"]["packageVerificationCodeExcludedFiles"]
        self.assertEqual(excluded, ["./" + str(self.path.relative_to(self.root))])
        self.assertEqual(sorted(listed + excluded), sorted(found))

    def test_checksums(self):
        for file in self.bill["files"]:
            for entry in file["checksums"]:
                program = entry["algorithm"].lower() + "sum"
                self.assertEqual(entry["checksumValue"], checksum(program, self.root / file["fileName"]), file["fileName"])

    def test_verification_code(self):
        sums = "".join(
            sorted(s["checksumValue"] for f in self.bill["files"] for s in f["checksums"] if s["algorithm"] == "SHA1")
        )
        with tempfile.NamedTemporaryFile("w") as file:
            file.write(sums)
            file.flush()
            code = self.package["packageVerificationCode"]["packageVerificationCodeValue"]
            self.assertEqual(code, checksum("sha1sum", file.name))

    def test_what_others_made_is_said(self):
        of_others = [f for f in self.bill["files"] if re.search(r"/_static/basic\.css$", f["fileName"])]
        for file in of_others:
            self.assertEqual(file["licenseConcluded"], "BSD-2-Clause")
            holders = {r["spdxElementId"] for r in self.bill["relationships"] if r["relatedSpdxElement"] == file["SPDXID"]}
            names = {p["name"] for p in self.bill["packages"] if p["SPDXID"] in holders}
            self.assertEqual(names, {self.package["name"], "sphinx"})
        if not TREE:
            self.assertEqual(len(of_others), 1)


if __name__ == "__main__":
    unittest.main()
