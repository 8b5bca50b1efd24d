#!/usr/bin/python3
"""Attacks the saves of a morpho program: kills it, runs two at once, exchanges folders for links, lets its disk fail.

usage: scripts/attack_saves.py [--program FILE] [--runs N] [--calls FIRST:STEP] [ATTACK...]

N is how often each attack is tried (default 3). The attacks: kill call two exchange fail; without any, all.
"call" kills it at the Nth call that changes a file, for each N of FIRST, FIRST+STEP, ... (default 1:40); "fail" lets
these calls fail. Both need strace. Exit status 1 when a promise was broken; each breach is printed.
"""

import argparse
import collections
import ctypes
import hashlib
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SOURCE = pathlib.Path(__file__).resolve().parent.parent
RECOLOR = ["recolor", "WEB", "--theme", "orrery", "--hue", "60", "--apply"]
COMMANDS = {
    "save": [*RECOLOR, "--save"],
    "save-as-applied": [*RECOLOR, "--save-as", "night", "--title", "Night", "--apply-to-web"],
    "save-as": [*RECOLOR, "--save-as", "night", "--title", "Night"],
    "apply": ["apply", "WEB", "--theme", "almanac"],
}
CHANGES = "renameat2,renameat,rename,write,pwrite64,fsync,unlinkat,unlink,rmdir,mkdirat,mkdir,linkat,ftruncate,fchmod"
LAST_CALL = 700  # a save makes some five hundred of them
EXCHANGE = 2  # RENAME_EXCHANGE
AT_FDCWD = -100


class Home:
    """A copy of the sample web, and the folders that the program keeps its data in."""

    def __init__(self, program):
        self.program = program
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="morpho-attack-"))
        self.breaches = 0
        self.told = ""  # what the last undisturbed run said

    def start_afresh(self):
        shutil.rmtree(self.path)
        self.path.mkdir()
        shutil.copytree(SOURCE / "samples/larkfell", self.path / "web")

    def start(self, words, before=()):
        words = [word.replace("WEB", str(self.path / "web")) for word in words]
        environment = dict(os.environ, XDG_DATA_HOME=str(self.path / "data"), XDG_CACHE_HOME=str(self.path / "cache"))
        return subprocess.Popen([*before, self.program, *words], env=environment, stdout=subprocess.DEVNULL,
                                stderr=subprocess.PIPE, text=True)

    def run(self, words, before=()):
        process = self.start(words, before)
        errors = process.communicate()[1]
        return process.returncode, errors.replace(str(self.path), "")

    def state(self):
        return tree(self.path / "web"), tree(self.path / "data/morpho/AppData/Microsoft/Themes")

    def undisturbed(self, words):
        self.start_afresh()
        status, errors = self.run(words)
        assert status == 0, errors
        self.told = errors
        return self.state()

    def leftovers(self):
        found = [path for place in ("web", "data") for path in (self.path / place).rglob("*")]
        return [str(path) for path in found
                if path.name.startswith(".morpho-") or path.suffix in (".journal", ".earlier") or path.name.endswith("#.inf")]

    def expect(self, holds, *what):
        if not holds:
            self.breaches += 1
            print("BREACH:", *what, flush=True)

    def expect_state(self, expected, *what):
        for name, good, now in zip(("web", "user"), expected, self.state()):
            differing = sorted(path for path in good.keys() | now.keys() if good.get(path) != now.get(path))
            self.expect(not differing, *what, name, "differs at", differing[:5])


def tree(folder):
    contents = {}
    for path in folder.rglob("*"):
        if path.is_symlink():
            value = "-> " + os.readlink(path)
        else:
            value = hashlib.sha256(path.read_bytes()).hexdigest() if path.is_file() else "folder"
        contents[str(path.relative_to(folder))] = value
    return contents


def expect_repeatable(home, name, good, what):
    """The same command again makes of a killed one what an undisturbed one makes."""
    status, errors = home.run(COMMANDS[name])
    home.expect(status in (0, 1), name, what, status, errors)
    home.expect_state(good, name, what, "status", status, errors.strip())
    home.expect(not home.leftovers(), name, what, "left", home.leftovers()[:5])
    return status, errors


def kill(home, options):
    for name, words in COMMANDS.items():
        home.start_afresh()
        began = time.monotonic()
        home.run(words)
        duration = time.monotonic() - began
        good = home.state()
        told = collections.Counter()
        for _ in range(options.runs):
            home.start_afresh()
            process = home.start(words)
            time.sleep(random.uniform(0.1, 1) * duration)
            process.kill()
            process.communicate()
            if process.returncode != 0:
                told[expect_repeatable(home, name, good, "killed at random")] += 1
        print("kill", name, *told.items(), sep="\n    ", flush=True)


def injecting(calls, fault):
    return ["strace", "-f", "-o", "/dev/null", "-e", "trace=" + calls, "-e", f"inject={calls}:{fault}"]


def faults(options):
    first, step = map(int, options.calls.split(":"))
    for name in COMMANDS:
        for number in range(first, LAST_CALL, step):
            yield from ((number, name, more) for more in ("", "+"))


