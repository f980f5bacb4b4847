"""The programs of a build, and how their costs are counted."""

import functools
import glob
import math
import os
import re
import subprocess
import tempfile

# Everything is bound at the start, so that no phase pays for the loader.
ENVIRONMENT = {**os.environ, "LC_ALL": "C", "LD_BIND_NOW": "1"}

# A run of more instructions than this would take many minutes under callgrind.
MOST_INSTRUCTIONS = 6e9


class Program:
    """The benchmark program of one library. Figures are counted once and kept."""

    def __init__(self, build, name):
        self.path = os.path.join(build, "benchmarks", "bench-" + name)
        self.counter = os.path.join(build, "benchmarks", "libbench_allocations.so")
        self.name = name
        self.title, *self.abilities = self.run("about", "everyday", 24).stdout.splitlines()

    def run(self, mode, workload, size, **environment):
        command = [self.path, mode, workload, str(size)]
        return subprocess.run(command, env={**ENVIRONMENT, **environment}, check=True,
                              capture_output=True, text=True)

    def text(self, mode, workload, size):
        return self.run(mode, workload, size).stdout

    @functools.cache
    def allocations(self, mode, workload, size):
        """Allocations of every phase."""
        lines = self.run(mode, workload, size, LD_PRELOAD=self.counter).stderr.splitlines()
        return {phase: int(count) for phase, count in (line.split() for line in lines)}

    @functools.cache
    def instructions(self, mode, workload, size):
        """Instructions of every phase, less those of measuring an empty one."""
        counts = callgrind([self.path, mode, workload, str(size)], ENVIRONMENT, "--collect-atstart=no")
        return {phase: count - counts["nothing"] for phase, count in counts.items()}

    def growth(self, workload, sizes):
        """Instructions for the sizes, up to the first one that would take too long."""
        costs = {}
        for size in sizes:
            if len(costs) > 1 and predicted(costs, size) > MOST_INSTRUCTIONS:
                break
            costs[size] = self.instructions("measure", workload, size)
        return costs


def callgrind(command, environment, *options):
    """Instructions of every phase that the command dumps; "end" is what follows the last dump."""
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "out")
        subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=" + out, *options, *command],
                       env=environment, check=True, capture_output=True)
        return dict(dumped_phase(dump) for dump in glob.glob(out + "*"))


def dumped_phase(dump):
    """The phase that a callgrind dump is of, and its instructions."""
    with open(dump, encoding="utf-8", errors="replace") as lines:
        text = lines.read()
    phase = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
    total = re.search(r"^totals: (\d+)$", text, re.MULTILINE)
    return phase.group(1) if phase else "end", int(total.group(1)) if total else 0


def predicted(costs, size):
    """The cost of a further size, if declaring and parsing go on as between the two before it."""
    before, last = sorted(costs)[-2:]
    total = 0
    for phase in ("declare", "parse"):
        rise = math.log(costs[last][phase] / costs[before][phase]) / math.log(last / before)
        total += costs[last][phase] * (size / last) ** rise
    return total


def order(costs, phase, smallest):
    """The exponent of the growth of a phase between `smallest` and the largest size there is."""
    largest = max(costs)
    return math.log(costs[largest][phase] / costs[smallest][phase]) / math.log(largest / smallest)
