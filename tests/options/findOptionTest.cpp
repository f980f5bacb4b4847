#include "options/findOption.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "options/WantedNames.h"

namespace tarv_3_3 {
namespace {

OptionDescription record(Names names, das_variant_type_t type) {
    OptionDescription option;
    option.m_names = std::move(names);
    option.m_type = type;
    return option;
}

/// The place of the record that is found, -1 for none.
template <class Name>
int place(const Name& name, const std::vector<OptionDescription>& options) {
    constexpr unsigned long untouched = 77;
    unsigned long index = untouched;
    const int status = findOption(name, index, options);
    if (status == 1 && index == untouched) {
        return -1;
    }
    EXPECT_EQ(status, 0);
    return static_cast<int>(index);
}

TEST(FindOption, FindsWholeNamesAndTheNegatedOnesOfSwitches) {
    const std::vector<OptionDescription> options = {
        record({"verbose", "v", "ld"}, vtInt32),
        record({"color", "c"}, vtBool),
        record({"Color"}, vtNull),
        record({"no-log"}, vtBool),
    };
    for (const WantedName& row : wantedNames) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(place(std::string(row.name), options), row.place);
    }
}

TEST(FindOption, ComparesAllBytesOfAName) {
    const std::string withZero("a\0b", 3);
    const std::vector<OptionDescription> options = {record({"a"}, vtNull), record({withZero}, vtBool)};
    EXPECT_EQ(place(withZero, options), 1);
    EXPECT_EQ(place("no-" + withZero, options), 1);
    EXPECT_EQ(place(std::string("a\0", 2), options), -1);
}

TEST(FindOption, FindsAnEmptyNameAndItsNegation) {
    const std::vector<OptionDescription> options = {record({}, vtBool), record({"x", ""}, vtBool)};
    EXPECT_EQ(place(std::string(), options), 1);
    EXPECT_EQ(place(std::string("no-"), options), 1);
}

// Whether a record answers by its plain or by its negated name does not matter, only which is first.
TEST(FindOption, YieldsTheFirstRecordThatAnswers) {
    const std::vector<OptionDescription> switchFirst = {
        record({"color"}, vtBool), record({"no-color", "color"}, vtInt32), record({"no-color"}, vtBool)};
    EXPECT_EQ(place(std::string("color"), switchFirst), 0);
    EXPECT_EQ(place(std::string("no-color"), switchFirst), 0);
    EXPECT_EQ(place(std::string("no-no-color"), switchFirst), 2);

    const std::vector<OptionDescription> switchLast = {record({"no-color"}, vtInt32),
                                                       record({"color"}, vtBool)};
    EXPECT_EQ(place(std::string("no-color"), switchLast), 0);
    EXPECT_EQ(place(std::string("color"), switchLast), 1);
}

TEST(FindOption, FindsNothingInAnEmptyTable) {
    EXPECT_EQ(place(std::string("name"), {}), -1);
    EXPECT_EQ(place(std::string(), {}), -1);
}

TEST(IndexOfExactName, IsThatOfTheFirstRecordThatHasTheName) {
    const std::vector<OptionDescription> options = {
        record({"verbose", "v"}, vtBool), record({"no-verbose", ""}, vtInt32), record({"v"}, vtInt32)};
    const struct {
        const char* name;
        std::size_t index;
    } rows[] = {{"verbose", 0}, {"v", 0}, {"no-verbose", 1}, {"", 1}, {"no-v", 3}, {"verb", 3}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(internal::indexOfExactName(row.name, options), row.index);
    }
}

TEST(FindOptionByList, YieldsTheFirstNameThatIsFound) {
    const std::vector<OptionDescription> options = {record({"first", "f"}, vtNull),
                                                    record({"second"}, vtBool), record({"third"}, vtString)};
    const struct {
        Names names;
        int place;
    } rows[] = {
        {{"first"}, 0},
        {{"third", "second", "first"}, 2},
        {{"missing", "no-second", "f"}, 1},
        {{"missing", "no-third"}, -1},
        {{"first,second"}, -1},
        {{}, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.names));
        EXPECT_EQ(place(row.names, options), row.place);
    }
}

} // namespace
} // namespace tarv_3_3
