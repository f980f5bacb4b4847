"""Tests tools/check-tests.py on results as ctest writes them."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parents[2] / "tools/check-tests.py"


class CheckTestsTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.results = pathlib.Path(directory.name) / "results.xml"
        self.reasons = pathlib.Path(directory.name) / "reasons"
        self.reasons.write_text("# Not everybody may do everything.\napi/B | needs a superuser\n")

    def check(self, *cases):
        lines = [f'<testcase name="{name}" classname="{name}" time="0" status="{status}"/>' for name, status in cases]
        self.results.write_text(f'<?xml version="1.0"?>\n<testsuite name="x">{"".join(lines)}</testsuite>\n')
        outcome = subprocess.run([sys.executable, CHECK, self.results, self.reasons], capture_output=True, text=True)
        return outcome.returncode, outcome.stdout.replace(f"{self.results}: ", "")

    def test_accepts_tests_that_all_ran(self):
        self.assertEqual(self.check(("api/A", "run"), ("api_lists_tests", "run"), ("floors", "run")), (0, "3 tests\n"))

    def test_rejects_a_run_without_tests(self):
        self.assertEqual(self.check(), (1, "no tests at all\n0 tests\n"))

    def test_rejects_a_suite_without_tests(self):
        self.assertEqual(self.check(("api/A", "run"), ("api_lists_tests", "run"), ("help_lists_tests", "run")),
                         (1, "no tests in help\n3 tests\n"))

    def test_rejects_a_test_that_was_skipped_and_has_no_reason(self):
        self.assertEqual(self.check(("api/A", "notrun"), ("api/B", "notrun"), ("api/C", "disabled")),
                         (1, "skipped: api/A\nskipped: api/C\n3 tests\n"))

    def test_leaves_failures_to_ctest(self):
        self.assertEqual(self.check(("api/A", "fail")), (0, "1 tests\n"))

    def test_refuses_a_list_without_reasons(self):
        self.reasons.write_text("api/B\n")
        self.assertEqual(self.check(("api/B", "notrun"))[0], 1)


if __name__ == "__main__":
    unittest.main()
