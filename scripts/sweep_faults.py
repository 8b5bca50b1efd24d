#!/usr/bin/python3
"""Kills a morpho program at each call that changes a file, and lets each of these calls fail, in whole sessions.

usage: scripts/sweep_faults.py [--program FILE] [--every N] [--jobs N] [SESSION...]

Every Nth call takes its turn (default 20; 1: all, which takes hours). After each fault the program is started again:
either with the same command, which must make what an undisturbed run makes, or with another save, which must leave
all else as it was before the command or as it should be after it. Exit status 1 when a promise was broken; each
breach is printed.
"""

import argparse
import collections
import multiprocessing
import os
import shutil
import subprocess
import sys
import tempfile

import attack_saves

SOURCE = attack_saves.SOURCE
LOAD_APPLY_UNDO = ["recolor", "WEB", "--theme", "orrery", "--hue", "60", "--apply", "--hue", "20", "--apply", "--undo"]
PICTURES = ["recolor", "WEB/images/moon.jpg", "WEB/images/dome.jpg", "WEB/images/logo.gif", "--hue", "40", "--quality", "80"]
SESSIONS = {
    "theme-save-as-applied": [*LOAD_APPLY_UNDO, "--save-as", "night", "--title", "Night", "--apply-to-web"],
    "theme-save": [*LOAD_APPLY_UNDO, "--save"],
    "theme-apply": ["apply", "WEB", "--theme", "almanac"],
    "image-in-place": [*PICTURES, "--in-place"],
    "image-save-as": [*PICTURES, "--output-dir", "WEB/green", "--force"],
}
OTHER_SAVE = ["recolor", "WEB", "--theme", "almanac", "--hue", "10", "--apply", "--save-as", "probe"]
CALLS = "openat,openat2," + attack_saves.CHANGES + ",link,fchmodat,exit_group"
# The one refusal that leaves a theme in the web: the message says so.
LEAVES_THEME = "New theme was added"
LEFT = " is left as it was"
ERRORS = ("EIO", "ENOSPC", "EACCES")
LOADER_FAILED = 127  # the program's libraries could not be opened


def strace(output, *options):
    return ["strace", "-f", "--seccomp-bpf", "-o", output, "-e", "trace=" + CALLS, *options]


def count_calls(home, words):
    """The calls of the main thread, and which of them removes the record of the save; strace counts each thread for itself."""
    home.start_afresh()
    output = home.path / "calls"
    home.run(words, strace(str(output)))
    lines = [line for line in output.read_text(errors="replace").splitlines() if "(" in line]
    main_thread = lines[-1].split()[0]  # it makes the last call
    calls = [line for line in lines if line.split()[0] == main_thread]
    removals = [number for number, line in enumerate(calls, 1) if "unlinkat" in line and ".journal" in line]
    return len(calls), removals[-1] if removals else len(calls)


def whole(states, now, told=""):
    """The first file of now that is that of none of the states, or is missing though both have it.

    A picture that was told to be left as it was has its colours of before, in the theme's package, too."""
    for place, contents in enumerate(now):
        for path in contents.keys() | states[0][place].keys() | states[1][place].keys():
            allowed = [state[place].get(path) for state in states]
            if LEFT in told:
                if path.endswith(".elm"):
                    continue
                if os.path.basename(path) + LEFT in told:
                    allowed.append(states[0][place].get("_themes/orrery/" + os.path.basename(path)))
            if contents.get(path) not in allowed:
                return path
    return None


def without_other(state):
    return tuple({path: value for path, value in each.items() if not path.startswith("probe") and path != "_themes"} for each in state)


def check_repeated(home, words, good, what):
    status, errors = home.run(words)
    home.expect(status in (0, 1), *what, "repeated:", status, errors)
    home.expect_state(good, *what, "repeated:", status, errors.strip())


def check_other_save(home, is_one_change, told, before, good, what):
    status, errors = home.run(OTHER_SAVE)
    home.expect(status == 0, *what, "next start:", status, errors)
    now = without_other(home.state())
    states = [without_other(before), without_other(good)]
    if is_one_change:
        home.expect(now in states, *what, "next start: neither as before nor as it should be", whole(states, now), errors.strip())
    else:
        found = whole(states, now, told)
        home.expect(found is None, *what, "next start:", found, "is not whole", told.strip())


def inject(task):
    name, number, fault, is_over, takes_other, before, good = task
    home, words = inject.home, SESSIONS[name]
    home.breaches = 0
    home.start_afresh()
    injected = "signal=KILL" if fault == "KILL" else "error=" + fault
    calls = CALLS if fault == "KILL" else CALLS.replace(",exit_group", "")
    status, errors = home.run(words, strace("/dev/null", "-e", f"inject={calls}:{injected}:when={number}"))
    what = (name, fault, "at call", number, "status", status)
    is_theme = name.startswith("theme")
    if fault != "KILL":
        home.expect(status in (0, 1, LOADER_FAILED), *what, errors)
    if status == 0 and not errors.strip():
        home.expect_state(good, *what)
    home.expect(is_theme or whole([before, good], home.state()) is None, *what, "a picture is not whole")
    leaves_theme = LEAVES_THEME in errors
    if is_over and fault == "KILL":
        # Nothing is left to tell the next start of this save.
        home.expect_state(good, *what)
    if is_theme and (is_over or leaves_theme or takes_other):
        is_one_change = not leaves_theme and (status != 0 or not errors.strip())
        check_other_save(home, is_one_change, errors, before, good, what)
    elif status != 0 and (is_theme or name == "image-save-as"):
        # Pictures in place are changed again by a second run.
        check_repeated(home, words, good, what)
    home.expect(not home.leftovers(), *what, "left", home.leftovers()[:5])
    return home.breaches, fault if status != 0 or fault != "KILL" else "not reached"


def start_worker(program):
    inject.home = attack_saves.Home(program)


def tasks(home, options):
    for name in options.session or SESSIONS:
        good = home.undisturbed(SESSIONS[name])
        calls, removal = count_calls(home, SESSIONS[name])
        home.start_afresh()
        before = home.state()
        print(f"{name}: {calls} calls", flush=True)
        numbers = sorted({*range(1, calls + 1, options.every), removal, calls})
        for turn, number in enumerate(numbers):
            # The next start is another save half of the time, with each of the errors.
            takes_other = turn // len(ERRORS) % 2 == 1
            for fault in ("KILL", ERRORS[turn % len(ERRORS)]):
                yield name, number, fault, number > removal, takes_other, before, good


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--program", default=str(SOURCE / "build/release/bin/morpho"))
    parser.add_argument("--every", type=int, default=20)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("session", nargs="*")
    options = parser.parse_args()
    subprocess.run([SOURCE / "scripts/install_packages.sh", SOURCE / "scripts/packages_faults.txt"], check=True)
    tempfile.tempdir = tempfile.mkdtemp(prefix="morpho-sweep-")
    try:
        home = attack_saves.Home(options.program)
        with multiprocessing.Pool(options.jobs, start_worker, [options.program]) as pool:
            results = pool.map(inject, list(tasks(home, options)), chunksize=1)
    finally:
        shutil.rmtree(tempfile.tempdir, ignore_errors=True)
    breaches = sum(found for found, _ in results)
    reached = sum(fault != "not reached" for _, fault in results)
    print(f"{reached} faults injected, " + (f"{breaches} breaches" if breaches else "all webs whole"))
    sys.exit(1 if breaches else 0)


if __name__ == "__main__":
    main()