def call(home, options):
    first, step = map(int, options.calls.split(":"))
    for name, words in COMMANDS.items():
        good = home.undisturbed(words)
        told = collections.Counter()
        number, status = first, 1
        while status != 0:
            home.start_afresh()
            status, _ = home.run(words, injecting(CHANGES, f"signal=KILL:when={number}"))
            if status != 0:
                told[expect_repeatable(home, name, good, f"killed at call {number}")] += 1
            number += step
        print("call", name, "ended at", number, *told.items(), sep="\n    ", flush=True)


def two(home, options):
    for names in (("night", "night"), ("night", "day")):
        words = [[*RECOLOR[:4], "--hue", hue, "--apply", "--save-as", name, "--title", name.upper() + hue, "--apply-to-web"]
                 for name, hue in zip(names, ("30", "90"))]
        alone = [home.undisturbed(each) for each in words]
        told = collections.Counter()
        for _ in range(options.runs):
            home.start_afresh()
            processes = [home.start(each) for each in words]
            errors = [process.communicate()[1].replace(str(home.path), "") for process in processes]
            statuses = [process.returncode for process in processes]
            told[tuple(sorted((status, re.sub(r"program \d+", "program N", each)) for status, each in zip(statuses, errors)))] += 1
            home.expect(not home.leftovers(), "two", names, "left", home.leftovers()[:5])
            home.expect(0 in statuses and set(statuses) <= {0, 1}, "two", names, statuses, errors)
            if statuses.count(0) == 1:
                home.expect_state(alone[statuses.index(0)], "two", names, errors)
            else:
                home.expect(names[0] != names[1], "two programs saved one name")
                web, user = home.state()
                for name, (good, _) in zip(names, alone):
                    theme = f"_themes/{name}"
                    home.expect(name in user and all(web.get(path) == good[path] for path in good if path.startswith(theme)),
                                "two", name, "is not whole")
        print("two", names, *told.items(), sep="\n    ", flush=True)


def exchanging(inside, link):
    """Starts a process that exchanges the two until it is killed."""
    child = os.fork()
    if child == 0:
        libc = ctypes.CDLL(None)
        paths = os.fsencode(inside), os.fsencode(link)
        while True:
            libc.renameat2(AT_FDCWD, paths[0], AT_FDCWD, paths[1], EXCHANGE)
    return child


def exchange(home, options):
    for target, name in (("gallery", "save-as-applied"), ("gallery", "apply"), ("_themes", "save"), ("_themes", "save-as-applied"),
                         ("_themes/orrery", "save"), ("_themes/almanac", "apply")):
        good = home.undisturbed(COMMANDS[name])
        told = home.told
        statuses = collections.Counter()
        for _ in range(options.runs):
            home.start_afresh()
            inside, outside, link = home.path / "web" / target, home.path / "outside", home.path / "link"
            shutil.copytree(inside, outside)
            before = tree(outside)
            link.symlink_to(outside)
            child = exchanging(inside, link)
            status, errors = home.run(COMMANDS[name])
            os.kill(child, signal.SIGKILL)
            os.waitpid(child, 0)
            statuses[status] += 1
            home.expect(tree(outside) == before, "exchange", target, name, "changed what is outside")
            if inside.is_symlink():
                ctypes.CDLL(None).renameat2(AT_FDCWD, os.fsencode(inside), AT_FDCWD, os.fsencode(link), EXCHANGE)
            if target != "gallery" and status == 0:
                # Temporary files that could not be deleted are told.
                for path in inside.rglob(".morpho-*"):
                    home.expect("could not be deleted" in errors, "exchange", target, name, "left", path)
                    path.unlink()
                # What the program could not see of a theme at a moment is told, too.
                if errors == told:
                    home.expect_state(good, "exchange", target, name, "answered 0, yet")
        print("exchange", target, name, dict(statuses), flush=True)


def fail(home, options):
    """Calls that change a file fail, one of them or all from it on. A save that then answers 1 has changed nothing."""
    calls = CHANGES.replace("unlinkat,unlink,rmdir,", "")  # without these nothing can be undone
    for number, name, more in faults(options):
        words, good = COMMANDS[name], home.undisturbed(COMMANDS[name])
        home.start_afresh()
        before = home.state()
        status, errors = home.run(words, injecting(calls, f"error=ENOSPC:when={number}{more}"))
        what = f"fails at call {number}{more}"
        home.expect(status in (0, 1), "fail", name, what, status, errors)
        if status == 1:
            if "New theme was added" in errors:  # the one refusal that leaves the theme, as it says
                continue
            home.expect_state(before, "fail", name, what, errors)
            expect_repeatable(home, name, good, what)
        elif not errors:
            home.expect_state(good, "fail", name, what)
        print("fail", name, what, status, errors.strip().replace("\n", " "), flush=True)


def main():
    attacks = {each.__name__: each for each in (kill, call, two, exchange, fail)}
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--program", default=str(SOURCE / "build/release/bin/morpho"))
    parser.add_argument("--runs", type=int, default=3)
    parser.add_argument("--calls", default="1:40")
    parser.add_argument("attack", nargs="*")
    options = parser.parse_args()
    home = Home(options.program)
    try:
        for name in options.attack or attacks:
            attacks[name](home, options)
    finally:
        shutil.rmtree(home.path, ignore_errors=True)
    sys.exit(1 if home.breaches else 0)


if __name__ == "__main__":
    main()
