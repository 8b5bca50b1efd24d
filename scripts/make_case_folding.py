#!/usr/bin/env python3
"""Prints the table of src/text/case_folding.inc: Unicode's simple case folding in runs of characters.

A run is a first and a last character, the step between its characters, and what is added to each of them.
"""

import sys
import textwrap
import unicodedata


def folded(character):
    """The simple folding: the full one where that is one character, otherwise the lower case where that is."""
    for candidate in (character.casefold(), character.lower()):
        if len(candidate) == 1:
            return candidate
    return character


def runs():
    """The runs in ascending order; a run's characters all lie at its step."""
    found = []
    for code in range(0x80, sys.maxunicode + 1):
        if 0xD800 <= code <= 0xDFFF:
            continue
        added = ord(folded(chr(code))) - code
        if added == 0:
            continue
        if found and found[-1][3] == added:
            first, last, step, _ = found[-1]
            if code - last == step or (first == last and code - last <= 2):
                found[-1] = (first, code, code - last, added)
                continue
        found.append((code, code, 1, added))
    return found


def main():
    print(f"// Written by scripts/make_case_folding.py from Unicode {unicodedata.unidata_version}.")
    table = ", ".join(f"{{0x{first:04X},0x{last:04X},{step},{added}}}" for first, last, step, added in runs())
    print(textwrap.fill(table, 100))


if __name__ == "__main__":
    main()
