#!/usr/bin/env python3
"""Says what the tests do not reach, and why.

    coverage-report.py GCOVR-JSON EXCEPTIONS

Ends with 1 when a line or branch that is not reached has no reason in EXCEPTIONS, when a reason is
there for one that is reached or gone, or when fewer than 95 % of the branches are reached. A reason
is "FILE | SOURCE LINE | REASON".
"""
import json
import sys

LEAST_BRANCHES = 0.95


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
    reasons = {}
    for row in rows:
        first, rest = row.split(" | ", 1)
        text, reason = rest.rsplit(" | ", 1)
        reasons[first, text] = reason
    return reasons


def main(report_path, exceptions_path):
    with open(report_path, encoding="utf-8") as file:
        report = json.load(file)
    reasons = read_reasons(exceptions_path)
    wrong = False
    unused = set(reasons)
    for key, number in missed(report):
        if key in reasons:
            unused.discard(key)
        else:
            print(f"{key[0]}:{number}: not reached, or not on every branch: {key[1]}")
            wrong = True
    for file, text in sorted(unused):
        print(f"{exceptions_path}: no longer needed: {file} | {text}")
        wrong = True

    counts = [branch["count"] for file in report["files"] for line in file["lines"]
              if not line.get("gcovr/noncode") for branch in line["branches"]]
    reached = sum(count > 0 for count in counts)
    print(f"{reached} of {len(counts)} branches reached, {len(reasons)} exceptions")
    return 1 if wrong or reached < LEAST_BRANCHES * len(counts) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
