#!/usr/bin/env python3
"""Checks and measures the benchmark programs of a build and prints the figures as Markdown."""

import argparse
import json
import os
import subprocess
import sys
import tempfile

from hosts import Host
from faces import LINES, Compilations, Face
from programs import ENVIRONMENT, Program, order

LIBRARIES = ["tarv", "typed", "handwritten", "getopt", "getoptInOrder", "popt", "argtable2", "llvm", "gflags", "abseil", "tclap",
             "boost", "cli11", "cxxopts"]
# What the programs of examples/ are written with.
FACES = ["typed", "cli11", "cxxopts"]
# Programs that differ from another one in their workload alone have no host of their own.
HOSTLESS = {"getoptInOrder"}
PACKAGES = ["libpopt-dev", "libargtable2-dev", "llvm-14-dev", "libgflags-dev", "libabsl-dev", "libtclap-dev",
            "libboost-program-options1.74-dev", "libcli11-dev", "libcxxopts-dev"]

EVERYDAY = ("everyday", 24)
DEFAULTS = ("defaults", 24)
WATCHED = ("watched", 24)
ARGUMENTS = [10, 100, 1000, 10000, 100000]
OPTIONS = [10, 100, 1000, 3000]
NONE = "–"


def whole(number):
    return f"{number:,.0f}"


def check_answers(programs):
    """Ends the run unless all programs print the same answers as the first one."""
    collecting = able(programs, "collects")
    check_answer(programs, *EVERYDAY)
    check_answer(programs, *DEFAULTS)
    check_answer(able(programs, "watches"), *WATCHED)
    check_answer(programs, "options", 1000)
    check_answer(programs, "features", 1000)
    check_answer(programs, "numbered", 1000)
    check_answer(able(programs, "negates"), "switches", 1000)
    check_answer(able(programs, "negates"), "feature-switches", 1000)
    check_answer(collecting, "options", 10)
    check_answer(collecting, "arguments", 1000)
    for program in able(programs, "abbreviates"):
        for whole_names, cut_names in (("options", "cut-options"), ("features", "cut-features")):
            if program.text("answer", whole_names, 1000) != program.text("answer", cut_names, 1000):
                sys.exit(f"{program.title} reads {cut_names} in another way than {whole_names}")


def able(programs, ability):
    return [program for program in programs if ability in program.abilities]


def check_answer(programs, workload, size):
    expected = programs[0].text("answer", workload, size)
    for program in programs:
        if program.text("answer", workload, size) != expected:
            sys.exit(f"{program.title} and {programs[0].title} disagree on {workload} {size}")


def check_help(programs):
    """Ends the run unless every help text has every name."""
    names = [line.split(":")[0] for line in programs[0].text("answer", *EVERYDAY).splitlines()]
    names.remove("input")
    for program in programs:
        text = program.text("help", *EVERYDAY).replace("_", "-") if "helps" in program.abilities else ""
        missing = [name for name in names if name not in text]
        if "helps" in program.abilities and missing:
            sys.exit(f"{program.title} has no help for {', '.join(missing)}")


def check_hosts(hosts):
    expected = hosts[0].output()
    for host in hosts:
        if host.output() != expected:
            sys.exit(f"host-{host.name} prints something else than host-{hosts[0].name}")


class Table:
    """One line for every measure, one column for every library."""

    def __init__(self, libraries):
        self.libraries = libraries

    def head(self, titles):
        print("| | " + " | ".join(titles) + " |")
        print("| --- |" + " ---: |" * len(titles))

    def row(self, label, cell):
        """A line of `cell(library)`, which is a text, or None where a library has no such figure."""
        cells = []
        for library in self.libraries:
            if library is not None:
                progress(f"{label}: {library.name}")
            cells.append(library is not None and cell(library) or NONE)
        print("| " + " | ".join([label, *cells]) + " |", flush=True)


def progress(text):
    if sys.stderr.isatty():
        print("\r\033[K" + text, end="", file=sys.stderr)


def instructions(program, *phases, workload=EVERYDAY, mode="measure-again", per=1):
    counts = program.instructions(mode, *workload)
    return whole(sum(counts[phase] for phase in phases) / per)


def warm(program, *phases, per=1):
    """The figure of a library that has been declared, used and released before in the same process."""
    return instructions(program, *phases, per=per) if "takes-back" in program.abilities else None


def cold(program, *phases):
    """The figure of the first life in a process."""
    return instructions(program, *phases, mode="measure-cold")


