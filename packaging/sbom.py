#!/usr/bin/env python3
"""Writes a package's bill of materials in SPDX 2.3: its files with their checksums and licences, and whose they are.

    sbom.py --package NAME --version VERSION --architecture ARCHITECTURE --root DIR --date SECONDS

DIR is the package's tree; the file is DIR/usr/share/doc/NAME/NAME_ARCHITECTURE.spdx.json. The architecture is in its name, as
the package of another architecture may be installed beside this one.
"""

import argparse
import hashlib
import json
import re
import sys
import time
import uuid
from pathlib import Path

NAMESPACE = uuid.UUID("6f0d2b8e-3c51-5b0e-9a3e-7d1f0a4c2e95")
OWN = ("zelm", "MIT")
# What the generator of the web site puts beside zelm's own pages: a pattern of names, and whose they are.
OTHERS = [
    (re.compile(r"/html/_static/(styles/furo|scripts/|skeleton\.css|debug\.css)"), ("furo", "MIT")),
    (re.compile(r"/html/_static/site\.css$"), OWN),
    (re.compile(r"/html/_static/"), ("sphinx", "BSD-2-Clause")),
    (re.compile(r"/examples/data/"), ("elevations of NASA and USGS", "NONE")),
]


def digest(path, method):
    return hashlib.new(method, path.read_bytes()).hexdigest()


def files_of(root, bill):
    # The folder DEBIAN holds what the package manager reads and no installed file.
    return [
        path
        for path in sorted(root.rglob("*"))
        if path.is_file() and not path.is_symlink() and path.relative_to(root).parts[0] != "DEBIAN" and path != bill
    ]


def owner_of(name):
    return next((owner for pattern, owner in OTHERS if pattern.search(name)), OWN)


def file_entry(number, path, root):
    name = "./" + str(path.relative_to(root))
    return {
        "SPDXID": f"SPDXRef-File-{number}",
        "fileName": name,
        "checksums": [{"algorithm": method.upper(), "checksumValue": digest(path, method)} for method in ("sha1", "sha256")],
        "licenseConcluded": owner_of(name)[1],
        "licenseInfoInFiles": ["NOASSERTION"],
        "copyrightText": "NOASSERTION",
    }


def others_entry(number, name, licence):
    """Another's work, of which the package holds some files."""
    return {
        "SPDXID": f"SPDXRef-Other-{number}",
        "name": name,
        "downloadLocation": "NOASSERTION",
        "filesAnalyzed": False,
        "licenseConcluded": licence,
        "licenseDeclared": "NOASSERTION",
        "copyrightText": "NOASSERTION",
    }


def package_entry(options, bill, files):
    sums = sorted(file["checksums"][0]["checksumValue"] for file in files)
    licences = sorted({file["licenseConcluded"] for file in files} | {OWN[1]} - {"NONE"})
    return {
        "SPDXID": "SPDXRef-Package",
        "name": options.package,
        "versionInfo": options.version,
        "supplier": "Organization: zelm maintainers",
        "downloadLocation": "NOASSERTION",
        "filesAnalyzed": True,
        "packageVerificationCode": {
            "packageVerificationCodeValue": hashlib.sha1("".join(sums).encode()).hexdigest(),
            "packageVerificationCodeExcludedFiles": ["./" + str(bill.relative_to(options.root))],
        },
        "licenseConcluded": " AND ".join(licence for licence in licences if licence != "NONE"),
        "licenseInfoFromFiles": ["NOASSERTION"],
        "licenseDeclared": "MIT",
        "copyrightText": "Copyright (c) zelm maintainers",
    }


def document(options, bill):
    files = [file_entry(number, path, options.root) for number, path in enumerate(files_of(options.root, bill))]
    package = package_entry(options, bill, files)
    owners = sorted({owner_of(file["fileName"]) for file in files} - {OWN})
    others = {name: others_entry(number, name, licence) for number, (name, licence) in enumerate(owners)}
    code = package["packageVerificationCode"]["packageVerificationCodeValue"]
    described = f"{options.package}-{options.version}-{options.architecture}-{code}"

    def relation(element, kind, related):
        return {"spdxElementId": element, "relationshipType": kind, "relatedSpdxElement": related}

    relations = [relation("SPDXRef-DOCUMENT", "DESCRIBES", package["SPDXID"])]
    for file in files:
        relations.append(relation(package["SPDXID"], "CONTAINS", file["SPDXID"]))
        if owner_of(file["fileName"]) != OWN:
            relations.append(relation(others[owner_of(file["fileName"])[0]]["SPDXID"], "CONTAINS", file["SPDXID"]))
    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{options.package}_{options.version}_{options.architecture}",
        "documentNamespace": f"urn:uuid:{uuid.uuid5(NAMESPACE, described)}",
        "creationInfo": {
            "created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(options.date)),
            "creators": ["Organization: zelm maintainers", "Tool: packaging/sbom.py"],
        },
        "packages": [package, *others.values()],
        "files": files,
        "relationships": relations,
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--package", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--architecture", required=True)
    parser.add_argument("--root", required=True, type=Path)
    parser.add_argument("--date", required=True, type=int, help="seconds since 1970")
    options = parser.parse_args()
    folder = options.root / "usr/share/doc" / options.package
    bill = folder / f"{options.package}_{options.architecture}.spdx.json"
    folder.mkdir(parents=True, exist_ok=True)
    bill.write_text(json.dumps(document(options, bill), indent=1) + "\n")
    bill.chmod(0o644)
    return 0


if __name__ == "__main__":
    sys.exit(main())
