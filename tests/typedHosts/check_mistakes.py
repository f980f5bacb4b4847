#!/usr/bin/env python3
"""Compiles mistakes.cpp once for every mistake in it, and holds what the compiler says against what is written
behind the mistake; without a mistake it must compile.

    check_mistakes.py COMPILER INCLUDE
"""

import pathlib
import re
import subprocess
import sys


def compile_with(compiler, include, source, mistake):
    # A bound is only looked at where constants are folded.
    return subprocess.run(
        [compiler, "-std=c++17", "-O1", "-Werror", "-Wall", "-Wextra", "-Wno-unused", f"-I{include}",
         f"-DMISTAKE={mistake}", "-c", source, "-o", "/dev/null"],
        capture_output=True, text=True, check=False)


def main():
    compiler, include = sys.argv[1:3]
    source = pathlib.Path(__file__).with_name("mistakes.cpp")
    found = re.findall(r"MISTAKE == (\d+) // (.*)", source.read_text())
    wrong = []
    if compile_with(compiler, include, source, 0).returncode != 0:
        wrong.append("it does not compile without a mistake")
    for number, message in found:
        result = compile_with(compiler, include, source, number)
        if result.returncode == 0:
            wrong.append(f"mistake {number} compiles")
        elif message not in result.stderr:
            wrong.append(f"mistake {number} does not say \"{message}\":\n{result.stderr[:2000]}")
    print("\n".join(wrong) or f"{len(found)} mistakes, none compiles.")
    return 1 if wrong or len(found) < 12 else 0


if __name__ == "__main__":
    sys.exit(main())