def allocations(program, *phases, per=1):
    counts = program.allocations("measure-again", *EVERYDAY)
    return f"{sum(counts[phase] for phase in phases) / per:.2f}".removesuffix(".00")


def everyday_rows(table):
    life = ("declare", "parse", "read", "release")
    table.row("W1, a whole life: declare, parse, read, release", lambda each: warm(each, *life))
    table.row("the same, cold: the first life in a process", lambda each: cold(each, *life))
    table.row("W1: declare, parse, read", lambda each: warm(each, *life[:-1]))
    table.row("the same, cold", lambda each: cold(each, *life[:-1]))
    for phase in life:
        table.row(f"W1, {phase}", lambda each: warm(each, phase))
        table.row(f"W1, {phase}, cold", lambda each: cold(each, phase))
    table.row("W1, declare, per option", lambda each: warm(each, "declare", per=24))
    table.row("W1 again: forget, parse, read",
              lambda each: instructions(each, "again-forget", "again-parse", "again-read"))
    table.row("W1 again: parse, read", lambda each: instructions(each, "again-parse", "again-read"))
    for phase in ("forget", "parse", "read"):
        table.row(f"W1 again, {phase}", lambda each: instructions(each, "again-" + phase))
    table.row("W1 again: parse, read, with a default on all but lists",
              lambda each: instructions(each, "again-parse", "again-read", workload=DEFAULTS))
    table.row("W1 again, parse, with a function called for every value",
              lambda each: instructions(each, "again-parse", workload=WATCHED)
              if "watches" in each.abilities else None)
    table.row("allocations, per declared option", lambda each: allocations(each, "declare", per=24))
    for phase in ("parse", "read"):
        table.row(f"allocations, W1 {phase}", lambda each: allocations(each, phase))


def per_argument(program, size, phase, sizes):
    costs = program.growth("arguments", sizes) if "collects" in program.abilities else {}
    return whole(costs[size][phase] / size) if size in costs else None


def argument_order(program, phase, sizes):
    if "collects" not in program.abilities:
        return None
    costs = program.growth("arguments", sizes)
    largest = "" if max(costs) == max(sizes) else f" (to {max(costs):,})"
    return f"{order(costs, phase, 1000):.2f}" + largest


def argument_rows(table, sizes, keeping):
    for size in sizes:
        table.row(f"W2, {size:,} arguments: parse, per argument",
                  lambda each: per_argument(each, size, "parse", sizes))
    table.row("W2, 10,000 arguments: keeping alone, per argument",
              lambda each: per_argument(keeping, 10000, "parse", [10000]) if each.name == "tarv" else None)
    table.row("W2, order of parse, 1,000 to 100,000 arguments", lambda each: argument_order(each, "parse", sizes))
    table.row("W2, 10,000 arguments: read, per argument", lambda each: per_argument(each, 10000, "read", sizes))
    table.row("W2, order of read", lambda each: argument_order(each, "read", sizes))


def option_costs(program, sizes):
    """Ten options receive a hundred arguments only where an option keeps more than one value."""
    collects = "collects" in program.abilities
    return program.growth("options", sizes if collects else [size for size in sizes if size >= 100])


def large_table(program, workload, ability=None):
    """Instructions an argument, of a hundred for a table of 1,000 options."""
    if ability is not None and ability not in program.abilities:
        return None
    return whole(program.instructions("measure", workload, 1000)["parse"] / 100)


def per_option(program, size, phase, units, sizes):
    costs = option_costs(program, sizes)
    return whole(costs[size][phase] / units) if size in costs else None


def option_rows(table, sizes):
    for size in sizes:
        table.row(f"W3, {size:,} options: parse, per argument",
                  lambda each: per_option(each, size, "parse", 100, sizes))
    for label, workload, ability in (
            ("names \"feature-…\"", "features", None),
            ("names \"feature-0000\" to \"feature-0999\"", "numbered", None),
            ("switches, each negated", "switches", "negates"),
            ("switches \"feature-…\", each negated", "feature-switches", "negates"),
            ("names without their last letter", "cut-options", "abbreviates"),
            ("names \"feature-…\" without their last letter", "cut-features", "abbreviates")):
        table.row(f"W3, 1,000 options, {label}: parse, per argument",
                  lambda each: large_table(each, workload, ability))
    table.row("W3, order of parse, 100 to 3,000 options",
              lambda each: f"{order(option_costs(each, sizes), 'parse', 100):.2f}")
    for size in sizes:
        table.row(f"W3, {size:,} options: declare, per option",
                  lambda each: per_option(each, size, "declare", size, sizes))


