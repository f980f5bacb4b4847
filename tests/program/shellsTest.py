#!/usr/bin/env python3
"""Types command lines of tarv with TABs into a real shell, and compares the arguments that it then receives.

    shellsTest.py TARV SAMPLE SHELLS bash|zsh|fish

SAMPLE is the program of the tests of completion, which shows its arguments; SHELLS is the folder of those.
"""

import os
import shutil
import subprocess
import sys
import tempfile

TARV, SAMPLE = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
sys.path.insert(0, sys.argv[3])
SHELL = sys.argv[4]

from terminal import Terminal  # noqa: E402  it lies in the folder of the other tests

PREPARE = {"bash": "", "zsh": "autoload -Uz compinit\ncompinit -D\n", "fish": ""}
ROWS = [
    ("tarv compa\t", ["compare"]),
    ("tarv com\tl\tx", ["completion", "x"]),
    ("tarv --vers\t", ["--version"]),
    ("tarv compare --for\tj\t", ["compare", "--format=json"]),
    ("tarv compare --format=b\t", ["compare", "--format=baseline"]),
    ("tarv compa --format t\t", ["compa", "--format", "text"]),
    ("tarv compare no\t", ["compare", "notes.json"]),
    ("tarv compare --basel\tno\t", ["compare", "--baseline=notes.json"]),
    ("tarv completion --sh\tz\tx", ["completion", "--shell=zsh", "x"]),
    ("tarv li --f\t --wi\tx", ["li", "--fix", "--with=x"]),
    ("tarv compare --fix\tx", ["compare", "--fixx"]),
]
# Answers what shells ask, and shows everything else.
WRAPPER = f"""#!/bin/sh
case ${{1-}} in
tarvoption=*) exec '{TARV}' "$@" ;;
*) exec '{SAMPLE}' "$@" ;;
esac
"""


def main():
    home = os.path.realpath(tempfile.mkdtemp(prefix="tarv-shells-"))
    os.mkdir(os.path.join(home, "bin"))
    for name, text in (("bin/tarv", WRAPPER), ("notes.json", "")):
        with open(os.path.join(home, name), "w", encoding="utf-8") as file:
            file.write(text)
    os.chmod(os.path.join(home, "bin/tarv"), 0o755)
    script = subprocess.run([TARV, "tarvoption=completion=" + SHELL], check=True, capture_output=True, text=True).stdout
    with open(os.path.join(home, "script"), "w", encoding="utf-8") as file:
        file.write(script)
    terminal = Terminal(SHELL, home, PREPARE[SHELL] + ". ~/script\n")
    failed = 0
    for typed, expected in ROWS:
        arguments, _ = terminal.run(typed)
        if arguments != expected:
            failed += 1
            print(f"FAILED {SHELL} {typed!r}: received {arguments}, expected {expected}")
    terminal.close()
    shutil.rmtree(home)
    print(f"{len(ROWS) - failed} passed, {failed} failed")
    return 1 if failed else 0


sys.exit(main())
