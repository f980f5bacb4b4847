#include <string>

#include <gtest/gtest.h>

#include "tarv_3_3/typed.h"
#include "typed/Command.h"

namespace {

using tarv_3_3::typed::engine::areNamesUnique;
using tarv_3_3::typed::engine::Command;
using tarv_3_3::typed::engine::findWhole;
using tarv_3_3::typed::engine::Option;

/// A program with a verb, and the records that the library has of it.
struct Fixture {
    Command* record = tarv_3_3::typed::engine::createProgram("vcs", nullptr, "");
    Command* verb = tarv_3_3::typed::engine::addVerb(record, "log", "");

    Fixture() = default;
    Fixture(const Fixture&) = delete;
    Fixture& operator=(const Fixture&) = delete;
    ~Fixture() { tarv_3_3::typed::engine::destroy(record); }
};

template <class T>
void declare(Command* command, int role, const char* names) {
    namespace values = tarv_3_3::typed::values;
    ASSERT_NE(nullptr, tarv_3_3::typed::engine::addPlain(command, role, names, "", &values::shapeFor<T>,
                                                         nullptr, nullptr));
}

constexpr int option = tarv_3_3::typed::engine::roleOption;

TEST(OptionNames, WholeNamesOfACommandAndOfThoseAbove) {
    Fixture vcs;
    declare<int>(vcs.record, option, "git-dir,g");
    declare<bool>(vcs.record, option, "paging");
    declare<int>(vcs.verb, option, "max-count");
    declare<int>(vcs.verb, tarv_3_3::typed::engine::rolePositional, "file");
    const struct {
        const char* typed;
        const char* found;
    } cases[] = {
        {"git-dir", "git-dir"},
        {"g", "git-dir"},
        {"max-count", "max-count"},
        {"no-paging", "paging"},
        {"no-git-dir", ""},
        {"git", ""},
        {"file", ""},
        {"", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        const Option* const found = findWhole(*vcs.verb, each.typed);
        EXPECT_STREQ(each.found, found != nullptr ? found->name().c_str() : "");
    }
    EXPECT_EQ(nullptr, findWhole(*vcs.record, "max-count"));
    EXPECT_TRUE(areNamesUnique(*vcs.verb));
}

TEST(OptionNames, WhatIsDeclaredLaterIsFoundAsWell) {
    Fixture vcs;
    declare<int>(vcs.record, option, "one");
    EXPECT_NE(nullptr, findWhole(*vcs.record, "one"));
    declare<int>(vcs.record, option, "two");
    EXPECT_NE(nullptr, findWhole(*vcs.record, "two"));
}

TEST(OptionNames, ANameOfTwoOptionsIsNotUnique) {
    const struct {
        const char* above;
        const char* below;
        bool areUnique;
    } cases[] = {
        {"count,n", "number", true},  {"count,n", "number,n", false}, {"color", "no-color", false},
        {"no-color", "color", false}, {"no-count", "color", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.above) + " " + each.below);
        Fixture apart;
        declare<bool>(apart.record, option, each.above);
        declare<bool>(apart.verb, option, each.below);
        EXPECT_EQ(each.areUnique, areNamesUnique(*apart.verb));
        EXPECT_TRUE(areNamesUnique(*apart.record));
        Fixture together;
        declare<bool>(together.record, option, each.above);
        declare<bool>(together.record, option, each.below);
        EXPECT_EQ(each.areUnique, areNamesUnique(*together.record));
    }
}

TEST(OptionNames, ANameOfTwoOptionsIsNotFound) {
    Fixture apart;
    declare<bool>(apart.record, option, "color");
    declare<bool>(apart.verb, option, "no-color");
    EXPECT_EQ(nullptr, findWhole(*apart.verb, "no-color"));
    EXPECT_NE(nullptr, findWhole(*apart.verb, "color"));
    EXPECT_NE(nullptr, findWhole(*apart.record, "no-color"));
    Fixture together;
    declare<bool>(together.record, option, "color");
    declare<bool>(together.record, option, "no-color");
    EXPECT_EQ(nullptr, findWhole(*together.record, "no-color"));
    Fixture twice;
    declare<int>(twice.record, option, "count");
    declare<int>(twice.verb, option, "count");
    EXPECT_EQ(nullptr, findWhole(*twice.verb, "count"));
    Fixture below;
    declare<bool>(below.verb, option, "color");
    declare<bool>(below.verb, option, "no-color");
    EXPECT_EQ(nullptr, findWhole(*below.verb, "no-color"));
}

TEST(OptionNames, ANameThatIsGivenThreeTimesIsNotUnique) {
    Fixture vcs;
    for (int i = 0; i < 3; ++i) {
        declare<int>(vcs.record, option, "count");
    }
    declare<int>(vcs.record, option, "no-number");
    EXPECT_FALSE(areNamesUnique(*vcs.record));
    EXPECT_FALSE(areNamesUnique(*vcs.verb));
}

TEST(OptionNames, AHundredNamesAreFound) {
    Fixture vcs;
    for (int i = 0; i < 100; ++i) {
        declare<int>(vcs.record, option, ("option-" + std::to_string(i)).c_str());
    }
    for (int i = 0; i < 100; ++i) {
        const std::string name = "option-" + std::to_string(i);
        SCOPED_TRACE(name);
        const Option* const found = findWhole(*vcs.record, name);
        ASSERT_NE(nullptr, found);
        EXPECT_EQ(name, found->name());
    }
    EXPECT_EQ(nullptr, findWhole(*vcs.record, "option-100"));
}

} // namespace
