#include <chrono>
#include <deque>
#include <filesystem>
#include <limits>
#include <list>
#include <memory_resource>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Paper { a4, us_letter, default_ };
enum class Huge : unsigned long long { first, second };
enum Level : short { low, high };
enum class Sparse { one = 1, minus = -7 };

struct Point {
    int x;
    int y;
};

/// Made of a text once and for all.
struct Constant {
    Constant(const char* itsText = "") : text(itsText) {}

    const std::string text;
};

/// Counts the pieces of memory that were taken and not given back.
class CountingMemory : public std::pmr::memory_resource {
public:
    int pieces() const { return m_pieces; }

private:
    void* do_allocate(std::size_t size, std::size_t alignment) override {
        ++m_pieces;
        return std::pmr::new_delete_resource()->allocate(size, alignment);
    }
    void do_deallocate(void* memory, std::size_t size, std::size_t alignment) override {
        --m_pieces;
        std::pmr::new_delete_resource()->deallocate(memory, size, alignment);
    }
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }

    int m_pieces = 0;
};

bool fromText(const char* text, Point& point) {
    return std::sscanf(text, "%d:%d", &point.x, &point.y) == 2;
}

} // namespace

template <>
struct tarv_3_3::typed::Names<Sparse> {
    static constexpr Choice<Sparse> list[] = {{"one", Sparse::one}, {"minus-seven", Sparse::minus}};
};

