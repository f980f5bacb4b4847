#!/usr/bin/env python3
"""Says what the tests do not reach, and why.

    coverage-report.py GCOVR-JSON EXCEPTIONS [--page PAGE | --write PAGE]

--write puts the figures into the block "coverage" of PAGE; --page ends with 1 when PAGE has others.

Ends with 1 when a line or branch that is not reached has no reason in EXCEPTIONS, when a reason is
there for one that is reached or gone, or when fewer than 93 % of the branches are reached. A reason
is "FILE | SOURCE LINE | REASON", whatever the number of the line, and counts for one line: where equal
lines are not reached, each has its own. A reason that begins with "by chance" may stand for a line that
is reached in some runs, as where two threads meet.
"""
import collections
import json
import sys

import figures

LEAST_BRANCHES = 0.94


def missed(report):
    for file in report["files"]:
        with open(file["file"], encoding="utf-8") as source:
            texts = source.read().splitlines()
        for line in file["lines"]:
            if line.get("gcovr/noncode"):
                continue
            branches = [branch["count"] for branch in line["branches"]]
            if line["count"] == 0 or 0 in branches:
                yield (file["file"], texts[line["line_number"] - 1].strip()), line["line_number"]


def read_reasons(path):
    with open(path, encoding="utf-8") as file:
        rows = [row.rstrip("\n") for row in file if row.strip() and not row.startswith("#")]
    reasons = collections.Counter()
    by_chance = set()
    for row in rows:
        first, rest = row.split(" | ", 1)
        text, reason = rest.rsplit(" | ", 1)
        if not reason.strip():
            raise ValueError(f"{path}: no reason: {row}")
        reasons[first, text] += 1
        if reason.startswith("by chance"):
            by_chance.add((first, text))
    return reasons, by_chance


def unexplained(report, reasons, by_chance, exceptions_path):
    """Prints what is not reached and has no reason, and the reasons that nothing needs. Whether there are any."""
    numbers = collections.defaultdict(list)
    for key, number in missed(report):
        numbers[key].append(number)
    wrong = False
    for (file, text), lines in sorted(numbers.items()):
        given = reasons[file, text]
        if len(lines) > given:
            places = ", ".join(f"{file}:{number}" for number in lines)
            few = f", and there is a reason for {given} of {len(lines)} such lines" if given else ""
            print(f"{places}: not reached, or not on every branch{few}: {text}")
            wrong = True
    for (file, text), given in sorted(reasons.items()):
        if given > len(numbers[file, text]) and (file, text) not in by_chance:
            print(f"{exceptions_path}: no longer needed: {file} | {text}")
            wrong = True
    return wrong


def figures_text(line_counts, branch_counts):
    """Rounded down to whole percents, which stay the same from run to run."""
    def percent(counts):
        return 100 * sum(count > 0 for count in counts) // max(len(counts), 1)

    return f"Measured: {percent(line_counts)} % of the lines and {percent(branch_counts)} % of the branches, or more.\n"


def main(report_path, exceptions_path, option=None, page=None):
    with open(report_path, encoding="utf-8") as file:
        report = json.load(file)
    reasons, by_chance = read_reasons(exceptions_path)
    wrong = unexplained(report, reasons, by_chance, exceptions_path)

    lines = [line for file in report["files"] for line in file["lines"] if not line.get("gcovr/noncode")]
    counts = [branch["count"] for line in lines for branch in line["branches"]]
    reached = sum(count > 0 for count in counts)
    print(f"{reached} of {len(counts)} branches reached, {reasons.total()} exceptions")

    text = figures_text([line["count"] for line in lines], counts)
    if option == "--write":
        figures.write(page, "coverage", text)
    elif option == "--page" and figures.read(page, "coverage") != text:
        print(f"{page} should say: {text}", end="")
        wrong = True
    return 1 if wrong or reached < LEAST_BRANCHES * len(counts) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
