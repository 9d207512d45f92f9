#!/usr/bin/env python3
"""Gathers the pages of the site in one folder.

    stage.py DIR    docs/ as it lies, what its pages link to, the reference and the first page, into DIR

The pages keep the places that they have in the source tree, so that their links hold in both. A new page under docs/ is
found here without being named; ORDER only says what stands first.
"""

import re
import shutil
import sys
from pathlib import Path

import reference

HERE = Path(__file__).parent
ROOT = HERE.parent

# The parts of the table of contents, each with its pages: names under docs/ that exist, in this order.
ORDER = {
    "Start": ("first-steps", "before-you-choose", "from-what-you-know", "cpp", "layouts"),
    "Recipes": ("recipes", "recipes/index", "recipes/README", "recipes/*"),
    "Operations": ("elementwise", "vector", "products", "solvers", "inverse", "movement"),
    "More": ("*", "**/*"),
}
LONGEST_PAGE = 140_000  # of Markdown: the site's pages are six times as long and more
LINK = re.compile(r"\]\(([^)#\s]+)[^)]*\)")


def contents():
    """The parts with their pages, each page once."""
    docs, seen, parts = ROOT / "docs", set(), {}
    for part, patterns in ORDER.items():
        found = []
        for pattern in patterns:
            found += [page for page in sorted(docs.glob(f"{pattern}.md")) if page not in found and page not in seen]
        seen.update(found)
        parts[part] = found
    parts["More"] += [ROOT / name for name in ("examples/terrain/README.md", "CONTRIBUTING.md", "CHANGELOG.md")]
    return parts


def copy_with_links(page, target, done):
    """A page, the pages and files that it links to, and theirs. `done` gathers them."""
    if page in done:
        return
    done.add(page)
    place = target / page.relative_to(ROOT)
    place.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(page, place)
    if page.suffix == ".md":
        copy_linked(page.read_text(), page.parent, target, done)


def copy_linked(text, folder, target, done):
    for link in LINK.findall(text):
        linked = (folder / link).resolve()
        if "://" not in link and linked.is_file() and linked.is_relative_to(ROOT):
            copy_with_links(linked, target, done)


def cut_long_page(page, target):
    """A staged page that is too long for one page of the site becomes one page per section."""
    place = target / page.relative_to(ROOT)
    head, *sections = re.split(r"^## ", place.read_text(), flags=re.M)
    if place.stat().st_size < LONGEST_PAGE:
        return
    names = []
    for section in sections:
        title = section.partition("\n")[0]
        names.append(f"{page.stem}-" + "-".join(re.findall(r"\w+", title.lower())[:3]))
        (place.parent / f"{names[-1]}.md").write_text(
            f"# {title}\n" + re.sub("^##", "#", section.partition("\n")[2], flags=re.M)
        )
    place.write_text(head + "\n```{toctree}\n" + "".join(f"{name}\n" for name in names) + "```\n")


def toctree(caption, entries):
    return f"```{{toctree}}\n:caption: {caption}\n:hidden:\n\n" + "".join(f"{entry}\n" for entry in entries) + "```\n\n"


def write_index(target, parts):
    """The first page: its text, and the table of contents behind it."""
    out = [(HERE / "index.md").read_text(), "\n"]
    for part, pages in parts.items():
        if pages:
            out.append(toctree(part, [page.relative_to(ROOT).with_suffix("").as_posix() for page in pages]))
        if part == "Operations":
            out.append(toctree("Reference", ["reference/index"]))
    (target / "index.md").write_text("".join(out))
    (target / "reference").mkdir()
    for name, text in reference.pages():
        (target / "reference" / f"{name}.md").write_text(text)


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    target = Path(arguments[0]).resolve()
    shutil.rmtree(target, ignore_errors=True)
    parts, done = contents(), set()
    copy_linked((HERE / "index.md").read_text(), ROOT, target, done)
    for page in [page for pages in parts.values() for page in pages]:
        copy_with_links(page, target, done)
    for page in list(done):
        if page.suffix == ".md":
            cut_long_page(page, target)
    listed = {page for pages in parts.values() for page in pages}
    parts["More"] += sorted(page for page in done if page.suffix == ".md" and page not in listed)
    write_index(target, parts)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