namespace {

/// What a program with one option of type T says to "--x=TEXT".
template <class T>
std::string take(const std::string& text, T& value) {
    tarv::Program program("p");
    const auto option = program.option<T>("x", "");
    const std::string outcome = parseLine(program, {"--x=" + text});
    value = *option;
    return outcome;
}

std::string refusal(const std::string& text, const std::string& reason) {
    return "2 p: --x=" + text + ": " + reason + "\nTry 'p --help'.\n";
}

template <class T>
void expectValue(const std::string& text, const T& expected) {
    SCOPED_TRACE(text);
    T value{};
    EXPECT_EQ(take<T>(text, value), "ok");
    EXPECT_EQ(value, expected);
}

template <class T>
void expectRefusal(const std::string& text, const std::string& reason) {
    SCOPED_TRACE(text);
    T value{};
    EXPECT_EQ(take<T>(text, value), refusal(text, reason));
}

TEST(TypedValues, IntegersAreReadToTheirBounds) {
    expectValue<signed char>("-128", -128);
    expectValue<unsigned char>("255", 255);
    expectValue<short>("+32767", 32767);
    expectValue<unsigned short>("0xFFFF", 65535);
    expectValue<int>("-2147483648", std::numeric_limits<int>::min());
    expectValue<unsigned>("4294967295", 4294967295U);
    expectValue<long>("-9223372036854775808", std::numeric_limits<long>::min());
    expectValue<unsigned long long>("18446744073709551615", 18446744073709551615ULL);
    expectValue<long long>("0x10", 16);
    expectValue<unsigned>("-0", 0);
}

TEST(TypedValues, WhatIsNoWholeNumberIsRefused) {
    for (const char* text : {"x", "1x", "1.5", " 1", "1 ", "--1", "+-1", "0x", "-", "1e3", "0x1g"}) {
        expectRefusal<int>(text, "must be a whole number");
    }
    for (const char* text : {"x", "10k", "1.5", "--1"}) {
        expectRefusal<unsigned>(text, "must be a whole number");
    }
}

TEST(TypedValues, IntegersOutsideTheirTypeAreRefused) {
    expectRefusal<signed char>("128", "must be from -128 to 127");
    expectRefusal<signed char>("-129", "must be from -128 to 127");
    expectRefusal<unsigned char>("256", "must be from 0 to 255");
    expectRefusal<unsigned>("-1", "must be from 0 to 4294967295");
    expectRefusal<long long>("9223372036854775808",
                             "must be from -9223372036854775808 to 9223372036854775807");
    expectRefusal<long long>("-99999999999999999999",
                             "must be from -9223372036854775808 to 9223372036854775807");
    expectRefusal<unsigned long long>("18446744073709551616", "must be from 0 to 18446744073709551615");
}

TEST(TypedValues, RealNumbersAreReadWhole) {
    expectValue<double>("-1.5e3", -1500.0);
    expectValue<double>("+.5", 0.5);
    expectValue<float>("0.25", 0.25F);
    for (const char* text : {"x", "1,5", "inf", "nan", "1.5x", "+-1", "+", " 1"}) {
        expectRefusal<double>(text, "must be a number");
    }
    expectRefusal<double>("1e999", "is too large");
    expectRefusal<float>("1e39", "is too large");
}

TEST(TypedValues, TextsAreTakenAsTheyAre) {
    expectValue<std::string>("a,b =c ", "a,b =c ");
    expectValue<std::filesystem::path>("a/b", "a/b");
}

TEST(TypedValues, ViewsAreKeptByTheProgram) {
    tarv::Program program("p");
    const auto view = program.option<std::string_view>("x", "");
    const auto text = program.option("y", "", "none");
    EXPECT_TRUE(*text == "none");
    {
        const std::vector<std::string> line = {"--x=a view that is too long to be short", "--y=some text"};
        EXPECT_EQ(parseLine(program, line), "ok");
    }
    EXPECT_EQ(*view, "a view that is too long to be short");
    EXPECT_EQ(*text, tarv::Text("some text"));
}

TEST(TypedValues, ACharacterIsOneByte) {
    expectValue<char>("x", 'x');
    expectRefusal<char>("xy", "must be one character");
    expectValue<std::vector<char>>("x,y", {'x', 'y'});
    expectRefusal<std::vector<char>>("x,yz", "'yz' must be one character");
    tarv::Program program("p");
    const auto mark = program.positional<char>("mark", "");
    EXPECT_EQ(parseLine(program, {"x"}), "ok");
    EXPECT_EQ(*mark, 'x');
    EXPECT_EQ(parseLine(program, {""}), "2 p: MARK '': must be one character\nTry 'p --help'.\n");
}

TEST(TypedValues, EnumeratorsAreNamedByTheCompiler) {
    expectValue<Paper>("a4", Paper::a4);
    expectValue<Paper>("us-letter", Paper::us_letter);
    expectValue<Paper>("default", Paper::default_);
    expectValue<Paper>("us", Paper::us_letter);
    expectValue<Level>("high", high);
    expectValue<Sparse>("minus-seven", Sparse::minus);
    expectRefusal<Paper>("a5", "must be one of a4, us-letter or default");
    expectRefusal<Sparse>("two", "must be one of one or minus-seven");
}

TEST(TypedValues, AValueOfAnEnumerationIsCalledWhatIsTyped) {
    tarv::Program program("p");
    const auto paper = program.option("paper", "", Paper::a4);
    EXPECT_STREQ(paper.nameOf(*paper), "a4");
    EXPECT_EQ(parseLine(program, {"--paper=us"}), "ok");
    EXPECT_STREQ(paper.nameOf(*paper), "us-letter");
    EXPECT_STREQ(paper.nameOf(Paper::default_), "default");
    const auto levels = program.option<std::vector<Level>>("level", "");
    EXPECT_STREQ(levels.nameOf(high), "high");
    const auto sparse = program.positional<std::optional<Sparse>>("sparse", "");
    EXPECT_STREQ(sparse.nameOf(Sparse::one), "one");
    EXPECT_STREQ(sparse.nameOf(Sparse::minus), "minus-seven");
    const auto huge = program.option("huge", "", Huge::second);
    EXPECT_STREQ(huge.nameOf(*huge), "second");
}

TEST(TypedValues, AWordThatIsNoneOfTheNamesComesToNoCheck) {
    tarv::Program program("p");
    std::vector<Paper> checked;
    const auto paper = program.option("paper", "", Paper::us_letter).check("free", [&](Paper sheet) {
        checked.push_back(sheet);
        return true;
    });
    EXPECT_EQ(parseLine(program, {"--paper=a5"}),
              "2 p: --paper=a5: must be one of a4, us-letter or default\nTry 'p --help'.\n");
    EXPECT_EQ(checked, std::vector<Paper>());
    EXPECT_EQ(*paper, Paper::us_letter);
}

TEST(TypedValues, AValueWithoutANameIsCalledNothing) {
    tarv::Program program("p");
    const auto paper = program.option("paper", "", Paper::a4);
    EXPECT_STREQ(paper.nameOf(static_cast<Paper>(3)), "");
    EXPECT_STREQ(paper.nameOf(static_cast<Paper>(-1)), "");
    EXPECT_STREQ(program.option<Sparse>("sparse", "").nameOf(static_cast<Sparse>(0)), "");
    const auto huge = program.option("huge", "", Huge::first);
    EXPECT_STREQ(huge.nameOf(static_cast<Huge>(0x100000001ULL)), "");
    EXPECT_STREQ(huge.nameOf(static_cast<Huge>(0xffffffffffffffffULL)), "");
    EXPECT_STREQ(tarv::Handle<Paper>().nameOf(Paper::a4), "");
}

TEST(TypedValues, ANameOutlivesTheMoveOfItsProgram) {
    tarv::Program first("p");
    const auto paper = first.option("paper", "", Paper::us_letter);
    const char* const name = paper.nameOf(*paper);
    tarv::Program second(static_cast<tarv::Program&&>(first));
    EXPECT_EQ(parseLine(second, {"--paper=a4"}), "ok");
    EXPECT_STREQ(name, "us-letter");
    EXPECT_STREQ(paper.nameOf(*paper), "a4");
}

TEST(TypedValues, SizesHaveUnitsOfTwoKinds) {
    const struct {
        const char* text;
        unsigned long long bytes;
    } rows[] = {{"0", 0},
                {"4096", 4096},
                {"4k", 4000},
                {"4kB", 4000},
                {"4Ki", 4096},
                {"4KiB", 4096},
                {"4MiB", 4194304},
                {"1.5k", 1500},
                {"12B", 12},
                {"2G", 2000000000},
                {"15E", 15000000000000000000ULL}};
    for (const auto& row : rows) {
        expectValue<tarv::Size>(row.text, tarv::Size(row.bytes));
    }
    for (const char* text : {"x", "4K", "4ki", "1.5", "-4", "4kk", "k", ".", "4 k", "0.0001k"}) {
        expectRefusal<tarv::Size>(text, "must be a number of bytes, such as 4096 or 4MiB");
    }
    expectRefusal<tarv::Size>("99E", "must be from 0 to 18446744073709551615");
}

TEST(TypedValues, DurationsNeedAUnitAndAreExact) {
    expectValue<std::chrono::seconds>("3min", std::chrono::minutes(3));
    expectValue<std::chrono::milliseconds>("1.5s", std::chrono::milliseconds(1500));
    expectValue<std::chrono::milliseconds>("-2s", std::chrono::seconds(-2));
    expectValue<std::chrono::nanoseconds>("2d", std::chrono::hours(48));
    expectValue<std::chrono::duration<double>>("1500ms", std::chrono::duration<double>(1.5));
    expectRefusal<std::chrono::seconds>("3", "needs a unit: ns, us, ms, s, min, h or d");
    expectRefusal<std::chrono::seconds>("3x", "must be a duration, such as 1.5s or 3min");
    expectRefusal<std::chrono::seconds>("1ms", "must be a multiple of 1s");
    expectRefusal<std::chrono::minutes>("90s", "must be a multiple of 1min");
    expectRefusal<std::chrono::nanoseconds>("999999999d",
                                            "must be from -9223372036854775808ns to 9223372036854775807ns");
}

TEST(TypedValues, DurationsWithoutASignAreNotBelowZero) {
    using Narrow = std::chrono::duration<unsigned short, std::milli>;
    using Wide = std::chrono::duration<unsigned long long>;
    expectValue<Narrow>("1.5s", Narrow(1500));
    expectRefusal<Narrow>("3", "needs a unit: ns, us, ms, s, min, h or d");
    expectRefusal<Narrow>("-1s", "must be from 0ms to 65535ms");
    expectRefusal<Narrow>("66s", "must be from 0ms to 65535ms");
    expectValue<Wide>("2min", Wide(120));
    expectRefusal<Wide>("-1s", "must be from 0s to 9223372036854775807s");
    tarv::Program program("p");
    const auto wait = program.option("wait", "", Narrow(250)).range(Narrow(0), std::chrono::seconds(1));
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*wait, Narrow(250));
    EXPECT_EQ(parseLine(program, {"--wait=2s"}),
              "2 p: --wait=2s: must be from 0ms to 1000ms\nTry 'p --help'.\n");
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --wait=TIME  (from 0ms to 1000ms; default: 250ms)\n"
                                              "  -h, --help       Show this help.\n");
}

