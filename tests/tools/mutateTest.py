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

constexpr std::size_t typicalSize = 4;
static_assert(typicalSize > 2, "too small; a list has 3");

void makeRoom(std::vector<int>& list) {
    list.reserve(2 * typicalSize);
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


# Copies that are needed, two parameters of one type, orders that matter, one that does not, and a text that is
# kept.
MOVES = """\
#include <string>
#include <vector>

void takeLast(const std::vector<std::string>& list, std::string& last, std::string& former) {
    const std::string before = last;
    last = list.back();
    former = before;
}

void work() {
    const Guard guard(lock);
    int count = begin();
    finish(count);
    count = first;
    limit = second;
    bool isDone = false;
    end();
    int left = m_left;
    run();
}

void show(Garbage* garbage, const char*& shown) {
    shown = garbage->init(nameOf(shown));
}
"""

MOVED = """\
src/toy/moves.cpp
- const std::string before = last;
+ const std::string before = former;

src/toy/moves.cpp
- const std::string before = last;
+ const std::string& before = last;

src/toy/moves.cpp
- const std::string before = last; last = list.back();
+ last = list.back(); const std::string before = last;

src/toy/moves.cpp
- last = list.back();
+ ;

src/toy/moves.cpp
- last = list.back();
+ former = list.back();

src/toy/moves.cpp
- last = list.back(); former = before;
+ former = before; last = list.back();

src/toy/moves.cpp
- former = before;
+ ;

src/toy/moves.cpp
- former = before;
+ before = before;

src/toy/moves.cpp
- former = before;
+ former = last;

src/toy/moves.cpp
- const Guard guard(lock);
+ ;

src/toy/moves.cpp
- const Guard guard(lock); int count = begin();
+ int count = begin(); const Guard guard(lock);

src/toy/moves.cpp
- int count = begin(); finish(count);
+ finish(count); int count = begin();

src/toy/moves.cpp
- finish(count);
+ ;

src/toy/moves.cpp
- finish(count); count = first;
+ count = first; finish(count);

src/toy/moves.cpp
- count = first;
+ ;

src/toy/moves.cpp
- limit = second;
+ ;

src/toy/moves.cpp
- bool isDone = false;
+ bool isDone = true;

src/toy/moves.cpp
- end();
+ ;

src/toy/moves.cpp
- end(); int left = m_left;
+ int left = m_left; end();

src/toy/moves.cpp
- int left = m_left; run();
+ run(); int left = m_left;

src/toy/moves.cpp
- run();
+ ;

src/toy/moves.cpp
- shown = garbage->init(nameOf(shown));
+ ;

src/toy/moves.cpp
- shown = garbage->init(nameOf(shown));
+ shown = nameOf(shown);
"""

# What an inline function does is compiled into the tests: they have to be made anew.
HEADER = """\
#pragma once

class Thing {
public:
    bool isFull() const { return m_size == m_room; }

private:
    int m_size = 3;
    int m_room = 4;
};
"""

PUBLIC_MUTANTS = """\
include/toy/Thing.h
- bool isFull() const { return m_size == m_room; }
+ bool isFull() const { return {}; }

include/toy/Thing.h
- bool isFull() const { return m_size == m_room; }
+ bool isFull() const { return m_size != m_room; }

include/toy/Thing.h
- bool isFull() const { return m_size == m_room; }
+ bool isFull() const { return m_room == m_room; }

include/toy/Thing.h
- bool isFull() const { return m_size == m_room; }
+ bool isFull() const { return m_size == m_size; }

include/toy/Thing.h
- bool isFull() const { return m_size == m_room; }
+ bool isFull() { return m_size == m_room; }

include/toy/Thing.h
- int m_size = 3;
+ int m_size = 2;

include/toy/Thing.h
- int m_size = 3;
+ int m_size = 4;

include/toy/Thing.h
- int m_room = 4;
+ int m_room = 3;

include/toy/Thing.h
- int m_room = 4;
+ int m_room = 5;
"""

# Looks at no thing that is full, so that three mutants survive.
HEADER_TEST = """\
#include "toy/Thing.h"

bool isQuiet(int calls);

int main() {
    const Thing thing;
    return thing.isFull() || !isQuiet(3) ? 1 : 0;
}
"""

# Waits for ever, and takes no time of the processor.
WAITING = """\
#include <unistd.h>

bool isQuiet(int calls) {
    if (calls > 3) {
        pause();
    }
    return true;
}
"""

WAITED_FOR = """\
src/toy/waiting.cpp
- if (calls > 3) {
+ if (calls <= 3) {

src/toy/waiting.cpp
- if (calls > 3) {
+ if (calls > 2) {

src/toy/waiting.cpp
- if (calls > 3) {
+ if (calls >= 3) {

src/toy/waiting.cpp
- if (calls > 3) {
+ if (true) {
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

    def test_takes_any_word_for_a_seed_and_says_which(self):
        self.build_test()
        outcome = self.mutate("--count", "1", "--seed", "5f3a9c")
        self.assertEqual(outcome.stderr.split("\n")[0], "Seed: 5f3a9c")

    def test_changes_order_copies_guards_and_variables(self):
        (self.root / "src/toy/moves.cpp").write_text(MOVES)
        self.assertEqual(sorted_blocks(self.mutate("--list", "--only", "src/toy/moves.cpp").stdout), sorted_blocks(MOVED))

    def test_takes_files_and_folders_together(self):
        (self.root / "src/toy/moves.cpp").write_text(MOVES)
        (self.root / "src/toybox").mkdir()
        (self.root / "src/toybox/left.cpp").write_text(MOVES)
        self.assertEqual(sorted_blocks(self.mutate("--list", "--only", "src/toy/").stdout),
                         sorted_blocks(MUTANTS + "\n" + MOVED))
        self.assertEqual(sorted_blocks(self.mutate("--list", "--only", "src/toy/toy.cpp",
                                                   "--only", "src/toy/moves.cpp").stdout),
                         sorted_blocks(MUTANTS + "\n" + MOVED))

    def test_prints_what_the_tests_do_not_notice(self):
        self.build_test()
        outcome = self.mutate()
        self.assertEqual(sorted_blocks(outcome.stdout), sorted_blocks(SURVIVORS))
        self.assertEqual(outcome.returncode, 1)
        self.assertRegex(self.last_line(outcome), "^14 mutants in .* 12 killed, 0 equivalent, 2 survived, 0 kept a test waiting; 0 more")

    def test_fails_when_more_survive_than_are_allowed(self):
        self.build_test()
        self.assertEqual(self.mutate("--allow", "1").returncode, 1)
        allowed = self.mutate("--allow", "2")
        self.assertEqual(sorted_blocks(allowed.stdout), sorted_blocks(SURVIVORS))
        self.assertEqual(allowed.returncode, 0)

    def test_leaves_out_what_is_listed_as_equivalent(self):
        self.build_test()
        (self.root / "tools/mutants-equivalent.txt").write_text(SURVIVORS.replace("\n\n", "\nThe reason.\n\n"))
        outcome = self.mutate()
        self.assertEqual(outcome.stdout, "")
        self.assertEqual(outcome.returncode, 0)
        self.assertRegex(self.last_line(outcome), "^14 mutants in .* 12 killed, 2 equivalent, 0 survived, 0 kept a test waiting; 0 more")

    def test_tries_again_what_survived_an_earlier_run(self):
        self.build_test()
        (self.root / "earlier").write_text(SURVIVORS)
        outcome = self.mutate("--again", self.root / "earlier")
        self.assertEqual(sorted_blocks(outcome.stdout), sorted_blocks(SURVIVORS))

    def build_test_of_header(self):
        (self.root / "src/toy/toy.cpp").unlink()
        (self.root / "src/toy/waiting.cpp").write_text(WAITING)
        for folder, file, text in (("include/toy", "Thing.h", HEADER), ("tests/api", "thingTest.cpp", HEADER_TEST)):
            (self.root / folder).mkdir(parents=True)
            (self.root / folder / file).write_text(text)
        made = self.root / "build/tests/CMakeFiles/api_tests.dir/api/thingTest.cpp.o"
        made.parent.mkdir()
        subprocess.run(["g++", "-O2", "-I", self.root / "include", "-c", self.root / "tests/api/thingTest.cpp", "-o", made],
                       check=True)

    def test_changes_members_and_const_in_public_headers(self):
        self.build_test_of_header()
        listed = self.mutate("--list", "--only", "include/toy/Thing.h").stdout
        self.assertEqual(sorted_blocks(listed), sorted_blocks(PUBLIC_MUTANTS))

    def test_makes_the_tests_of_a_header_anew(self):
        self.build_test_of_header()
        outcome = self.mutate("--only", "include/toy/Thing.h")
        self.assertRegex(self.last_line(outcome), "^9 mutants in .* 6 killed, 0 equivalent, 3 survived, 0 kept a test"
                                                  " waiting; 0 more")
        self.assertEqual(outcome.stdout.count("\n+ "), 3)

    def test_does_not_count_what_keeps_a_test_waiting_as_killed(self):
        self.build_test_of_header()
        outcome = self.mutate("--only", "src/toy/waiting.cpp", "--wall-seconds", "1")
        self.assertEqual(outcome.returncode, 1)
        for block in sorted_blocks(WAITED_FOR):
            self.assertIn(block, outcome.stdout)
        self.assertRegex(self.last_line(outcome), " 4 kept a test waiting; ")

    def test_refuses_to_start_when_the_unchanged_library_fails(self):
        self.build_test()
        (self.root / "src/toy/toy.cpp").write_text(SOURCE.replace("++calls", "--calls"))
        outcome = self.mutate()
        self.assertEqual(outcome.returncode, 2)
        self.assertEqual(self.last_line(outcome), "The unchanged library does not pass: api tests")


if __name__ == "__main__":
    unittest.main()
