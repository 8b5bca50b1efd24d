#!/usr/bin/python3
"""Builds with counters, runs every test, works the program's windows, and prints which part of the lines and branches of
src/ ran, by folder.

usage: scripts/coverage.py [--files]      (--files: also the files below the aim of 99 % of lines or 92 % of branches)

Branches that only an exception takes out of a call are not counted: g++ makes one for nearly every call.
"""

import collections
import json
import pathlib
import subprocess
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent
BUILD = SOURCE / "build/coverage"
WALKS = ["walk_window", "walk_image", "walk_web"]
AIM = {"line": 99, "branch": 92}


def run(*words, **options):
    subprocess.run(words, cwd=SOURCE, check=True, **options)


def share(counts, kind):
    return 100 * counts[kind + "_covered"] / (counts[kind + "_total"] or 1)


def row(name, counts):
    return f"| {name} | {counts['line_total']} | {share(counts, 'line'):.1f} % | {share(counts, 'branch'):.1f} % |"


def folder_of(file):
    # Headers are reached by links: build/coverage/include/FOLDER/FOLDER/NAME.
    parts = pathlib.Path(file).parts
    return parts[parts.index("include") + 1] if parts[0] == "build" else parts[1]


def main():
    run("scripts/install_packages.sh", "scripts/packages_coverage.txt")
    run("cmake", "--preset", "coverage", stdout=subprocess.DEVNULL)
    run("cmake", "--build", "--preset", "coverage")
    for counters in BUILD.rglob("*.gcda"):
        counters.unlink()
    failed = subprocess.run(["ctest", "--preset", "coverage"], cwd=SOURCE, stdout=sys.stderr).returncode
    for walk in WALKS:
        failed |= subprocess.run([f"scripts/{walk}.sh", str(BUILD / walk), "coverage"], cwd=SOURCE, stdout=sys.stderr).returncode
    run("gcovr", "--root", ".", "--filter", "src/", "--exclude", "build/", "--exclude-throw-branches", "--exclude-unreachable-branches",
        "--json-summary", str(BUILD / "summary.json"), str(BUILD))
    files = json.loads((BUILD / "summary.json").read_text())["files"]
    folders = collections.defaultdict(collections.Counter)
    for file in files:
        numbers = {key: file[key] for key in file if key.endswith(("_total", "_covered"))}
        folders[folder_of(file["filename"])].update(numbers)
        folders["all"].update(numbers)
    print("| folder | lines | run | branches run |\n| --- | --- | --- | --- |")
    for name in sorted(folders, key=lambda name: (name == "all", name)):
        print(row(f"`{name}/`" if name != "all" else name, folders[name]))
    if "--files" in sys.argv:
        print()
        for file in files:
            if any(share(file, kind) < aim and file[kind + "_total"] for kind, aim in AIM.items()):
                print(row(file["filename"], file))
    sys.exit(failed)


if __name__ == "__main__":
    main()