TEST(TypedValues, AHostReadsItsOwnType) {
    tarv::Program program("p");
    const auto where = program.option<Point>("x", "");
    EXPECT_EQ(parseLine(program, {"--x", "3:4"}), "ok");
    EXPECT_EQ(where->y, 4);
    EXPECT_EQ(parseLine(program, {"--x", "3"}), "2 p: --x 3: is not valid\nTry 'p --help'.\n");
}

TEST(TypedValues, AnOptionalIsEmptyUntilItIsGiven) {
    tarv::Program program("p");
    const auto number = program.option<std::optional<int>>("x", "");
    const auto text = program.option<std::optional<std::string>>("t", "");
    const auto flag = program.option<std::optional<bool>>("f", "");
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_FALSE(number->has_value() || text->has_value() || flag->has_value());
    EXPECT_EQ(parseLine(program, {"--x=3", "-t=y", "--no-f"}), "ok");
    EXPECT_EQ(*number, 3);
    EXPECT_EQ(*text, "y");
    EXPECT_EQ(*flag, false);
}

TEST(TypedValues, WhatAnOptionalHoldsIsItsDefault) {
    std::optional<char> mark = 'x';
    std::optional<int> none;
    tarv::Program program("p");
    program.bind("mark", mark, "");
    program.bind("none", none, "");
    EXPECT_EQ(parseLine(program, {"--mark=y", "--none=3"}), "ok");
    EXPECT_EQ(mark, 'y');
    EXPECT_EQ(none, 3);
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --mark=CHAR    (default: x)\n"
                                              "      --none=NUMBER\n"
                                              "  -h, --help         Show this help.\n");
    EXPECT_EQ(mark, 'x');
    EXPECT_EQ(none, std::nullopt);
}

