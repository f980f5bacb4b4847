#!/usr/bin/env python3
"""Finds what costs more than in proportion to the number of arguments, values, names or declarations.

    check_growth.py PROGRAM [NAME...]

PROGRAM does the thing that is named so many times. Instructions are counted, which no other work on the machine
changes. When the number doubles, what is added doubles as well; where it is the square that grows, what is
added becomes four times as much.
"""

import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

COUNTS = (1000, 2000, 4000)
BAR = 2.75
SQUARE = "compareEveryPair"


def instructions(program, name, count):
    result = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, name, str(count)],
                            capture_output=True, text=True, check=False)
    collected = re.search(r"Collected : (\d+)", result.stderr)
    if result.returncode != 0 or collected is None:
        sys.exit(f"{name} {count} failed:\n{result.stdout}{result.stderr}")
    return int(collected.group(1))


def growth(program, name):
    small, middle, large = (instructions(program, name, count) for count in COUNTS)
    return (large - middle) / (middle - small), (large - middle) / (COUNTS[2] - COUNTS[1])


def main():
    program, *names = sys.argv[1:]
    names = names or subprocess.run([program], capture_output=True, text=True, check=True).stdout.split()
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        factors = dict(zip(names, pool.map(lambda name: growth(program, name), names)))
    for name, (factor, each) in factors.items():
        print(f"{name}: {factor:.2f} times, {each:.0f} instructions each")
    wrong = [name for name, (factor, _) in factors.items() if (factor > BAR) != (name == SQUARE)]
    if wrong:
        sys.exit(f"Not as expected: {', '.join(wrong)}")


if __name__ == "__main__":
    main()
