"""What a library costs the small host programs: their compilation, sizes and whole processes."""

import collections
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

EMPTY = "int main() {}\n"
SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "hosts", "{}.cpp")
STANDARD = re.compile(r"<(cstdio|cstdlib|cstring|string|vector)>")

RUNS = 11
COMPILATIONS = 9


Command = collections.namedtuple("Command", ["words", "source", "object"])


def compile_command(build, folder):
    """How the one source file of a target is compiled whose objects are in `folder`: the compiler's own words,
    without a launcher in front of them and without files."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as commands:
        entry = next(each for each in json.load(commands) if f" -o {folder}/" in each["command"])
    words = shlex.split(entry["command"])
    words = words[next(i for i, word in enumerate(words) if word.endswith("++")):]
    return Command(words[:words.index("-o")], entry["file"], os.path.join(build, words[words.index("-o") + 1]))


def seconds_to_compile(words, source):
    """Processor time of one compilation."""
    with tempfile.TemporaryDirectory() as folder:
        command = [*words, "-c", source, "-o", os.path.join(folder, "program.o")]
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(command, check=True)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def object_bytes(path):
    """Code and data of an object."""
    table = subprocess.run(["size", path], check=True, capture_output=True, text=True).stdout
    return sum(int(bytes_) for bytes_ in table.splitlines()[1].split()[:3])


class Host:
    """The small host program of one library."""

    def __init__(self, build, name):
        self.build = build
        self.name = name
        self.path = os.path.join(build, "benchmarks", "host-" + name)

    @functools.cached_property
    def needs_cxx(self):
        """Whether it loads the C++ library, for itself or for a library that it links."""
        return any("libstdc++" in library for library in shared_libraries(self.path))

    @functools.cached_property
    def empty(self):
        """The empty program that it is compared with, which loads the C++ library if it does."""
        return os.path.join(self.build, "benchmarks", "host-empty-cxx" if self.needs_cxx else "host-empty")

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

    @functools.cached_property
    def compile_command(self):
        return compile_command(self.build, os.path.join("benchmarks", "CMakeFiles", f"host-{self.name}.dir"))

    def includes(self):
        """The lines of its source that include the library's headers; its other ones are standard."""
        with open(SOURCE.format(self.name), encoding="utf-8") as lines:
            return "".join(line for line in lines if line.startswith("#include") and not STANDARD.search(line))

    def text(self):
        with open(SOURCE.format(self.name), encoding="utf-8") as source:
            return source.read()

    def compile_seconds(self, text):
        """Processor time of one compilation of `text` as this host is compiled."""
        with tempfile.TemporaryDirectory() as folder:
            source = os.path.join(folder, "host.cpp")
            with open(source, "w", encoding="utf-8") as file:
                file.write(text)
            return seconds_to_compile(self.compile_command.words, source)

    def compile_ratio(self, text):
        """Time to compile `text`, in turn with an empty program: the ratio of the least times, which a busy
        machine disturbs least, and by how much the greatest time for `text` was above its least."""
        pairs = [(self.compile_seconds(text), self.compile_seconds(EMPTY)) for _ in range(COMPILATIONS)]
        mine, empty = zip(*pairs)
        return f"{min(mine) / min(empty):.2f}; {max(mine) / min(mine) - 1:.0%}"

    def includes_ratio(self):
        return self.compile_ratio(self.includes() + EMPTY)

    def source_ratio(self):
        return self.compile_ratio(self.text())

    def object_bytes(self):
        return object_bytes(self.compile_command.object)

    def program_bytes(self):
        return stripped_bytes(self.path)

    @functools.cached_property
    def libraries(self):
        """The shared libraries that it needs and the empty program does not."""
        return sorted(shared_libraries(self.path) - shared_libraries(self.empty))

    def library_bytes(self):
        return sum(stripped_bytes(library) for library in self.libraries)

    def relocations(self):
        """Relocations of the program and of its libraries, beyond those of the empty program."""
        return sum(relocations(file) for file in [self.path, *self.libraries]) - relocations(self.empty)

    def process_instructions(self, bound, cxx_first=False):
        """Instructions of a whole process, the loader's included, beyond those of the empty one."""
        path = self.path + "-cxx-first" if cxx_first else self.path
        return instructions([path, *self.arguments], bound) - instructions([self.empty], bound)

    def process_kilobytes(self):
        """Greatest resident memory of a process beyond that of the empty one; the medians."""
        return resident_kilobytes([self.path, *self.arguments]) - resident_kilobytes([self.empty])


def instructions(command, bound):
    environment = {**os.environ, "LC_ALL": "C"}
    environment.pop("LD_BIND_NOW", None)
    if bound:
        environment["LD_BIND_NOW"] = "1"
    return sum(callgrind(command, environment).values())


def resident_kilobytes(command):
    # Measured from a small process: a child's figure includes what it was forked from.
    timed = ["/usr/bin/time", "-f", "%M", *command]
    return statistics.median(
        int(subprocess.run(timed, check=True, capture_output=True, text=True).stderr) for _ in range(RUNS))


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
