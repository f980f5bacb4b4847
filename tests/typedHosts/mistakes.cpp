// Each number is a mistake that must not compile; check_mistakes.py reads the messages from here.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "tarv_3_3/typed.h"

namespace tarv = tarv_3_3::typed;

struct Unreadable {
    int value;
};
enum class Gap { one = 1, three = 3 };
enum class Negative { minus = -1, zero = 0, one = 1 };
enum class Long { a_name_that_is_much_longer_than_the_sixty_three_bytes_that_are_read_of_it };
enum Open { open };
enum class Foreign { one };
inline bool fromText(const char* text, Foreign& value) {
    value = Foreign::one;
    return *text == '1';
}
enum class Answer : bool { no, yes };

int main(int argc, char** argv) {
    tarv::Program program("program");
    tarv::Handle<int> number = program.option<int>("number", "");
    tarv::Handle<std::string> text = program.option<std::string>("text", "");
    // The messages stay on the lines of their mistakes.
    // clang-format off
#if MISTAKE == 1 // tarv: no option can hold this type; write a bool fromText(const char*, T&) beside it
    program.option<Unreadable>("x", "");
#elif MISTAKE == 2 // tarv: range() is for numbers, sizes and durations
    text.range(1, 2);
#elif MISTAKE == 3 // tarv: separator() is for lists
    number.separator(':');
#elif MISTAKE == 4 // tarv: a check takes the type of the option's elements, and returns a bool
    number.check("short", [](const std::string& value) { return value.size() < 3; });
#elif MISTAKE == 5 // tarv: the values of this enumeration do not count up from 0; specialize tarv_3_3::typed::Names for it
    program.option<Gap>("x", "");
#elif MISTAKE == 6 // tarv: a value of this enumeration is below 0; specialize tarv_3_3::typed::Names for it
    program.option<Negative>("x", "");
#elif MISTAKE == 7 // tarv: a name of this enumeration is over 63 bytes; specialize tarv_3_3::typed::Names for it
    program.option<Long>("x", "");
#elif MISTAKE == 8 // tarv: this enumeration has no fixed underlying type; specialize tarv_3_3::typed::Names for it
    program.option<Open>("x", "");
#elif MISTAKE == 9 // tarv: a body returns an int, the exit code, or nothing
    program.does([] { return true; });
#elif MISTAKE == 10 // tarv: hold a verb by reference
    auto verb = program.verb("log", "");
#elif MISTAKE == 11 // tarv: a bound of range() is outside of the option's type
    program.option<unsigned char>("x", "").range(0, 300);
#elif MISTAKE == 12 // tarv: the bounds of range() are outside of the option's type, which is a whole number
    number.range(0.5, 2.5);
#elif MISTAKE == 13 // tarv: mayBeEmpty() is for texts
    number.mayBeEmpty();
#elif MISTAKE == 14 // tarv: rest() is for lists
    program.rest<std::string>("x", "");
#elif MISTAKE == 15 // tarv: oneOf() is for texts and numbers
    program.option<std::chrono::seconds>("x", "").oneOf(1, 2);
#elif MISTAKE == 16 // tarv: a completer takes a const char* and a Candidates&
    text.completeWith([](int) {});
#elif MISTAKE == 17 // tarv: times() is for lists
    program.positional<int>("x", "").times(1, 2);
#elif MISTAKE == 18 // deleted
    const tarv::Program copy = program;
#elif MISTAKE == 19 // basic_string
    const int wrong = *text;
#elif MISTAKE == 20 // tarv: a value of oneOf() is of another type than the option
    text.oneOf(1, 2);
#elif MISTAKE == 21 // tarv: nameOf() is for enumerations
    std::printf("%s", number.nameOf(1));
#elif MISTAKE == 22 // tarv: nameOf() is for enumerations
    std::printf("%s", program.option<Foreign>("x", "").nameOf(Foreign::one));
#elif MISTAKE == 23 // tarv: the values of this enumeration are true and false; specialize tarv_3_3::typed::Names for it
    program.option<Answer>("x", "");
#endif
    // clang-format on
    return program.run(argc, argv, [=] { return *number + static_cast<int>(text->size()); });
}
