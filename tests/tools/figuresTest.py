"""Tests tools/figures.py: what tools have written into a page stays as they wrote it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

FIGURES = pathlib.Path(__file__).resolve().parents[2] / "tools/figures.py"
EMPTY = "Above.\n<!-- figures speed -->\n<!-- end of figures -->\nBetween.\n<!-- figures size -->\n<!-- end of figures -->\nBelow.\n"
# Of "fast": the first 16 digits of what `printf 'fast\n' | sha256sum` prints.
FAST = "<!-- figures speed f10264dbe79d60da -->\nfast\n<!-- end of figures -->\n"


class FiguresTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.page = pathlib.Path(directory.name) / "page.md"
        self.page.write_text(EMPTY)

    def run_tool(self, *arguments, text=""):
        done = subprocess.run([sys.executable, FIGURES, *arguments], input=text, cwd=self.page.parent,
                              text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        return done.returncode, done.stdout, done.stderr

    def write(self, name, text):
        return self.run_tool("write", "page.md", name, text=text)

    def test_writes_one_block_and_leaves_the_rest(self):
        self.assertEqual(self.write("speed", "fast"), (0, "", ""))
        self.assertEqual(self.page.read_text(), EMPTY.replace(
            "<!-- figures speed -->\n<!-- end of figures -->\n", FAST))

    def test_replaces_what_was_written_before(self):
        self.write("speed", "slow\nand long\n")
        self.write("speed", "fast\n")
        self.assertEqual(self.page.read_text().count("slow"), 0)
        self.assertEqual(self.page.read_text().count(FAST), 1)

    def test_refuses_a_block_that_the_page_lacks_or_has_twice(self):
        self.assertEqual(self.write("weight", "heavy"),
                         (1, "", "page.md: 0 blocks of figures are called weight\n"))
        self.page.write_text(EMPTY * 2)
        self.assertEqual(self.write("speed", "fast"),
                         (1, "", "page.md: 2 blocks of figures are called speed\n"))

    def test_accepts_what_was_written(self):
        self.write("speed", "fast")
        self.write("size", "small")
        self.assertEqual(self.run_tool("check", "page.md"), (0, "", ""))

    def test_notices_what_was_changed_by_hand(self):
        self.write("speed", "fast")
        self.write("size", "small")
        self.page.write_text(self.page.read_text().replace("fast", "faster"))
        self.assertEqual(self.run_tool("check", "page.md"),
                         (1, "page.md: the figures speed are not as they were written\n", ""))

    def test_notices_a_block_that_was_never_written(self):
        self.write("speed", "fast")
        self.assertEqual(self.run_tool("check", "page.md"),
                         (1, "page.md: the figures size are not as they were written\n", ""))

    def test_notices_a_block_without_an_end(self):
        self.write("speed", "fast")
        self.write("size", "small")
        self.page.write_text(self.page.read_text().replace("small\n<!-- end of figures -->\n", "small\n"))
        self.assertEqual(self.run_tool("check", "page.md"),
                         (1, "page.md: a block of figures does not begin or end\n", ""))

    def test_explains_itself(self):
        code, out, error = self.run_tool("check")
        self.assertEqual((code, out), (2, ""))
        self.assertIn("figures.py write PAGE NAME", error)


if __name__ == "__main__":
    unittest.main()
