"""What the programs cost that the typed face is shown with, beside the same written with other libraries."""

import functools
import os
import tempfile

from hosts import EMPTY, compile_command, object_bytes, seconds_to_compile
from programs import ENVIRONMENT, callgrind

ROUNDS = 9

# One command line each, in words that all libraries know.
LINES = {
    "convert": ["--to=webp", "-q", "90", "--width=100,200", "--gamma", "1.5", "-o", "out", "--title=x", "--overwrite",
                "--backup", "--memory=67108864", "--jobs=4", "a.png", "b.png"],
    "vcs": ["--git-dir=x", "log", "-n", "5", "--decorate=full", "--oneline"],
}

# What is compiled to compare with: no program at all, and what the converter does without a command line.
STANDARD_HEADERS = "#include <filesystem>\n#include <string>\n#include <vector>\n"
ALONE = {
    "empty": EMPTY,
    "headers": STANDARD_HEADERS + EMPTY,
    "typed.h": "#include <tarv_3_3/typed.h>\n" + EMPTY,
    "images": '#include "images.h"\nint main() {\n    images::convert(images::Job());\n}\n',
}


class Face:
    """One library, and the programs that are written with it."""

    def __init__(self, build, name):
        self.build = build
        self.name = name

    def has(self, program):
        return os.path.exists(self.path(program))

    def path(self, program):
        return os.path.join(self.build, "benchmarks", f"program-{program}-{self.name}")

    @functools.cache
    def compile_command(self, program):
        return compile_command(self.build, os.path.join("benchmarks", "CMakeFiles", f"program-{program}-{self.name}.dir"))

    def object_bytes(self, program):
        return object_bytes(self.compile_command(program).object)

    @functools.cache
    def instructions(self, program):
        """Instructions in main, of the first and only life in a process."""
        command = [self.path(program), *LINES[program]]
        return sum(callgrind(command, ENVIRONMENT, "--toggle-collect=main").values())


class Compilations:
    """Least processor times of compilations, all of them in turn, so that a busy machine disturbs all alike."""

    def __init__(self, faces):
        self.seconds = {}
        typed = next(face for face in faces if face.name == "typed")
        with tempfile.TemporaryDirectory() as folder:
            sources = {}
            for name, text in ALONE.items():
                source = os.path.join(folder, name.replace(".", "_") + ".cpp")
                with open(source, "w", encoding="utf-8") as file:
                    file.write(text)
                command = typed.compile_command("convert")
                images = os.path.dirname(command.source)
                sources[name] = [*command.words, "-I" + os.path.join(images, "comparison")], source
            for face in faces:
                for program in ("sheets", "convert"):
                    command = face.compile_command(program)
                    sources[program, face.name] = command.words, command.source
            for _ in range(ROUNDS):
                for key, (words, source) in sources.items():
                    taken = seconds_to_compile(words, source)
                    self.seconds[key] = min(taken, self.seconds.get(key, taken))

    def ratio(self, key, to):
        return f"{self.seconds[key] / self.seconds[to]:.2f}"
