#!/usr/bin/python3
"""Makes the files of src/resources/. Needs Debian's python3-pil; the same bytes come out at every run.

usage: scripts/make_resources.py
"""

import pathlib

from art import icons, preview_template

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "src" / "resources"


def main():
    (FOLDER / "template.htm").write_bytes(preview_template.template())
    icons.color_band().save(FOLDER / "colorband.jpg", quality=97, subsampling="4:4:4", optimize=True)
    icons.toolbar_face().save(FOLDER / "toolbar.bmp")
    (FOLDER / "morpho.svg").write_text(icons.application_svg(), newline="\n")
    for size in (16, 32, 48, 128):
        icons.application(size).save(FOLDER / f"morpho-{size}.png", optimize=True)
    for kind in ("stop", "question", "information"):
        icons.notice(kind, 64).save(FOLDER / f"{kind}.png", optimize=True)
    icons.about_picture().save(FOLDER / "about.png", optimize=True)


if __name__ == "__main__":
    main()
