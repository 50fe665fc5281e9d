"""Makes a guide: make_guide.py TEXT.md GUIDE.pdf

The text is Markdown. Its first lines name title and language; a picture stands alone in a paragraph, with its
alternative text; a box begins with `!!! teachers "For teachers"`; `[TOC]` is the table of contents. guide.css is its
look. The same text always gives the same file."""

import pathlib
import sys

sys.dont_write_bytecode = True
import markdown  # noqa: E402
import weasyprint  # noqa: E402

import palettes  # noqa: E402,F401
import tags  # noqa: E402

EXTENSIONS = ["meta", "toc", "tables", "admonition", "attr_list", "sane_lists", "md_in_html"]
SETTINGS = {"toc": {"toc_depth": "2-2"}}
PAGE = """<!DOCTYPE html>
<html lang="{lang}"><head><meta charset="utf-8"><title>{title}</title><meta name="author" content="Tallymoor">
<meta name="description" content="{subject}"><link rel="stylesheet" href="guide.css"></head><body class="{look}">
{body}</body></html>"""


def page(text):
    reader = markdown.Markdown(extensions=EXTENSIONS, extension_configs=SETTINGS, output_format="html5")
    body = reader.convert(text).replace("<p><img", '<p class="picture"><img')
    about = {key: " ".join(lines) for key, lines in reader.Meta.items()}
    return PAGE.format(body=body, **about)


def make(text, guide):
    html = weasyprint.HTML(string=page(text.read_text(encoding="utf-8")), base_url=str(text.resolve()),
                           url_fetcher=fetch)
    tags.learn(html.etree_element)
    guide.parent.mkdir(parents=True, exist_ok=True)
    html.write_pdf(guide, variant="guide")


def fetch(address):
    """Only files of ours; a missing one ends the build instead of leaving a gap."""
    if not address.startswith("file:"):
        sys.exit(f"{address} is not a file of the guides.")
    try:
        return weasyprint.default_url_fetcher(address)
    except OSError as problem:
        sys.exit(f"{address}: {problem}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    make(*map(pathlib.Path, sys.argv[1:]))
