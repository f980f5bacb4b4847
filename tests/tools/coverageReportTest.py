"""Tests tools/coverage-report.py on a report of one source, from left-out lines to good reasons."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

REPORT = pathlib.Path(__file__).resolve().parents[2] / "tools/coverage-report.py"

SOURCE = """\
int sign(int number) {
    if (number < 0) {
        return bad;
    }
    if (number > 0) {
        return bad;
    }
    return 0;
}
"""


def line(number, count, *branches):
    return {"line_number": number, "count": count, "gcovr/noncode": False,
            "branches": [{"count": branch} for branch in branches]}


class CoverageReportTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        (self.root / "sign.cpp").write_text(SOURCE)

    def report(self, lines, exceptions, *arguments):
        (self.root / "report.json").write_text(json.dumps({"files": [{"file": "sign.cpp", "lines": lines}]}))
        (self.root / "exceptions.txt").write_text(exceptions)
        done = subprocess.run([sys.executable, REPORT, "report.json", "exceptions.txt", *arguments], cwd=self.root,
                              text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        return done.returncode, done.stdout

    def test_accepts_what_is_reached(self):
        self.assertEqual(self.report([line(1, 3), line(2, 3, 1, 2)], "# nothing\n"),
                         (0, "2 of 2 branches reached, 0 exceptions\n"))

    def test_refuses_a_line_without_a_reason(self):
        self.assertEqual(self.report([line(8, 0)], ""),
                         (1, "sign.cpp:8: not reached, or not on every branch: return 0;\n"
                             "0 of 0 branches reached, 0 exceptions\n"))

    def test_refuses_a_branch_without_a_reason(self):
        self.assertEqual(self.report([line(2, 40, 40, 0)] + [line(5, 40, 20, 20)] * 10, ""),
                         (1, "sign.cpp:2: not reached, or not on every branch: if (number < 0) {\n"
                             "21 of 22 branches reached, 0 exceptions\n"))

    def test_accepts_a_reason(self):
        self.assertEqual(self.report([line(8, 0)], "# why:\nsign.cpp | return 0; | never asked for\n"),
                         (0, "0 of 0 branches reached, 1 exceptions\n"))

    def test_wants_a_reason_for_each_of_two_equal_lines(self):
        lines = [line(3, 0), line(6, 0)]
        reason = "sign.cpp | return bad; | never asked for\n"
        self.assertEqual(self.report(lines, reason),
                         (1, "sign.cpp:3, sign.cpp:6: not reached, or not on every branch, and there is a reason"
                             " for 1 of 2 such lines: return bad;\n0 of 0 branches reached, 1 exceptions\n"))
        self.assertEqual(self.report(lines, reason * 2), (0, "0 of 0 branches reached, 2 exceptions\n"))

    def test_refuses_a_reason_that_is_not_needed(self):
        self.assertEqual(self.report([line(8, 1)], "sign.cpp | return 0; | never asked for\n"),
                         (1, "exceptions.txt: no longer needed: sign.cpp | return 0;\n"
                             "0 of 0 branches reached, 1 exceptions\n"))

    def test_accepts_a_reason_by_chance_whether_the_line_is_reached_or_not(self):
        for count in [0, 1]:
            with self.subTest(count):
                self.assertEqual(self.report([line(8, count)], "sign.cpp | return 0; | by chance: threads\n"),
                                 (0, "0 of 0 branches reached, 1 exceptions\n"))

    def test_refuses_an_empty_reason(self):
        self.assertEqual(self.report([line(8, 0)], "sign.cpp | return 0; |  \n")[0], 1)

    def test_refuses_too_few_branches(self):
        reason = "sign.cpp | if (number < 0) { | never asked for\n"
        self.assertEqual(self.report([line(2, 20, 20, 0)] + [line(5, 2, 1, 1)] * 8, reason),
                         (0, "17 of 18 branches reached, 1 exceptions\n"))
        self.assertEqual(self.report([line(2, 20, 20, 0)] + [line(5, 2, 1, 1)] * 7, reason),
                         (1, "15 of 16 branches reached, 1 exceptions\n"))

    def test_writes_the_figures_into_a_page(self):
        page = self.root / "page.md"
        page.write_text("Before.\n<!-- figures coverage -->\n<!-- end of figures -->\nBehind.\n")
        lines = [line(8, 0)] + [line(2, 20, 20, 0)] + [line(5, 2, 1, 1)] * 10
        reasons = "sign.cpp | return 0; | never asked for\nsign.cpp | if (number < 0) { | never asked for\n"
        said = "Measured: 91 % of the lines and 95 % of the branches, or more.\n"
        self.assertEqual(self.report(lines, reasons, "--page", "page.md"),
                         (1, "21 of 22 branches reached, 2 exceptions\npage.md should say: " + said))
        self.assertEqual(self.report(lines, reasons, "--write", "page.md")[0], 0)
        self.assertRegex(page.read_text(), "^Before.\n<!-- figures coverage [0-9a-f]{16} -->\n" + said
                         + "<!-- end of figures -->\nBehind.\n$")
        self.assertEqual(self.report(lines, reasons, "--page", "page.md"),
                         (0, "21 of 22 branches reached, 2 exceptions\n"))


if __name__ == "__main__":
    unittest.main()
