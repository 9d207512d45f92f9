"""The settings of Sphinx for the site, and the anchors of the reference."""

import re

from docutils import nodes

project = "zelm"
copyright = "the authors of zelm"
html_title = "zelm"
html_short_title = "zelm"
html_show_sphinx = False

extensions = ["myst_parser"]
myst_heading_anchors = 4
exclude_patterns = []
smartquotes = False
highlight_language = "c"

html_theme = "furo"
html_sidebars = {
    "**": [
        "sidebar/brand.html",
        "sidebar/search.html",
        "sidebar/scroll-start.html",
        "finder-link.html",
        "sidebar/navigation.html",
        "sidebar/scroll-end.html",
    ]
}
templates_path = ["templates"]
html_static_path = ["static"]
html_css_files = ["site.css"]
html_js_files = [("scripts/gumshoe-patched.js", {"priority": 100})]
html_copy_source = False
html_show_copyright = False
# Debian's build of the theme has these colours only for readers who press its button, not for those whose system is dark.
DARK = {
    "problematic": "#ee5151",
    "foreground-primary": "#ffffffcc",
    "foreground-secondary": "#9ca0a5",
    "foreground-muted": "#81868d",
    "foreground-border": "#666666",
    "background-primary": "#131416",
    "background-secondary": "#1a1c1e",
    "background-hover": "#1e2124ff",
    "background-hover--transparent": "#1e212400",
    "background-border": "#303335",
    "background-item": "#444",
    "brand-primary": "#7db1ff",
    "brand-content": "#7db1ff",
    "highlighted-background": "#083563",
    "highlight-on-target": "#333300",
    "admonition-background": "#18181a",
    "card-border": "#1a1c1e",
    "card-background": "#18181a",
    "card-marginals-background": "#1e2124ff",
    "table-header-background": "#1a1c1e",
    "table-border": "#303335",
}
html_theme_options = {"dark_css_variables": {f"color-{name}": value for name, value in DARK.items()}}
pygments_style = "friendly"
pygments_dark_style = "native"

EXPORT = re.compile(r'id="((?:zelm|a6_)\w+)"')


def note_exports(app, doctree):
    """Every anchor of the reference is an object that the search box knows, so that a name leads to its place."""
    domain = app.env.get_domain("std")
    for node in doctree.findall(nodes.raw):
        for name in EXPORT.findall(node.astext()):
            domain.note_object("function", name, name, location=node)


def setup(app):
    app.add_object_type("function", "function", objname="function")
    app.connect("doctree-read", note_exports)
