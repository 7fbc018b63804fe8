# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

"""Runs commands in turn, so that what else the machine does hits all of them, and prints them side by side."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROUNDS = 5
PROGRAMS = pathlib.Path(
    sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "build/release/bin"
).resolve()


class Run:
    """One run: seconds on the clock, seconds of the processors, kilobytes of memory at the most."""

    def __init__(self, wall, processor, memory):
        self.wall = float(wall)
        self.processor = float(processor)
        self.memory = int(memory)


class Contestant:
    def __init__(self, name, command, before=lambda: None, after=lambda: None, own_time=False):
        """own_time: the command prints the seconds that count, on the clock and of the processor."""
        self.name = name
        self.command = [str(word) for word in command]
        self.before = before
        self.after = after
        self.own_time = own_time
        self.runs = []

    def run(self):
        self.before()
        with tempfile.TemporaryFile() as output, tempfile.NamedTemporaryFile() as result:
            script = 'result=$1; shift; exec "$@" 3>"$result"'
            command = ["sh", "-c", script, "sh", result.name, program("tressel-measure"), *self.command]
            status = subprocess.run(command, stdout=output, stderr=subprocess.DEVNULL).returncode
            if status != 0:
                sys.exit(f"{' '.join(self.command)} ended with {status}")
            self.runs.append(Run(*result.read().split()))
            if self.own_time:
                output.seek(0)
                wall, processor = output.read().split()[-2:]
                self.runs[-1] = Run(wall, processor, self.runs[-1].memory)
        self.after()

    def best(self, what):
        return min(getattr(run, what) for run in self.runs)


def program(name):
    path = PROGRAMS / name
    if not path.exists():
        sys.exit(f"{path} isn't there: build it first, see bench/README.md")
    return path


def race(title, contestants, rounds=ROUNDS):
    """Prints the best of each one's runs and its ratio to the first one's."""
    for _ in range(rounds):
        for contestant in contestants:
            contestant.run()
    load = " ".join(f"{part:.1f}" for part in os.getloadavg())
    print(f"\n{title}: best of {rounds}, load {load} on {os.cpu_count()} processors")
    print(f"{'':34}{'clock s':>9}{'ratio':>7}{'processor s':>13}{'ratio':>7}{'memory kB':>11}")
    first = contestants[0]
    for each in contestants:
        wall, processor = each.best("wall"), each.best("processor")
        print(
            f"{each.name:34}{wall:9.3f}{wall / first.best('wall'):7.2f}"
            f"{processor:13.3f}{processor / max(first.best('processor'), 0.001):7.2f}"
            f"{max(run.memory for run in each.runs):11d}"
        )


class Place:
    """A fresh folder below another, and the paths in it; gone at the end."""

    def __init__(self, below):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tressel-bench-", dir=below))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)

    def __truediv__(self, name):
        return self.folder / name

    def empty(self, name):
        """Makes a folder in it, empty."""
        path = self.folder / name
        shutil.rmtree(path, ignore_errors=True)
        path.mkdir()

    def expect(self, name, count):
        """Ends the measuring if a folder hasn't so many entries: what does less is no contestant."""
        found = len(os.listdir(self.folder / name))
        if found != count:
            sys.exit(f"{name} has {found} entries and not {count}")


def media():
    """Memory and disc."""
    return [("in memory", "/dev/shm"), ("on disc", os.environ.get("TMPDIR", "/var/tmp"))]


def own_settings(place):
    """Has the programs keep their settings in a fresh place, and draw without a display."""
    os.environ["XDG_CONFIG_HOME"] = os.environ["XDG_DATA_HOME"] = str(place.folder)
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