def help_instructions(program, workload, size):
    return program.instructions("measure-help", workload, size)["help"]


def help_ratio(program):
    return f"{help_instructions(program, 'options', 500) / help_instructions(program, *EVERYDAY):.1f}"


def help_rows(table):
    table.row("W4, help for 24 options",
              lambda each: whole(help_instructions(each, *EVERYDAY)) if "helps" in each.abilities else None)
    table.row("W4, help for 500 options",
              lambda each: whole(help_instructions(each, "options", 500)) if "helps" in each.abilities else None)
    table.row("W4, 500 options to 24", lambda each: help_ratio(each) if "helps" in each.abilities else None)


def compilation_rows(table):
    table.row("W5, compile time of its headers to that of an empty file; spread", lambda each: each.includes_ratio())
    table.row("W5, compile time of the host to that of an empty file; spread", lambda each: each.source_ratio())


def host_rows(table):
    table.row("W5, object of the host, bytes of code and data", lambda each: whole(each.object_bytes()))
    table.row("W5, program, stripped, bytes", lambda each: whole(each.program_bytes()))
    table.row("W5, needs the C++ library", lambda each: "yes" if each.needs_cxx else "no")
    table.row("W5, shared libraries, stripped, bytes", lambda each: whole(each.library_bytes()))
    table.row("W5, relocations of program and libraries", lambda each: whole(each.relocations()))
    table.row("W5, process beyond an empty one, bound at the start",
              lambda each: whole(each.process_instructions(bound=True)))
    table.row("W5, process beyond an empty one, bound lazily",
              lambda each: whole(each.process_instructions(bound=False)))
    table.row("the same with the C++ library linked first",
              lambda each: whole(each.process_instructions(bound=False, cxx_first=True)) if each.needs_cxx else None)
    table.row("W5, memory of the process beyond an empty one, KB", lambda each: whole(each.process_kilobytes()))


