#include <gtest/gtest.h>

#include <stdexcept>

#include "result/ParseResult.h"
#include "result/StoredOptions.h"
#include "support/RelativePositions.h"
#include "support/describe.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

std::string entriesOf(const ParseResult& result, const RelativePositions& positions) {
    std::string line;
    for (const internal::Entries::Entry* const entry : result.entries().listByName()) {
        line += (line.empty() ? "" : " ") + ::describe(*entry, positions);
    }
    return line;
}

class ParseResultStore : public ::testing::Test {
protected:
    std::string entries() const { return entriesOf(result, positions); }

    OptionDescription withDefault(Names names, das_variant_type_t type, const variant_t& value) {
        OptionDescription option = optionNamed(std::move(names), type);
        option.m_garbage = &garbage;
        option.defaultValue(value);
        return option;
    }

    RelativePositions positions;
    Garbage garbage;
    ParseResult result;
};

TEST_F(ParseResultStore, IsEmptyAtFirst) {
    EXPECT_EQ(entries(), "");
}

TEST_F(ParseResultStore, KeepsAnEntryOfEqualContentsForEveryName) {
    EXPECT_EQ(result.store(optionNamed({"level", "l", "depth"}), nextOccurrence({"5", "6"})), 0);
    EXPECT_EQ(entries(), "depth@1=\"5\"@2,\"6\"@3 l@1=\"5\"@2,\"6\"@3 level@1=\"5\"@2,\"6\"@3");
}

TEST_F(ParseResultStore, OrdersItsEntriesByTheBytesOfTheirNames) {
    for (const char* const name : {"b", "\xC3\xA4", "a-b", "a", "B", "ab"}) {
        result.store(optionNamed({name}), nextOccurrence());
    }
    EXPECT_EQ(entries(), "B@5 a@4 a-b@3 ab@6 b@1 \xC3\xA4@2");
}

TEST_F(ParseResultStore, AppendsARepeatedOptionUnderEveryName) {
    const OptionDescription level = optionNamed({"level", "l"});
    EXPECT_EQ(result.store(level, nextOccurrence({"5"})), 0);
    EXPECT_EQ(result.store(level, nextOccurrence({"3"})), 0);
    EXPECT_EQ(result.store(level, nextOccurrence()), 0);
    EXPECT_EQ(entries(), "l@1@3@5=\"5\"@2,\"3\"@4 level@1@3@5=\"5\"@2,\"3\"@4");
}

TEST_F(ParseResultStore, AppendsInTheOrderStoredAndNotOfPositions) {
    const OptionDescription level = optionNamed({"level"});
    const OptionData earlier = nextOccurrence({"1"});
    const OptionData later = nextOccurrence({"2"});
    result.store(level, later);
    result.store(level, earlier);
    EXPECT_EQ(entries(), "level@3@1=\"2\"@4,\"1\"@2");
}

TEST_F(ParseResultStore, TakesTheDefaultFieldsOfTheFirstOccurrenceOnly) {
    const OptionDescription level = optionNamed({"level"});
    OptionData first = nextOccurrence({"5"});
    first.defaultText = "first";
    first.defaultValue = variant_t("first");
    first.defaultPosition = IArgumentParser::getNewPositionIndex();
    OptionData second = nextOccurrence({"6"});
    second.defaultText = "second";
    second.defaultValue = variant_t("second");
    second.defaultPosition = IArgumentParser::getNewPositionIndex();
    result.store(level, first);
    result.store(level, second);
    EXPECT_EQ(entries(), "level@1@4=\"5\"@2,\"6\"@5 default=\"first\"@3");
    EXPECT_EQ(result.entries().find("level")->byDefault.value, variant_t("first"));
}

// Whether an option is new is asked of its first name alone.
TEST_F(ParseResultStore, ReplacesTheEntryOfAnotherNameWhenTheFirstNameIsNew) {
    result.store(optionNamed({"l"}), nextOccurrence({"old"}));
    result.store(optionNamed({"level", "l"}), nextOccurrence({"new"}));
    EXPECT_EQ(entries(), "l@3=\"new\"@4 level@3=\"new\"@4");
}

