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
html_static_path = ["static"]
html_css_files = ["site.css"]
html_copy_source = False
html_show_copyright = False
html_theme_options = {"sidebar_hide_name": False}
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
