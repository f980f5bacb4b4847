#!/usr/bin/env python3
"""Writes what tools have measured into the pages, and says where somebody has changed it by hand.

    figures.py write PAGE NAME < TEXT     the block NAME of the page becomes TEXT
    figures.py check PAGE...              ends with 1 when a block is not as it was written

A block stands between "<!-- figures NAME CHECKSUM -->" and "<!-- end of figures -->".
"""
import hashlib
import pathlib
import re
import sys

BLOCK = re.compile(r"<!-- figures (?P<name>\S+)(?: (?P<checksum>\S+))? -->\n(?P<text>.*?)<!-- end of figures -->\n", re.DOTALL)


def checksum(text):
    return hashlib.sha256(text.encode("utf-8")).hexdigest()[:16]


def rendered(name, text):
    text = text.rstrip("\n") + "\n"
    return f"<!-- figures {name} {checksum(text)} -->\n{text}<!-- end of figures -->\n"


def write(path, name, text):
    """Replaces one block of a page, which must have it."""
    page = pathlib.Path(path).read_text(encoding="utf-8")
    found = [block for block in BLOCK.finditer(page) if block["name"] == name]
    if len(found) != 1:
        sys.exit(f"{path}: {len(found)} blocks of figures are called {name}")
    page = page[:found[0].start()] + rendered(name, text) + page[found[0].end():]
    pathlib.Path(path).write_text(page, encoding="utf-8")


def read(path, name):
    """The text of one block; none when the page lacks it."""
    page = pathlib.Path(path).read_text(encoding="utf-8")
    return next((block["text"] for block in BLOCK.finditer(page) if block["name"] == name), None)


def mistakes(path):
    """What is wrong with the blocks of a page, one text each."""
    page = pathlib.Path(path).read_text(encoding="utf-8")
    blocks = list(BLOCK.finditer(page))
    if len(blocks) != page.count("<!-- figures ") or len(blocks) != page.count("<!-- end of figures -->"):
        yield f"{path}: a block of figures does not begin or end"
    for block in blocks:
        if block["checksum"] != checksum(block["text"]):
            yield f"{path}: the figures {block['name']} are not as they were written"


def check(pages):
    found = [mistake for page in pages for mistake in mistakes(page)]
    for mistake in found:
        print(mistake)
    return 1 if found else 0


def main(arguments):
    if len(arguments) == 3 and arguments[0] == "write":
        write(arguments[1], arguments[2], sys.stdin.read())
        return 0
    if len(arguments) >= 2 and arguments[0] == "check":
        return check(arguments[1:])
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