TEST_F(ParseResultStore, ReplacesTheDefaultOfAnotherNameAsWell) {
    std::vector<OptionDescription> options = {withDefault({"l"}, vtString, "old")};
    std::string message;
    result.applyDefault(options, message);
    OptionData data = nextOccurrence();
    data.defaultText = "new";
    data.defaultValue = variant_t("new");
    data.defaultPosition = IArgumentParser::getNewPositionIndex();
    result.store(optionNamed({"level", "l"}), data);
    EXPECT_EQ(entries(), "l@2 default=\"new\"@3 level@2 default=\"new\"@3");
}

TEST_F(ParseResultStore, AppendsToANameThatWasAddedAfterTheFirstOccurrence) {
    result.store(optionNamed({"level"}), nextOccurrence({"1"}));
    result.store(optionNamed({"level", "depth"}), nextOccurrence({"2"}));
    EXPECT_EQ(entries(), "depth@3=\"2\"@4 level@1@3=\"1\"@2,\"2\"@4");
}

TEST_F(ParseResultStore, AppendsUnderEveryNameAndUnderOneThatWasAdded) {
    result.store(optionNamed({"level", "l"}), nextOccurrence({"1"}));
    result.store(optionNamed({"level", "l", "depth"}), nextOccurrence({"2"}));
    result.store(optionNamed({"level", "l", "depth"}), nextOccurrence());
    EXPECT_EQ(entries(), "depth@3@5=\"2\"@4 l@1@3@5=\"1\"@2,\"2\"@4 level@1@3@5=\"1\"@2,\"2\"@4");
}

// Nobody stops two options from having the same synonym.
TEST_F(ParseResultStore, KeepsTwoOptionsApartThatShareASynonym) {
    const OptionDescription level = optionNamed({"level", "x"});
    const OptionDescription depth = optionNamed({"depth", "x"});
    result.store(level, nextOccurrence());
    EXPECT_EQ(entries(), "level@1 x@1");
    result.store(depth, nextOccurrence());
    EXPECT_EQ(entries(), "depth@2 level@1 x@2");
    result.store(level, nextOccurrence());
    EXPECT_EQ(entries(), "depth@2 level@1@3 x@2@3");
    result.store(depth, nextOccurrence());
    EXPECT_EQ(entries(), "depth@2@4 level@1@3 x@2@3@4");
}

