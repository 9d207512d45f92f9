#!/usr/bin/env python3
"""Writes a package's bill of materials in SPDX 2.3: its files with their checksums, its licence, and that it holds nothing
of others.

    sbom.py --package NAME --version VERSION --root DIR --date SECONDS

DIR is the package's tree; the file is DIR/usr/share/doc/NAME/NAME.spdx.json.
"""

import argparse
import hashlib
import json
import sys
import time
import uuid
from pathlib import Path

NAMESPACE = uuid.UUID("6f0d2b8e-3c51-5b0e-9a3e-7d1f0a4c2e95")


def digest(path, method):
    return hashlib.new(method, path.read_bytes()).hexdigest()


def files_of(root):
    # The folder DEBIAN holds what the package manager reads and no installed file.
    return [
        p
        for p in sorted(root.rglob("*"))
        if p.is_file()
        and not p.is_symlink()
        and p.relative_to(root).parts[0] != "DEBIAN"
        and p.suffixes[-2:] != [".spdx", ".json"]
    ]


def document(options):
    files = []
    for number, path in enumerate(files_of(options.root)):
        files.append(
            {
                "SPDXID": f"SPDXRef-File-{number}",
                "fileName": "./" + str(path.relative_to(options.root)),
                "checksums": [
                    {"algorithm": method.upper(), "checksumValue": digest(path, method)} for method in ("sha1", "sha256")
                ],
                "licenseConcluded": "MIT",
                "licenseInfoInFiles": ["NOASSERTION"],
                "copyrightText": "NOASSERTION",
            }
        )
    sums = sorted(file["checksums"][0]["checksumValue"] for file in files)
    verification = hashlib.sha1("".join(sums).encode()).hexdigest()
    described = f"{options.package}-{options.version}-{verification}"
    return {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{options.package}-{options.version}",
        "documentNamespace": f"urn:uuid:{uuid.uuid5(NAMESPACE, described)}",
        "creationInfo": {
            "created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(options.date)),
            "creators": ["Organization: zelm maintainers", "Tool: packaging/sbom.py"],
        },
        "packages": [
            {
                "SPDXID": "SPDXRef-Package",
                "name": options.package,
                "versionInfo": options.version,
                "supplier": "Organization: zelm maintainers",
                "downloadLocation": "NOASSERTION",
                "filesAnalyzed": True,
                "packageVerificationCode": {"packageVerificationCodeValue": verification},
                "licenseConcluded": "MIT",
                "licenseInfoFromFiles": ["NOASSERTION"],
                "licenseDeclared": "MIT",
                "copyrightText": "Copyright (c) zelm maintainers",
                "comment": "All code is zelm's own; nothing of others is compiled or linked in, and the libraries need no other.",
            }
        ],
        "files": files,
        "relationships": [
            {"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES", "relatedSpdxElement": "SPDXRef-Package"},
            *(
                {"spdxElementId": "SPDXRef-Package", "relationshipType": "CONTAINS", "relatedSpdxElement": file["SPDXID"]}
                for file in files
            ),
        ],
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--package", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--root", required=True, type=Path)
    parser.add_argument("--date", required=True, type=int, help="seconds since 1970")
    options = parser.parse_args()
    target = options.root / "usr" / "share" / "doc" / options.package / f"{options.package}.spdx.json"
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(json.dumps(document(options), indent=1) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
