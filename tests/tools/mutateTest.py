"""Tests tools/mutate on a library of one function and a test program that forgets something."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

MUTATE = pathlib.Path(__file__).resolve().parents[2] / "tools/mutate"

SOURCE = """\
#include <vector>

// a < b in a comment, and below "1 + 1" in a text
bool isSmall(const std::vector<int>& list) {
    return list.size() < 3;
}

constexpr std::size_t usualSize = 4;

void makeRoom(std::vector<int>& list) {
    list.reserve(2 * usualSize);
}

const char* describe(int& calls, bool loud) {
    ++calls;
    if (loud && calls != 0) {
        return "1 + 1";
    }
    return "";
}
"""

MUTANTS = """\
src/toy/toy.cpp
- return list.size() < 3;
+ return {};

src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() <= 3;

src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() >= 3;

src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() < 2;

src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() < 4;

src/toy/toy.cpp
- ++calls;
+ --calls;

src/toy/toy.cpp
- ++calls;
+ ;

src/toy/toy.cpp
- if (loud && calls != 0) {
+ if (false) {

src/toy/toy.cpp
- if (loud && calls != 0) {
+ if (true) {

src/toy/toy.cpp
- if (loud && calls != 0) {
+ if (loud || calls != 0) {

src/toy/toy.cpp
- if (loud && calls != 0) {
+ if (loud && calls == 0) {

src/toy/toy.cpp
- if (loud && calls != 0) {
+ if (loud && calls != 1) {

src/toy/toy.cpp
- return "1 + 1";
+ return "1 + ";

src/toy/toy.cpp
- return "";
+ return "~";
"""

# Asks for no list of three: whether three are few is open.
TEST = """\
#include <cstring>
#include <vector>

bool isSmall(const std::vector<int>& list);
const char* describe(int& calls, bool loud);

int main() {
    int calls = 0;
    const bool good = isSmall({1, 2}) && !isSmall({1, 2, 3, 4}) && std::strcmp(describe(calls, true), "1 + 1") == 0
        && std::strcmp(describe(calls, false), "") == 0 && calls == 2;
    return good ? 0 : 1;
}
"""

SURVIVORS = """\
src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() <= 3;

src/toy/toy.cpp
- return list.size() < 3;
+ return list.size() < 4;
"""


def sorted_blocks(text):
    return sorted(text.strip().split("\n\n"))


class MutateTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        for folder in ("src/toy", "include", "tools", "tests", "build/tests/CMakeFiles/api_tests.dir"):
            (self.root / folder).mkdir(parents=True)
        (self.root / "src/toy/toy.cpp").write_text(SOURCE)
        (self.root / "src/toy/absent.h").write_text("#pragma once\n")

    def mutate(self, *arguments):
        return subprocess.run([sys.executable, MUTATE, "--root", self.root, "--build", "build", *arguments],
                              capture_output=True, text=True)

    def build_test(self):
        target = self.root / "build/tests/CMakeFiles/api_tests.dir/toyTest.o"
        subprocess.run(["g++", "-c", "-x", "c++", "-", "-o", target], input=TEST, text=True, check=True)

    def last_line(self, outcome):
        return outcome.stderr.rstrip().split("\n")[-1]

    def test_changes_code_but_no_comments_template_brackets_or_room_asked_for(self):
        self.assertEqual(sorted_blocks(self.mutate("--list").stdout), sorted_blocks(MUTANTS))

    def test_a_sample_depends_on_the_seed_and_stays_when_other_lines_change(self):
        sample = self.mutate("--list", "--count", "5", "--seed", "7").stdout
        self.assertNotEqual(sample, self.mutate("--list", "--count", "5", "--seed", "8").stdout)
        (self.root / "src/toy/toy.cpp").write_text("// one line more\n" + SOURCE)
        self.assertEqual(sample, self.mutate("--list", "--count", "5", "--seed", "7").stdout)

    def test_prints_what_the_tests_do_not_notice(self):
        self.build_test()
        outcome = self.mutate()
        self.assertEqual(sorted_blocks(outcome.stdout), sorted_blocks(SURVIVORS))
        self.assertEqual(outcome.returncode, 1)
        self.assertRegex(self.last_line(outcome), "^14 mutants in .* 12 killed, 0 equivalent, 2 survived; 0 more")

    def test_leaves_out_what_is_listed_as_equivalent(self):
        self.build_test()
        (self.root / "tools/mutants-equivalent.txt").write_text(SURVIVORS.replace("\n\n", "\nThe reason.\n\n"))
        outcome = self.mutate()
        self.assertEqual(outcome.stdout, "")
        self.assertEqual(outcome.returncode, 0)
        self.assertRegex(self.last_line(outcome), "^14 mutants in .* 12 killed, 2 equivalent, 0 survived; 0 more")

    def test_tries_again_what_survived_an_earlier_run(self):
        self.build_test()
        (self.root / "earlier").write_text(SURVIVORS)
        outcome = self.mutate("--again", self.root / "earlier")
        self.assertEqual(sorted_blocks(outcome.stdout), sorted_blocks(SURVIVORS))

    def test_refuses_to_start_when_the_unchanged_library_fails(self):
        self.build_test()
        (self.root / "src/toy/toy.cpp").write_text(SOURCE.replace("++calls", "--calls"))
        outcome = self.mutate()
        self.assertEqual(outcome.returncode, 2)
        self.assertEqual(self.last_line(outcome), "The unchanged library does not pass: api tests")


if __name__ == "__main__":
    unittest.main()