TEST(TypedValues, AViewOfNothingIsAnEmptyDefault) {
    tarv::Program program("p");
    const auto view = program.option("view", "", std::string_view());
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --view=TEXT\n"
                                              "  -h, --help       Show this help.\n");
    EXPECT_EQ(parseLine(program, {"--view=a"}), "ok");
    EXPECT_EQ(*view, "a");
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*view, "");
}

TEST(TypedValues, ContainersTakeEachPiece) {
    expectValue<std::vector<int>>("3,1,2", {3, 1, 2});
    expectValue<std::vector<int>>(",3,,1,", {3, 1});
    expectValue<std::set<std::string>>("b,a,b", {"a", "b"});
    expectValue<std::deque<std::string>>("b,a,b", {"b", "a", "b"});
    expectValue<std::vector<std::filesystem::path>>("b,a/c", {"b", "a/c"});
    expectValue<std::list<Paper>>("a4,us", {Paper::a4, Paper::us_letter});
    expectValue<std::vector<bool>>("yes,0", {true, false});
    expectRefusal<std::vector<int>>("x", "must be a whole number");
    expectRefusal<std::vector<int>>("3,x", "'x' must be a whole number");
    expectRefusal<std::vector<int>>("x,", "'x' must be a whole number");
    expectRefusal<std::vector<int>>(",", "the value is empty");
    expectRefusal<std::vector<bool>>("maybe", "must be one of 1, true, yes, on, 0, false, no, off");
}

