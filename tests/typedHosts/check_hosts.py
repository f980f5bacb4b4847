#!/usr/bin/env python3
"""Compiles host.cpp in the ways that hosts are compiled, and runs each program with the library.

    check_hosts.py GCC CLANG INCLUDE LIBRARY DIRECTORY
"""

import os
import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wnon-virtual-dtor", "-Werror"]
WAYS = [
    ("gcc", ["-std=c++17", "-O2"]),
    ("gcc", ["-std=c++17", "-O0", "-fno-exceptions", "-fno-rtti"]),
    ("gcc", ["-std=c++20", "-O2"]),
    ("gcc", ["-std=c++23", "-O1"]),
    ("clang", ["-std=c++17", "-O2"]),
    ("clang", ["-std=c++20", "-O1", "-fno-exceptions", "-fno-rtti"]),
    ("clang", ["-std=c++2b", "-O0"]),
]
LINES = [
    (["-vv", "print", "--pap=us", "--day=mon", "--where=3:4", "--size=1,2", "--name=b,a,b", "--wait=2s",
      "--limit=4Ki", "--title=", "--view", "x y", "--fast", "p"],
     3, "v2 paper 1 day 1 at 4 sizes 2 names 2 wait 2000 limit 4096 '' 'x y' p fast\n", ""),
    (["print", "p"], 3, "v0 paper 0 day 7 at -1 sizes 0 names 0 wait 20 limit 1024 'none' '' p\n", ""),
    (["print", "--size=1,9001", "p"], 2, "",
     "host: --size=1,9001: '9001' must be from 1 to 9000\nTry 'host print --help'.\n"),
    (["print", "--name=much-too-long", "p"], 2, "",
     "host: --name=much-too-long: must be short\nTry 'host print --help'.\n"),
    (["print", "--where=x", "p"], 2, "", "host: --where=x: is not valid\nTry 'host print --help'.\n"),
    (["--version"], 0, "host 1.0\n", ""),
]


def main():
    gcc, clang, include, library, directory = sys.argv[1:6]
    os.makedirs(directory, exist_ok=True)
    source = pathlib.Path(__file__).with_name("host.cpp")
    environment = {"LD_LIBRARY_PATH": os.path.dirname(library), "PATH": os.environ["PATH"]}
    failures = 0
    for number, (compiler, flags) in enumerate(WAYS):
        program = os.path.join(directory, f"host{number}")
        subprocess.run([gcc if compiler == "gcc" else clang, *flags, *WARNINGS, f"-I{include}", source, library,
                        "-o", program], check=True)
        for line, code, output, errors in LINES:
            result = subprocess.run([program, *line], capture_output=True, text=True, env=environment, check=False)
            if (result.returncode, result.stdout, result.stderr) != (code, output, errors):
                print(f"{compiler} {flags}: {line}: {result}")
                failures += 1
    print(f"{len(WAYS)} programs, {failures} wrong answers.")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
