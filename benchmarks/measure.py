#!/usr/bin/env python3
"""Runs the benchmark programs of a build and prints the figures as Markdown."""

import argparse
import glob
import math
import os
import re
import subprocess
import sys
import tempfile

EVERYDAY = ("everyday", 24)


def environment(**more):
    """Everything is bound at the start, so that no phase pays for the loader."""
    return {**os.environ, "LC_ALL": "C", "LD_BIND_NOW": "1", **more}


class Program:
    """The benchmark program of one library."""

    def __init__(self, build, name):
        self.name = name
        self.path = os.path.join(build, "benchmarks", "bench-" + name)
        self.counter = os.path.join(build, "benchmarks", "libbench_allocations.so")

    def run(self, mode, workload, size, **more):
        command = [self.path, mode, workload, str(size)]
        return subprocess.run(command, env=environment(**more), check=True, capture_output=True, text=True)

    def answer(self, workload, size):
        return self.run("answer", workload, size).stdout

    def allocations(self, mode, workload, size):
        """Allocations of every phase."""
        lines = self.run(mode, workload, size, LD_PRELOAD=self.counter).stderr.splitlines()
        return {phase: int(count) for phase, count in (line.split() for line in lines)}

    def instructions(self, mode, workload, size):
        """Instructions of every phase, less those of measuring an empty one."""
        with tempfile.TemporaryDirectory() as folder:
            command = ["valgrind", "--tool=callgrind", "--collect-atstart=no",
                       "--callgrind-out-file=" + os.path.join(folder, "out"),
                       self.path, mode, workload, str(size)]
            subprocess.run(command, env=environment(), check=True, capture_output=True)
            counts = dict(dumped_phase(dump) for dump in glob.glob(os.path.join(folder, "out.*")))
        return {phase: count - counts["nothing"] for phase, count in counts.items()}


def dumped_phase(dump):
    """The phase that a callgrind dump is of, and its instructions."""
    with open(dump, encoding="utf-8", errors="replace") as lines:
        text = lines.read()
    phase = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE).group(1)
    return phase, int(re.search(r"^totals: (\d+)$", text, re.MULTILINE).group(1))


def order(phase, costs):
    """The exponent of the growth of a phase between the smallest and the largest size."""
    small, large = min(costs), max(costs)
    return math.log(costs[large][phase] / costs[small][phase]) / math.log(large / small)


def long_command_lines(program):
    """Instructions for 1,000 to 100,000 arguments; the last size is left out where the growth so
    far says that it would take hours."""
    costs = {n: program.instructions("measure", "arguments", n) for n in (10**3, 10**4)}
    if order("parse", costs) < 1.3:
        costs[10**5] = program.instructions("measure", "arguments", 10**5)
    return costs


def check_answers(programs, workloads):
    """Ends the run unless all programs print the same answers as the first one."""
    for workload, size in workloads:
        expected = programs[0].answer(workload, size)
        for program in programs[1:]:
            if program.answer(workload, size) != expected:
                sys.exit(f"{program.name} and {programs[0].name} disagree on {workload} {size}")


def whole(number):
    return f"{number:,.0f}"


def print_table(heading, rows):
    print("| " + " | ".join(heading) + " |")
    print("|" + " --- |" + " ---: |" * (len(heading) - 1))
    for row in rows:
        print("| " + " | ".join(row) + " |")


def everyday_rows(tarv):
    instructions = tarv.instructions("measure-again", *EVERYDAY)
    allocations = tarv.allocations("measure-again", *EVERYDAY)

    def row(label, phases, goal=""):
        return [label, whole(sum(instructions[phase] for phase in phases)),
                whole(sum(allocations[phase] for phase in phases)), goal]

    return [
        row("W1: declare, parse and read", ["declare", "parse", "read"], "125,000; 85,000"),
        row("W1 declare (24 options)", ["declare"], "2, 1 allocations an option"),
        row("W1 parse (20 arguments)", ["parse"], "95, 50 allocations"),
        row("W1 read (24 options)", ["read"]),
        row("W1 release", ["release"]),
        row("W1 again: parse and read", ["again-parse", "again-read"], "65,000; 30,000"),
        row("W1 again: forget (destroy the last result)", ["again-forget"]),
        row("W1 again: parse", ["again-parse"]),
        row("W1 again: read", ["again-read"]),
    ]


def per_argument_rows(tarv):
    costs = long_command_lines(tarv)
    allocations = tarv.allocations("measure", "arguments", 10**4)
    sizes = f"order 1,000 to {max(costs):,}"
    return [
        ["W2 parse, per argument at 10,000", whole(costs[10**4]["parse"] / 10**4),
         f"{allocations['parse'] / 10**4:.2f}", "1,000; 500"],
        ["W2 parse, " + sizes, f"{order('parse', costs):.3f}", "", "1.05"],
        ["W2 read, per argument at 10,000", whole(costs[10**4]["read"] / 10**4),
         f"{allocations['read'] / 10**4:.2f}", ""],
        ["W2 read, " + sizes, f"{order('read', costs):.3f}", "", ""],
    ]


def per_option_rows(tarv):
    costs = {n: tarv.instructions("measure", "options", n) for n in (100, 1000, 3000)}
    allocations = tarv.allocations("measure", "options", 1000)
    return [
        ["W3 parse, per argument at 1,000 options", whole(costs[1000]["parse"] / 100),
         f"{allocations['parse'] / 100:.2f}", "30,000; 10,000"],
        ["W3 parse, order 100 to 3,000 options", f"{order('parse', costs):.3f}", "", "1.1"],
        ["W3 declare, per option at 100", whole(costs[100]["declare"] / 100), "", "1,300"],
        ["W3 declare, per option at 1,000", whole(costs[1000]["declare"] / 1000),
         f"{allocations['declare'] / 1000:.2f}", "1,300; 2, 1 allocations"],
        ["W3 declare, per option at 3,000", whole(costs[3000]["declare"] / 3000), "", "1,300"],
    ]


def help_rows(tarv):
    few = tarv.instructions("measure-help", *EVERYDAY)["help"]
    many = tarv.instructions("measure-help", "options", 500)["help"]
    allocations = tarv.allocations("measure-help", *EVERYDAY)["help"]
    return [
        ["W4 help for 24 options", whole(few), whole(allocations), "123,000; 65,000"],
        ["W4 help, 500 options to 24", f"{many / few:.1f}", "", "22"],
    ]


def report_tarv(build):
    tarv = Program(build, "tarv")
    workloads = [EVERYDAY, ("arguments", 1000), ("options", 10), ("options", 1000)]
    check_answers([Program(build, "handwritten"), tarv], workloads)
    rows = everyday_rows(tarv) + per_argument_rows(tarv) + per_option_rows(tarv) + help_rows(tarv)
    print_table(["tarv", "instructions", "allocations", "at most; better"], rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", required=True, help="the build directory")
    parser.add_argument("--tarv-only", action="store_true", help="measure the library alone")
    arguments = parser.parse_args()
    if arguments.tarv_only:
        report_tarv(arguments.build)
    else:
        sys.exit("only --tarv-only is there yet")


if __name__ == "__main__":
    main()
