#!/usr/bin/env python3
"""Writes src/typed/columnWidths.inc: which characters take no column on a terminal, and which take two.

Run it from anywhere when Python brings newer data of Unicode, and commit what it writes. The data are
those of Python's unicodedata: no column for combining marks, format characters and the vowels and final
consonants that Hangul joins; two for what East Asian Width calls wide or full-width.
"""

import pathlib
import sys
import unicodedata


def width(code):
    character = chr(code)
    if code == 0x00AD:
        return 1  # the soft hyphen is shown where text is not wrapped by it
    if unicodedata.category(character) in ("Mn", "Me", "Cf") or 0x1160 <= code <= 0x11FF:
        return 0
    return 2 if unicodedata.east_asian_width(character) in "WF" else 1


def ranges(wanted):
    """The first and last code of each run of characters with that width."""
    first = None
    for code in range(0x110001):
        fits = code < 0x110000 and not 0xD800 <= code <= 0xDFFF and width(code) == wanted
        if fits and first is None:
            first = code
        elif not fits and first is not None:
            yield first, code - 1
            first = None


def table(name, wanted):
    entries = [f"{{0x{first:X}, 0x{last:X}}}" for first, last in ranges(wanted)]
    lines, line = [], "   "
    for entry in entries:
        if len(line) + len(entry) + 2 > 108:
            lines.append(line)
            line = "   "
        line += f" {entry},"
    lines.append(line)
    return f"constexpr CodeRange {name}[] = {{\n" + "\n".join(lines) + "\n};\n"


def main():
    path = pathlib.Path(__file__).resolve().parent.parent / "src/typed/columnWidths.inc"
    version = unicodedata.unidata_version
    text = (f"// Made by tools/make-column-widths.py from the data of Unicode {version}.\n\n"
            + table("withoutColumn", 0) + "\n" + table("withTwoColumns", 2))
    if "--check" in sys.argv[1:]:
        return 0 if path.read_text() == text else 1
    path.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