TEST(TypedValues, InitialValuesOfEverySizeAreShownAndRestored) {
    tarv::Program program("p");
    const auto narrow = program.option("a", "", static_cast<signed char>(-3));
    const auto natural = program.option("b", "", static_cast<unsigned char>(200));
    const auto small = program.option("c", "", static_cast<short>(-300));
    const auto smallNatural = program.option("d", "", static_cast<unsigned short>(65535));
    const auto wide = program.option("e", "", -5000000000LL);
    const auto wideNatural = program.option("f", "", 18446744073709551615ULL);
    const auto real = program.option("g", "", 0.25F);
    const auto level = program.option("i", "", high);
    EXPECT_EQ(parseLine(program, {"-a=4", "-b=5", "-c=6", "-d=7", "-e=8", "-f=9", "-g=10", "-i=low"}), "ok");
    EXPECT_TRUE(*narrow == 4 && *natural == 5 && *small == 6 && *smallNatural == 7);
    EXPECT_TRUE(*wide == 8 && *wideNatural == 9 && *real == 10 && *level == low);
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_TRUE(*narrow == -3 && *natural == 200 && *small == -300 && *smallNatural == 65535);
    EXPECT_TRUE(*wide == -5000000000LL && *wideNatural == 18446744073709551615ULL);
    EXPECT_TRUE(*real == 0.25F && *level == high);
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "  -a=NUMBER   (default: -3)\n"
                                              "  -b=NUMBER   (default: 200)\n"
                                              "  -c=NUMBER   (default: -300)\n"
                                              "  -d=NUMBER   (default: 65535)\n"
                                              "  -e=NUMBER   (default: -5000000000)\n"
                                              "  -f=NUMBER   (default: 18446744073709551615)\n"
                                              "  -g=NUMBER   (default: 0.25)\n"
                                              "  -i=WORD     (one of low, high; default: high)\n"
                                              "  -h, --help  Show this help.\n");
}

TEST(TypedValues, WhatIsGivenReplacesTheInitialList) {
    tarv::Program program("p");
    const auto list = program.option("x", "", std::vector<int>{1, 2});
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*list, (std::vector<int>{1, 2}));
    EXPECT_EQ(parseLine(program, {"--x=3", "--x=4"}), "ok");
    EXPECT_EQ(*list, (std::vector<int>{3, 4}));
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*list, (std::vector<int>{1, 2}));
}

