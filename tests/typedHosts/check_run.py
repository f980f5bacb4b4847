#!/usr/bin/env python3
"""Runs a host of the typed face where its help goes to a terminal, a pipe, and a file that is full.

    check_run.py HOST
"""

import errno
import fcntl
import os
import pty
import struct
import subprocess
import sys
import termios
import unittest

HOST = ""


def environment(**more):
    kept = {name: value for name, value in os.environ.items() if name not in ("COLUMNS", "NO_COLOR", "TERM")}
    return {**kept, "TERM": "xterm", **more}


def on_terminal(columns, **more):
    """What `host --help` writes to a terminal of that width."""
    master, slave = pty.openpty()
    fcntl.ioctl(slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    # Help fits into the buffer of the terminal. Whoever reads while the host ends may be told that the terminal
    # is closed before the last of the text was seen.
    subprocess.run([HOST, "--help"], stdout=slave, stderr=slave, env=environment(**more), check=True)
    os.close(slave)
    text = b""
    try:
        while piece := os.read(master, 4096):
            text += piece
    except OSError as error:
        if error.errno != errno.EIO:  # all has been read
            raise
    finally:
        os.close(master)
    return text.decode().replace("\r\n", "\n")


PLAIN = """Usage: host [OPTION]... VERB [ARGUMENT]...
Is compiled in many ways.

Verbs:
  print          Prints what it was given.

Options:
  -v, --verbose  Say more.
  -h, --help     Show this help.
      --version  Show the version.

Try 'host help VERB' to read more about a verb.
"""
NARROW = """Usage: host [OPTION]... VERB
       [ARGUMENT]...
Is compiled in many ways.

Verbs:
  print          Prints what it
                 was given.

Options:
  -v, --verbose  Say more.
  -h, --help     Show this help.
      --version  Show the
                 version.

Try 'host help VERB' to read
more about a verb.
"""


def bold(text):
    for heading in ("Usage:", "Verbs:", "Options:"):
        text = text.replace(heading, "\033[1m" + heading + "\033[0m")
    return text


class Run(unittest.TestCase):
    def test_prints_bold_headings_on_a_terminal(self):
        self.assertEqual(on_terminal(80), bold(PLAIN))

    def test_follows_the_width_of_the_terminal(self):
        self.assertEqual(on_terminal(32), bold(NARROW))

    def test_columns_count_more(self):
        self.assertEqual(on_terminal(80, COLUMNS="32"), bold(NARROW))

    def test_has_eighty_columns_on_a_terminal_that_does_not_know_its_own(self):
        self.assertEqual(on_terminal(0), on_terminal(80))

    def test_prints_nothing_bold_where_it_is_not_wanted(self):
        self.assertEqual(on_terminal(80, NO_COLOR="1"), PLAIN)
        self.assertEqual(on_terminal(80, TERM="dumb"), PLAIN)
        self.assertEqual(on_terminal(80, NO_COLOR=""), bold(PLAIN))

    def test_is_plain_in_a_pipe(self):
        result = subprocess.run([HOST, "--help"], capture_output=True, text=True, env=environment(), check=False)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, PLAIN, ""))

    def test_fails_when_help_cannot_be_written(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            result = subprocess.run([HOST, "--help"], stdout=full, stderr=subprocess.PIPE, text=True,
                                    env=environment(), check=False)
        self.assertEqual((result.returncode, result.stderr), (1, "host: cannot write: No space left on device\n"))

    def test_says_errors_on_standard_error(self):
        result = subprocess.run([HOST, "prnt"], capture_output=True, text=True, env=environment(), check=False)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr,
                         "host: unknown verb 'prnt'\nDid you mean 'print'?\nTry 'host --help'.\n")

    def test_answers_a_shell(self):
        result = subprocess.run([HOST, "tarvoption=complete=zsh"], input="host\0print\0--view=\0",
                                capture_output=True, text=True, env=environment(), check=False)
        self.assertEqual(result.stdout,
                         "tarv-complete 1 none\n\n\n--view=all\n--view=all\tEverything.\n")


if __name__ == "__main__":
    HOST = sys.argv.pop(1)
    unittest.main()
