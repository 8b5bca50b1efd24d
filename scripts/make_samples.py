#!/usr/bin/python3
"""Makes the sample web samples/larkfell. Needs Debian's python3-pil; the same bytes come out at every run.

usage: scripts/make_samples.py
"""

import pathlib
import shutil

from art import larkfell

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "samples" / "larkfell"


def main():
    shutil.rmtree(FOLDER, ignore_errors=True)
    for address, data in larkfell.files().items():
        path = FOLDER / address
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


if __name__ == "__main__":
    main()