TEST_F(ParseResultStore, KeepsAnOptionApartFromOneThatHasItsNameAsASynonym) {
    result.store(optionNamed({"b", "a"}), nextOccurrence());
    result.store(optionNamed({"a", "x"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2 b@1 x@2");
    result.store(optionNamed({"b", "a"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2@3 b@1@3 x@2");
}

TEST_F(ParseResultStore, AppendsOnceUnderNewNamesThatCameWithAKnownOne) {
    result.store(optionNamed({"c"}), nextOccurrence());
    result.store(optionNamed({"a", "b", "c"}), nextOccurrence());
    result.store(optionNamed({"a", "b", "c"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@2@3 b@2@3 c@2@3");
}

TEST_F(ParseResultStore, AppendsUnderTheNamesOfTheRepetitionAlone) {
    result.store(optionNamed({"a", "x", "y"}), nextOccurrence());
    result.store(optionNamed({"a", "y", "z"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2 x@1 y@1@2 z@2");
    result.store(optionNamed({"a"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2@3 x@1 y@1@2 z@2");
}

TEST_F(ParseResultStore, TellsRepetitionsApartWhoseLastNamesDiffer) {
    result.store(optionNamed({"a", "x"}), nextOccurrence());
    result.store(optionNamed({"a", "y"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2 x@1 y@2");
    result.store(optionNamed({"b", "c", "p"}), nextOccurrence());
    result.store(optionNamed({"b", "c", "q"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2 b@3@4 c@3@4 p@3 q@4 x@1 y@2");
}

TEST_F(ParseResultStore, AppendsOnceForEveryTimeThatAnOptionHasAName) {
    const OptionDescription twice = optionNamed({"a", "b", "a"});
    result.store(twice, nextOccurrence());
    EXPECT_EQ(entries(), "a@1 b@1");
    result.store(twice, nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2@2 b@1@2");
}

TEST_F(ParseResultStore, KeepsNamesApartOfWhichOneStandsTwiceBeforeAnother) {
    const OptionDescription twice = optionNamed({"a", "b", "a", "c"});
    result.store(twice, nextOccurrence());
    EXPECT_EQ(entries(), "a@1 b@1 c@1");
    result.store(optionNamed({"a"}), nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2 b@1 c@1");
    result.store(twice, nextOccurrence());
    EXPECT_EQ(entries(), "a@1@2@3@3 b@1@3 c@1@3");
}

TEST_F(ParseResultStore, RefusesAnOptionWithoutNames) {
    EXPECT_THROW(result.store(optionNamed({}), nextOccurrence()), std::out_of_range);
    EXPECT_EQ(entries(), "");
}

TEST_F(ParseResultStore, RecordsADefaultUnderEveryNameAtPositionsOfTheirOwn) {
    std::vector<OptionDescription> options = {withDefault({"level", "l", "depth"}, vtInt32, 7)};
    std::string message = "untouched";
    EXPECT_EQ(result.applyDefault(options, message), 0);
    EXPECT_EQ(entries(), "depth default=\"7\"@3 l default=\"7\"@2 level default=\"7\"@1");
    EXPECT_EQ(positions.taken(), 3);
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(result.entries().find("l")->byDefault.value, variant_t(std::int32_t(7)));
}

TEST_F(ParseResultStore, RendersDefaultsOfEveryKind) {
    std::vector<OptionDescription> options = {
        withDefault({"a"}, vtBool, true),
        withDefault({"b"}, vtInt32, std::int32_t(-1)),
        withDefault({"c"}, vtUInt32, std::uint32_t(4294967295U)),
        withDefault({"d"}, vtInt64, std::int64_t(-9000000000)),
        withDefault({"e"}, vtUInt64, std::uint64_t(18446744073709551615U)),
        withDefault({"f"}, vtDouble, 0.1),
        withDefault({"g"}, vtString, "text"),
    };
    std::string message;
    result.applyDefault(options, message);
    EXPECT_EQ(entries(), "a default=\"1\"@1 b default=\"-1\"@2 c default=\"4294967295\"@3 "
                         "d default=\"-9000000000\"@4 e default=\"18446744073709551615\"@5 "
                         "f default=\"0.1\"@6 g default=\"text\"@7");
}

TEST_F(ParseResultStore, RecordsDefaultsInTheOrderOfTheDeclarations) {
    std::vector<OptionDescription> options = {withDefault({"z"}, vtString, "1"), optionNamed({"none"}),
                                              withDefault({"a"}, vtString, "2")};
    std::string message;
    result.applyDefault(options, message);
    EXPECT_EQ(entries(), "a default=\"2\"@2 z default=\"1\"@1");
}

TEST_F(ParseResultStore, RecordsNoDefaultForAnOptionThatTakesNoValue) {
    std::vector<OptionDescription> options = {withDefault({"quiet"}, vtNull, true)};
    std::string message;
    EXPECT_EQ(result.applyDefault(options, message), 0);
    EXPECT_EQ(entries(), "");
    EXPECT_EQ(positions.taken(), 0);
}

TEST_F(ParseResultStore, RecordsTheDefaultOfAGivenOptionBesideItsOccurrences) {
    std::vector<OptionDescription> options = {withDefault({"level"}, vtString, "7")};
    std::string message;
    result.applyDefault(options, message);
    result.store(options[0], nextOccurrence({"5"}));
    EXPECT_EQ(entries(), "level@2=\"5\"@3 default=\"7\"@1");
}

TEST_F(ParseResultStore, KeepsOccurrencesWhenDefaultsAreAppliedAgain) {
    std::vector<OptionDescription> options = {withDefault({"level"}, vtString, "7")};
    std::string message;
    result.applyDefault(options, message);
    result.store(options[0], nextOccurrence({"5"}));
    result.applyDefault(options, message);
    EXPECT_EQ(entries(), "level@2=\"5\"@3 default=\"7\"@4");
}

TEST_F(ParseResultStore, RecordsDefaultsBesideOccurrencesUnderEveryName) {
    const OptionDescription plain = optionNamed({"level", "l"});
    result.store(plain, nextOccurrence({"5"}));
    std::vector<OptionDescription> options = {withDefault({"level", "l"}, vtString, "7")};
    std::string message;
    result.applyDefault(options, message);
    EXPECT_EQ(entries(), "l@1=\"5\"@2 default=\"7\"@4 level@1=\"5\"@2 default=\"7\"@3");
    result.store(plain, nextOccurrence());
    EXPECT_EQ(entries(), "l@1@5=\"5\"@2 default=\"7\"@4 level@1@5=\"5\"@2 default=\"7\"@3");
}

TEST_F(ParseResultStore, KnowsWhetherOneParserAloneHasStored) {
    EXPECT_FALSE(result.isOnlyFrom(5));
    result.noteParser(5);
    EXPECT_TRUE(result.isOnlyFrom(5));
    EXPECT_FALSE(result.isOnlyFrom(6));
    result.store(optionNamed({"a"}), nextOccurrence());
    result.noteParser(5);
    EXPECT_TRUE(result.isOnlyFrom(5));
    result.noteParser(6);
    EXPECT_FALSE(result.isOnlyFrom(5));
    EXPECT_FALSE(result.isOnlyFrom(6));
    result.noteParser(5);
    EXPECT_FALSE(result.isOnlyFrom(5));
}

// A handler may parse with other parsers before anything is stored.
TEST_F(ParseResultStore, IsOfNoParserWhenSeveralBeganBeforeTheFirstStored) {
    for (const std::uint64_t number : {5U, 6U, 6U}) {
        result.noteParser(number);
    }
    result.store(optionNamed({"a"}), nextOccurrence());
    EXPECT_FALSE(result.isOnlyFrom(5));
    EXPECT_FALSE(result.isOnlyFrom(6));
}

TEST_F(ParseResultStore, IsOfNoParserWhenSomebodyElseStoredFirst) {
    result.store(optionNamed({"a"}), nextOccurrence());
    result.noteParser(5);
    EXPECT_FALSE(result.isOnlyFrom(5));
}

// A host can only make such a kind with a cast; it has no text.
TEST_F(ParseResultStore, RecordsAnEmptyDefaultForAKindThatDoesNotExist) {
    std::vector<OptionDescription> options = {
        withDefault({"odd"}, static_cast<das_variant_type_t>(5), std::int32_t(7))};
    std::string message;
    EXPECT_EQ(result.applyDefault(options, message), 0);
    EXPECT_EQ(entries(), "odd default=\"\"@1");
    EXPECT_FALSE(result.present("odd", 0, 2147483647));
}

TEST_F(ParseResultStore, KnowsWhetherAllIsFromOneParser) {
    ParseResult ofOne;
    ofOne.noteParser(5);
    ofOne.noteParser(5);
    EXPECT_TRUE(ofOne.isOnlyFrom(5));
    EXPECT_FALSE(ofOne.isOnlyFrom(6));
    ofOne.noteParser(6);
    EXPECT_FALSE(ofOne.isOnlyFrom(5));
    EXPECT_FALSE(ofOne.isOnlyFrom(6));

    ParseResult ofNobody;
    ofNobody.store(optionNamed({"x"}), nextOccurrence());
    ofNobody.noteParser(5);
    EXPECT_FALSE(ofNobody.isOnlyFrom(5));
}

} // namespace
} // namespace tarv_3_3
