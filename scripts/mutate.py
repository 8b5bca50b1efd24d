#!/usr/bin/python3
"""Changes one condition or constant of the core at a time, and says which test notices.

usage: scripts/mutate.py [--sample N] [--seed S] [--folder FOLDER]      (default: a sample of 100, seed 1, all folders of the core)

Works on a copy of the sources in build/mutants/. A change that does not compile does not count; one that makes a test
program run for more than a minute is noticed. Changes that no test can notice stand in scripts/mutants_unseen.txt with the
reason. Exit status 1 if fewer than 95 % are noticed.
"""

import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent
TREE = SOURCE / "build/mutants/tree"
BUILD = SOURCE / "build/mutants/build"
AIM = 95  # per cent
PATIENCE = 60  # seconds for a test program; the slowest takes 10
CORE = ["text", "formats", "forms", "shared", "frontpage", "about", "addin", "image_editor", "theme_editor", "colorizer", "editing",
        "resources", "colorizer_adapter"]
# The test programs that run what is in these folders, the fast ones first.
TESTS = ["text", "formats", "forms", "shared", "frontpage", "about", "addin", "linux", "web_host", "image_editor", "theme_editor",
         "colorizer"]
NEAREST = {"editing": "image_editor", "resources": "image_editor", "colorizer_adapter": "image_editor"}

SWAPS = [(" == ", " != "), (" != ", " == "), (" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > "),
         (" && ", " || "), (" || ", " && "), ("true", "false"), ("false", "true")]


def run(*words, **options):
    return subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", **options)


def code_of(line):
    """The line with texts and comments blanked, at the same length."""
    blank = lambda found: found.group()[0] + " " * (len(found.group()) - 2) + found.group()[-1]
    line = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', blank, line)
    return re.sub(r"//.*", lambda found: " " * len(found.group()), line)


def changes_of(line):
    """Each changed form of a line of code."""
    code = code_of(line)
    if code.lstrip().startswith(("#", "static_assert", "template", "using ")):
        return
    for old, new in SWAPS:
        for found in re.finditer(rf"\b{old}\b" if old.isalpha() else re.escape(old), code):
            yield line[: found.start()] + new + line[found.end() :]
    for found in re.finditer(r"!(?=[A-Za-z_(])", code):
        yield line[: found.start()] + line[found.end() :]
    for found in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        yield line[: found.start()] + str(int(found.group()) + 1) + line[found.end() :]


def all_changes(folders):
    for folder in folders:
        for file in sorted((SOURCE / "src" / folder).glob("*.cpp")):
            lines = file.read_text().splitlines(keepends=True)
            raw = False
            for number, line in enumerate(lines):
                # The lines of a raw text are no code.
                raw = raw or 'R"' in line
                if not raw:
                    for changed in changes_of(line):
                        yield file.relative_to(SOURCE), number, changed
                raw = raw and ')"' not in line


def prepare():
    shutil.rmtree(TREE, ignore_errors=True)
    names = subprocess.check_output(["git", "ls-files", "-z"], cwd=SOURCE, text=True).split("\0")
    for name in filter(None, names):
        (TREE / name).parent.mkdir(parents=True, exist_ok=True)
        # New times: what a run that was broken off has built from a changed source is built anew.
        shutil.copyfile(SOURCE / name, TREE / name)
    configured = run("cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-g0",
                     "-DMORPHO_BENCH=OFF")
    if configured.returncode != 0 or not build(TESTS):
        sys.exit("The tests do not build as they are.\n" + configured.stdout)
    for test in TESTS:
        if failure_of(test):
            sys.exit(f"The tests of {test} fail as they are.")


def build(tests):
    return run("cmake", "--build", str(BUILD), "--target", *(f"test_{test}" for test in tests)).returncode == 0


def failure_of(test):
    """The name of the first test that fails; empty when all pass."""
    try:
        result = run(str(BUILD / f"bin/test_{test}"), "--gtest_brief=1", "--gtest_fail_fast", timeout=PATIENCE)
    except subprocess.TimeoutExpired:
        return f"{test}: time is over"
    if result.returncode == 0:
        return ""
    found = re.search(r"^\[  FAILED  \] (\S+)", result.stdout, re.MULTILINE)
    return found.group(1) if found else f"{test}: ended with {result.returncode}"


def who_notices(folder):
    """The test that fails; empty when none does, None when the change does not compile."""
    nearest = NEAREST.get(folder, folder)
    for test in [nearest] + [test for test in TESTS if test != nearest]:
        if not build([test]):
            return None
        failure = failure_of(test)
        if failure:
            return failure
    return ""


def try_change(file, number, changed):
    original = (TREE / file).read_text()
    lines = original.splitlines(keepends=True)
    lines[number] = changed
    (TREE / file).write_text("".join(lines))
    try:
        return who_notices(file.parts[1])
    finally:
        (TREE / file).write_text(original)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sample", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folder", action="append", choices=CORE)
    asked = parser.parse_args()
    unseen = {line.split("\t")[0] for line in (SOURCE / "scripts/mutants_unseen.txt").read_text().splitlines()}
    changes = list(all_changes(asked.folder or CORE))
    random.Random(asked.seed).shuffle(changes)
    prepare()
    noticed = tried = 0
    for file, number, changed in changes:
        if tried == asked.sample:
            break
        name = f"{file}: {changed.strip()}"
        if name in unseen:
            continue
        test = try_change(file, number, changed)
        if test is None:
            continue
        tried += 1
        noticed += bool(test)
        print(f"{test or 'NOT NOTICED'}\t{file}:{number + 1}: {changed.strip()}", flush=True)
    share = 100 * noticed / max(tried, 1)
    print(f"{noticed} of {tried} changes are noticed, {share:.1f} %. ({len(changes)} are possible; {len(unseen)} are not counted.)")
    sys.exit(share < AIM)


if __name__ == "__main__":
    main()