def measured_times(build):
    """Median processor time of every benchmark, in nanoseconds."""
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "times.json")
        subprocess.run([os.path.join(build, "benchmarks", "bench-times"), "--benchmark_out=" + out,
                        "--benchmark_out_format=json", "--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                        "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true"],
                       env=ENVIRONMENT, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with open(out, encoding="utf-8") as results:
            benchmarks = json.load(results)["benchmarks"]
    return {each["run_name"]: each["cpu_time"] for each in benchmarks if each["aggregate_name"] == "median"}


def time_rows(table, times):
    def relative(measure, program):
        own = times.get(f"{measure}/{program.title}")
        if own is None:
            return None
        if program.name == "tarv":
            return f"{own / 1000:,.1f} µs"
        return f"{own / times[measure + '/tarv']:.3g}"

    labels = {"W1": "W1, a whole life", "W1 again": "W1 again: forget, parse, read",
              "W2": "W2, 10,000 arguments: parse", "W3": "W3, 1,000 options: parse 100 arguments",
              "W4": "W4, help for 24 options"}
    for measure, label in labels.items():
        table.row(f"time, {label}; others relative to tarv", lambda each: relative(measure, each))


def first_line(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()[0]


def print_circumstances(build):
    with open("/proc/cpuinfo", encoding="utf-8") as lines:
        processor = next(line.split(":")[1].strip() for line in lines if line.startswith("model name"))
    here = os.path.dirname(os.path.abspath(__file__))
    commit = first_line("git", "-C", here, "rev-parse", "--short", "HEAD")
    changed = subprocess.run(["git", "-C", here, "diff", "--quiet", "HEAD"], check=False).returncode
    print(f"Machine: {processor}. Compiler: {first_line('g++', '--version')}. "
          f"Commit: {commit}{', changed' if changed else ''}.")
    versions = [first_line("dpkg-query", "--show", "--showformat=${Package} ${Version}\n", package)
                for package in PACKAGES]
    print(f"Packages: {', '.join(versions)}.\n")


def measure_all(build, data):
    programs = [Program(build, name) for name in LIBRARIES]
    keeping = Program(build, "keeping")
    hosts = [None if name in HOSTLESS else Host(build, name) for name in LIBRARIES]
    check_answers([*programs, keeping])
    check_help(programs)
    check_hosts([host for host in hosts if host is not None])
    print_circumstances(build)
    table = Table(programs)
    table.head([program.title for program in programs])
    everyday_rows(table)
    argument_rows(table, ARGUMENTS, keeping)
    option_rows(table, OPTIONS)
    help_rows(table)
    compilation_rows(Table(hosts))
    host_rows(Table(hosts))
    time_rows(table, measured_times(build))
    if data:
        write_data(programs, data)


def write_data(programs, folder):
    """The figures behind the plot, as tables that gnuplot reads."""
    os.makedirs(folder, exist_ok=True)
    phases = ("declare", "parse", "read", "release")
    counts = {each.title: each.instructions("measure-again", *EVERYDAY) for each in able(programs, "takes-back")}
    costs = {each.title: each.growth("arguments", ARGUMENTS) for each in able(programs, "collects")}
    everyday = [([counts[title][phase] for phase in phases], title) for title in counts]
    everyday.sort(key=lambda bar: sum(bar[0]))
    with open(os.path.join(folder, "everyday.tsv"), "w", encoding="utf-8") as file:
        file.writelines("\t".join([title, *map(str, figures)]) + "\n" for figures, title in everyday)
    blocks = ["\n".join([title, *(f"{size}\t{at['parse'] / size:.1f}" for size, at in of.items())])
              for title, of in costs.items()]
    with open(os.path.join(folder, "arguments.tsv"), "w", encoding="utf-8") as file:
        file.write("\n\n\n".join(blocks) + "\n")


def measure_tarv(build):
    programs = [Program(build, "tarv"), Program(build, "typed")]
    keeping = Program(build, "keeping")
    check_answers([Program(build, "handwritten"), keeping, *programs])
    table = Table(programs)
    table.head([program.title for program in programs])
    everyday_rows(table)
    argument_rows(table, [1000, 10000, 100000], keeping)
    option_rows(table, [100, 1000, 3000])
    help_rows(table)
    host_rows(Table([Host(build, program.name) for program in programs]))


def measure_faces(build):
    faces = [Face(build, name) for name in FACES]
    programs = {"sheets": "the README's program", "convert": "the converter", "vcs": "the tool with verbs"}
    cli11 = faces[FACES.index("cli11")]
    table = Table(faces)
    table.head(["tarv typed", "CLI11", "cxxopts"])
    times = Compilations(faces)
    table.row("compile time of the README's program, to that of an empty file",
              lambda each: times.ratio(("sheets", each.name), "empty"))
    table.row("the same, to that of a file that includes `typed.h` alone",
              lambda each: times.ratio(("sheets", each.name), "typed.h") if each.name == "typed" else None)
    table.row("the same, CLI11's to its own", lambda each: times.ratio(("sheets", "cli11"), ("sheets", each.name)))
    table.row("compile time of the converter, to that of its three standard headers",
              lambda each: times.ratio(("convert", each.name), "headers"))
    table.row("the same, to that of what it does, without a command line",
              lambda each: times.ratio(("convert", each.name), "images"))
    for name, title in programs.items():
        table.row(f"object of {title}, bytes of code and data",
                  lambda each: whole(each.object_bytes(name)) if each.has(name) else None)
    for name in LINES:
        title = programs[name]
        table.row(f"instructions in `main` of {title}",
                  lambda each: whole(each.instructions(name)) if each.has(name) else None)
        table.row("the same, to CLI11's",
                  lambda each: f"{each.instructions(name) / cli11.instructions(name):.2f}" if each.has(name) else None)
    plain, typed = (Program(build, name).instructions("measure-again", *EVERYDAY) for name in ("tarv", "typed"))
    life = ("declare", "parse", "read")
    table.row("W1: declare, parse, read, to the plain interface's",
              lambda each: f"{sum(typed[phase] for phase in life) / sum(plain[phase] for phase in life):.2f}"
              if each.name == "typed" else None)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", required=True, help="the build directory")
    parser.add_argument("--tarv-only", action="store_true", help="measure the library alone, without compilations and times")
    parser.add_argument("--faces", action="store_true", help="measure the programs of examples/ alone")
    parser.add_argument("--data", help="a folder for the figures that plot.gp draws")
    arguments = parser.parse_args()
    if arguments.tarv_only:
        measure_tarv(arguments.build)
    elif arguments.faces:
        measure_faces(arguments.build)
    else:
        measure_all(arguments.build, arguments.data)


if __name__ == "__main__":
    main()