TEST(TypedValues, AListTakesTheElementsOfAllItsOccurrences) {
    tarv::Program program("p");
    const auto numbers = program.option<std::vector<int>>("number,n", "");
    const auto texts = program.option<std::vector<std::string>>("text,t", "").separator('\0').mayBeEmpty();
    const auto letters = program.option<std::list<char>>("letter,l", "");
    const auto files = program.positional<std::vector<std::string>>("file", "");
    EXPECT_EQ(parseLine(program, {"-n=1,,2", "a,b", "-t=x,y", "-l=c,d", "--text=", "-n=,3", "c", "-l=e"}),
              "ok");
    EXPECT_EQ(*numbers, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(*texts, (std::vector<std::string>{"x,y", ""}));
    EXPECT_EQ(*letters, (std::list<char>{'c', 'd', 'e'}));
    EXPECT_EQ(*files, (std::vector<std::string>{"a,b", "c"}));
}

TEST(TypedValues, AListTakesElementsThatCannotBeAssigned) {
    tarv::Program program("p");
    const auto list = program.option<std::vector<Constant>>("x", "");
    EXPECT_EQ(parseLine(program, {"--x=b,a", "--x=c"}), "ok");
    ASSERT_EQ(list->size(), 3U);
    EXPECT_EQ((*list)[0].text + (*list)[1].text + (*list)[2].text, "bac");
}

TEST(TypedValues, ARefusedLineLeavesNoListWithSomeOfItsElements) {
    std::vector<int> numbers = {7};
    tarv::Program program("p");
    program.bind("number,n", numbers, "");
    const auto letters = program.option("letter,l", "", std::list<char>{'z'});
    const auto whole = program.option<std::vector<std::string>>("whole,w", "");
    EXPECT_EQ(parseLine(program, {"-n=1", "-l=c", "-w=a,b", "-n=2,x", "-l=d"}),
              "2 p: -n=2,x: 'x' must be a whole number\nTry 'p --help'.\n");
    EXPECT_EQ(numbers, (std::vector<int>{7}));
    EXPECT_EQ(*letters, (std::list<char>{'z'}));
    EXPECT_EQ(*whole, (std::vector<std::string>{"a", "b"}));
}

TEST(TypedValues, ABoundListThatAFunctionOfTheHostEmptiesStaysEmpty) {
    std::vector<int> numbers;
    tarv::Program program("p");
    program.bind("number", numbers, "").check("small", [&](int number) {
        if (number == 2) {
            std::vector<int>().swap(numbers);
        }
        return true;
    });
    EXPECT_EQ(parseLine(program, {"--number=1,2,3"}), "ok");
    EXPECT_TRUE(numbers.empty());
}

TEST(TypedValues, ABoundVariableIsRestoredByEveryParse) {
    int level = 2;
    std::vector<std::string> names = {"x"};
    tarv::Program program("p");
    program.bind("level", level, "").range(0, 9);
    program.bind("name", names, "");
    EXPECT_EQ(parseLine(program, {"--level=3", "--name=a,b"}), "ok");
    EXPECT_EQ(level, 3);
    EXPECT_EQ(names, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(level, 2);
    EXPECT_EQ(names, (std::vector<std::string>{"x"}));
}

TEST(TypedValues, ABoundVariableTakesAnArgumentWithoutAName) {
    std::vector<std::string> files = {"-"};
    tarv::Program program("p");
    program.bindPositional("file", files, "");
    EXPECT_EQ(parseLine(program, {"a", "b"}), "ok");
    EXPECT_EQ(files, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(files, (std::vector<std::string>{"-"}));
}

TEST(TypedValues, ABoundVariableKeepsItsOwnMemory) {
    CountingMemory memory;
    {
        std::pmr::string title("an initial title, too long for a short one", &memory);
        std::pmr::vector<int> widths({1, 2}, &memory);
        tarv::Program program("p");
        program.bind("title", title, "");
        program.bind("width", widths, "");
        EXPECT_EQ(parseLine(program, {"--title=a title from the command line, as long", "--width=3,4,5"}),
                  "ok");
        EXPECT_EQ(title, "a title from the command line, as long");
        EXPECT_EQ(widths, (std::pmr::vector<int>{3, 4, 5}));
        EXPECT_EQ(memory.pieces(), 2);
        EXPECT_EQ(parseLine(program, {}), "ok");
        EXPECT_EQ(title, "an initial title, too long for a short one");
        EXPECT_EQ(widths, (std::pmr::vector<int>{1, 2}));
        EXPECT_EQ(memory.pieces(), 2);
    }
    EXPECT_EQ(memory.pieces(), 0);
}

TEST(TypedValues, NoCharacterIsADefaultThatCannotBeTyped) {
    tarv::Program program("p");
    const auto separator = program.option("separator", "", '\0');
    const auto mark = program.option("mark", "", 'x');
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*separator, '\0');
    EXPECT_EQ(*mark, 'x');
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --separator=CHAR\n"
                                              "      --mark=CHAR       (default: x)\n"
                                              "  -h, --help            Show this help.\n");
}

TEST(TypedValues, ADefaultConstructedHandleHoldsAnInitialValue) {
    const tarv::Handle<int> number;
    const tarv::Handle<std::string> text;
    EXPECT_EQ(*number, 0);
    EXPECT_EQ(*text, "");
    EXPECT_EQ(text->size(), 0U);
    EXPECT_FALSE(number.given());
    EXPECT_EQ(number.count(), 0);
    EXPECT_EQ(number.position(), -1);
    EXPECT_EQ(number.source(), tarv::Source::initial);
    number.required().env("X").hidden().range(1, 2);
}

TEST(TypedValues, NothingIsGivenBeforeTheFirstParse) {
    tarv::Program program("p");
    std::string variable;
    const tarv::Handle<std::string> handles[] = {
        program.option<std::string>("without-default", ""),
        program.option<std::string>("with-default", "", "none"),
        program.bind("bound", variable, ""),
    };
    for (const tarv::Handle<std::string>& handle : handles) {
        SCOPED_TRACE(&handle - handles);
        EXPECT_FALSE(handle.given());
        EXPECT_EQ(handle.source(), tarv::Source::initial);
        ASSERT_EQ(handle.count(), 0);
        EXPECT_EQ(handle.position(), -1);
    }
}

TEST(TypedValues, ATextIsPassedAsAPointer) {
    const auto lengthOf = [](const char* text) { return std::string(text).size(); };
    EXPECT_EQ(lengthOf(tarv::Text("some")), 4U);
    EXPECT_EQ(lengthOf(tarv::Text(nullptr)), 0U);
}

TEST(TypedValues, TextsCompareByContent) {
    const std::string copy = "some text";
    EXPECT_TRUE(tarv::Text("some text") == copy.c_str());
    EXPECT_FALSE(tarv::Text("some text") == "some tex");
    EXPECT_TRUE(tarv::Text("a") != "b");
    EXPECT_TRUE(tarv::Text(nullptr).isEmpty());
}

} // namespace
