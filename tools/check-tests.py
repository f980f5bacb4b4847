#!/usr/bin/env python3
"""Fails when a run of ctest left something out.

    ctest --preset PRESET --output-junit RESULTS
    check-tests.py RESULTS [MAY-BE-SKIPPED]

Every suite of GoogleTest must have run tests of its own, and no test may have been skipped that has no
reason in MAY-BE-SKIPPED, whose lines are "NAME | REASON".
"""
import sys
import xml.etree.ElementTree


def read_reasons(path):
    with open(path, encoding="utf-8") as file:
        rows = [row.strip() for row in file if row.strip() and not row.startswith("#")]
    for row in rows:
        if not row.partition(" | ")[2].strip():
            raise ValueError(f"{path}: no reason: {row}")
    return {row.partition(" | ")[0] for row in rows}


def complaints(cases, may_be_skipped):
    names = {case.get("name") for case in cases}
    if not names:
        yield "no tests at all"
    for name in sorted(names):
        suite = name.removesuffix("_lists_tests")
        if suite != name and not any(other.startswith(suite + "/") for other in names):
            yield f"no tests in {suite}"
    for case in cases:
        has_run = case.get("status") in ("run", "fail")
        if not has_run and case.get("name") not in may_be_skipped:
            yield f"skipped: {case.get('name')}"


def main(results, may_be_skipped=None):
    cases = list(xml.etree.ElementTree.parse(results).iter("testcase"))
    found = list(complaints(cases, read_reasons(may_be_skipped) if may_be_skipped else set()))
    for complaint in found:
        print(f"{results}: {complaint}")
    print(f"{len(cases)} tests")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
