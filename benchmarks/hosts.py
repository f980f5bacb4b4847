"""What a library costs the small host programs: their compilation, sizes and whole processes."""

import functools
import json
import os
import re
import resource
import shlex
import statistics
import subprocess
import tempfile

from programs import callgrind

RUNS = 11


class Host:
    """The small host program of one library, beside the empty program `empty`."""

    def __init__(self, build, name, empty=None):
        self.build = build
        self.name = name
        self.empty = empty
        self.path = os.path.join(build, "benchmarks", "host-" + name)
        self.object = os.path.join(build, "benchmarks", "CMakeFiles", f"host-{name}.dir", "hosts", name + ".cpp.o")

    @functools.cached_property
    def arguments(self):
        """One command line in the words of each library."""
        arguments = ["--verbose", "--jobs=8", "--output-file", "out.o", "--scale", "0.5",
                     "--include-path=include,/usr/include", "main.cpp", "help.cpp"]
        if self.name == "abseil":
            return [argument.replace("output-file", "output_file").replace("include-path", "include_path")
                    for argument in arguments]
        if self.name == "tclap":
            return [part for argument in arguments for part in argument.split("=")]
        return arguments

    def output(self):
        return subprocess.run([self.path, *self.arguments], check=True, capture_output=True, text=True).stdout

    def compile_command(self, output):
        """The compiler's own command, without a launcher in front of it."""
        with open(os.path.join(self.build, "compile_commands.json"), encoding="utf-8") as commands:
            entry = next(each for each in json.load(commands) if each["file"].endswith(f"/hosts/{self.name}.cpp"))
        words = shlex.split(entry["command"])
        words = words[next(i for i, word in enumerate(words) if word.endswith("++")):]
        words[words.index("-o") + 1] = output
        return words

    def compile_seconds(self):
        """Processor time of one compilation."""
        with tempfile.TemporaryDirectory() as folder:
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            subprocess.run(self.compile_command(os.path.join(folder, "host.o")), check=True, cwd=self.build)
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
        return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime

    def compile_ratio(self):
        """Time to compile, in turn with the empty program; the medians."""
        pairs = [(self.compile_seconds(), self.empty.compile_seconds()) for _ in range(RUNS)]
        return statistics.median(mine for mine, _ in pairs) / statistics.median(other for _, other in pairs)

    def object_bytes(self):
        """Code and data of the object."""
        table = subprocess.run(["size", self.object], check=True, capture_output=True, text=True).stdout
        return sum(int(bytes_) for bytes_ in table.splitlines()[1].split()[:3])

    def program_bytes(self):
        return stripped_bytes(self.path)

    @functools.cached_property
    def libraries(self):
        """The shared libraries that it needs and the empty program does not."""
        needed = shared_libraries(self.path)
        return sorted(needed - shared_libraries(self.empty.path))

    def library_bytes(self):
        return sum(stripped_bytes(library) for library in self.libraries)

    def relocations(self):
        """Relocations of the program and of its libraries, beyond those of the empty program."""
        own = sum(relocations(file) for file in [self.path, *self.libraries])
        return own - relocations(self.empty.path)

    def process_instructions(self, bound):
        """Instructions of a whole process, the loader's included, beyond those of the empty one."""
        return self.own_instructions(bound) - self.empty.own_instructions(bound)

    @functools.cache
    def own_instructions(self, bound):
        environment = {**os.environ, "LC_ALL": "C"}
        environment.pop("LD_BIND_NOW", None)
        if bound:
            environment["LD_BIND_NOW"] = "1"
        arguments = self.arguments if self.empty else []
        return sum(callgrind([self.path, *arguments], environment).values())

    def process_kilobytes(self):
        """Greatest resident memory of a process beyond that of the empty one; the medians."""
        return self.own_kilobytes() - self.empty.own_kilobytes()

    @functools.cache
    def own_kilobytes(self):
        arguments = self.arguments if self.empty else []
        command = ["/usr/bin/time", "-f", "%M", self.path, *arguments]
        return statistics.median(
            int(subprocess.run(command, check=True, capture_output=True, text=True).stderr) for _ in range(RUNS))


def stripped_bytes(file):
    with tempfile.TemporaryDirectory() as folder:
        stripped = os.path.join(folder, "stripped")
        subprocess.run(["strip", "-o", stripped, os.path.realpath(file)], check=True)
        return os.path.getsize(stripped)


def shared_libraries(program):
    listed = subprocess.run(["ldd", program], check=True, capture_output=True, text=True).stdout
    return set(re.findall(r"=> (/\S+)", listed))


def relocations(file):
    listed = subprocess.run(["readelf", "-rW", file], check=True, capture_output=True, text=True).stdout
    return len(re.findall(r"\bR_X86_64_", listed))
