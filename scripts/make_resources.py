#!/usr/bin/python3
"""Makes the files of src/resources/, and the icon of the Windows program. Needs Debian's python3-pil; the same bytes come out at every run.

usage: scripts/make_resources.py
"""

import pathlib
import struct

from art import icons, preview_template

SOURCES = pathlib.Path(__file__).resolve().parent.parent / "src"
FOLDER = SOURCES / "resources"
ICON_SIZES = (16, 32, 48, 128)


def windows_icon(pictures):
    """An icon file of Windows from square PNG pictures, by size."""
    header = struct.pack("<HHH", 0, 1, len(pictures))
    entries, data = b"", b""
    for size, png in sorted(pictures.items()):
        offset = len(header) + 16 * len(pictures) + len(data)
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(png), offset)
        data += png
    return header + entries + data


def main():
    (FOLDER / "template.htm").write_bytes(preview_template.template())
    icons.color_band().save(FOLDER / "colorband.jpg", quality=97, subsampling="4:4:4", optimize=True)
    icons.toolbar_face().save(FOLDER / "toolbar.bmp")
    (FOLDER / "morpho.svg").write_text(icons.application_svg(), newline="\n")
    for size in ICON_SIZES:
        icons.application(size).save(FOLDER / f"morpho-{size}.png", optimize=True)
    pictures = {size: (FOLDER / f"morpho-{size}.png").read_bytes() for size in ICON_SIZES}
    (SOURCES / "windows_program" / "morpho.ico").write_bytes(windows_icon(pictures))
    for kind in ("stop", "question", "information"):
        icons.notice(kind, 64).save(FOLDER / f"{kind}.png", optimize=True)
    icons.about_picture().save(FOLDER / "about.png", optimize=True)


if __name__ == "__main__":
    main()
