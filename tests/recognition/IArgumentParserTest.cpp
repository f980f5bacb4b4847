#include "recognition/IArgumentParser.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include <cstdlib>

#include "options/OptionDescription.h"
#include "recognition/ValueBinding.h"

namespace tarv_3_3 {
namespace {

TEST(PositionIndex, IsOneAtTheFirstCallInAProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process of its own
    EXPECT_EXIT(std::exit(IArgumentParser::getNewPositionIndex() == 1 ? 0 : 9), testing::ExitedWithCode(0),
                "");
}

TEST(PositionIndex, CountsUpByOne) {
    const int next = IArgumentParser::m_idx;
    EXPECT_EQ(IArgumentParser::getNewPositionIndex(), next);
    EXPECT_EQ(IArgumentParser::m_idx, next + 1);
    EXPECT_EQ(IArgumentParser::getNewPositionIndex(), next + 1);
    EXPECT_EQ(IArgumentParser::m_idx, next + 2);
}

TEST(PositionIndex, GoesOnAtTheSmallestNumberBehindTheLargest) {
    const int before = IArgumentParser::m_idx;
    IArgumentParser::m_idx = std::numeric_limits<int>::max();
    EXPECT_EQ(IArgumentParser::getNewPositionIndex(), 2147483647);
    EXPECT_EQ(IArgumentParser::getNewPositionIndex(), -2147483647 - 1);
    IArgumentParser::m_idx = before;
}

TEST(FormatTokenMessage, QuotesTheArgument) {
    ValueBinding binding;
    std::string token = "--level=x";
    EXPECT_EQ(binding.recognizer.formatTokenMessage(token), " in argument: '--level=x'");
    token.clear();
    EXPECT_EQ(binding.recognizer.formatTokenMessage(token), " in argument: ''");
}

TEST(ValueBinding, StoresAnEmptyValueAsAnOccurrenceWithoutValue) {
    for (const das_variant_type_t type :
         {vtBool, vtInt32, vtUInt32, vtInt64, vtUInt64, vtDouble, vtString, vtNull}) {
        for (const char separator : {',', '\0'}) {
            SCOPED_TRACE(type);
            ValueBinding binding;
            binding.declare("level,l", type).tokenize(separator);
            EXPECT_EQ(binding.bind("", "--level"), "0: level@1");
            EXPECT_EQ(binding.handler.events, "");
            EXPECT_EQ(binding.positions.taken(), 1);
        }
    }
}

TEST(ValueBinding, ChecksNothingOfAnEmptyValue) {
    ValueBinding binding;
    binding.declare("mode", vtString).allowValue("alpha");
    binding.handler.refusedValues = {""};
    EXPECT_EQ(binding.bind("", "--mode"), "0: mode@1");
}

TEST(ValueBinding, KeepsAValueWholeWithoutSeparator) {
    ValueBinding binding;
    binding.declare("files", vtString).tokenize(0);
    EXPECT_EQ(binding.bind(",a,,b,", "--files=,a,,b,"), "0: files@1=\",a,,b,\"@2");
    EXPECT_EQ(binding.handler.events, "value files=\",a,,b,\"@2");
}

TEST(ValueBinding, SplitsAtTheSeparatorAndDropsEmptyPieces) {
    const struct {
        char separator;
        const char* value;
        const char* outcome;
        const char* events;
    } rows[] = {
        {',', "a", "0: files@1=\"a\"@2", "value files=\"a\"@2"},
        {',', "a,b", "0: files@1=\"a\"@2,\"b\"@3", "value files=\"a\"@2; value files=\"b\"@3"},
        {',', "a,,b", "0: files@1=\"a\"@2,\"b\"@3", "value files=\"a\"@2; value files=\"b\"@3"},
        {',', ",a,,b,", "0: files@1=\"a\"@2,\"b\"@3", "value files=\"a\"@2; value files=\"b\"@3"},
        {',', ",,,ab,", "0: files@1=\"ab\"@2", "value files=\"ab\"@2"},
        {',', "a, b", "0: files@1=\"a\"@2,\" b\"@3", "value files=\"a\"@2; value files=\" b\"@3"},
        {',', "a,a", "0: files@1=\"a\"@2,\"a\"@3", "value files=\"a\"@2; value files=\"a\"@3"},
        {',', "a;b", "0: files@1=\"a;b\"@2", "value files=\"a;b\"@2"},
        {';', "a,b;c", "0: files@1=\"a,b\"@2,\"c\"@3", "value files=\"a,b\"@2; value files=\"c\"@3"},
        {' ', " a  b ", "0: files@1=\"a\"@2,\"b\"@3", "value files=\"a\"@2; value files=\"b\"@3"},
        {'=', "a=b", "0: files@1=\"a\"@2,\"b\"@3", "value files=\"a\"@2; value files=\"b\"@3"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        ValueBinding binding;
        binding.declare("files,f", vtString).tokenize(row.separator);
        EXPECT_EQ(binding.bind(row.value, "--files"), row.outcome);
        EXPECT_EQ(binding.handler.events, row.events);
    }
}

TEST(ValueBinding, RefusesAListWithoutPiecesAndNamesTheValueAsTheArgument) {
    for (const auto& row : {std::pair{",", "2: No value parsed in argument ',' for option 'files'"},
                            std::pair{",,,", "2: No value parsed in argument ',,,' for option 'files'"}}) {
        SCOPED_TRACE(row.first);
        ValueBinding binding;
        binding.declare("files,f", vtString);
        EXPECT_EQ(binding.bind(row.first, "--files=" + std::string(row.first)), row.second);
        EXPECT_EQ(binding.handler.events, "");
        EXPECT_EQ(binding.positions.taken(), 1);
    }
}

TEST(ValueBinding, ConvertsToTheKindOfTheOption) {
    const struct {
        das_variant_type_t type;
        const char* text;
        variant_t value;
    } rows[] = {
        {vtBool, "1", variant_t(true)},
        {vtBool, "0", variant_t(false)},
        {vtInt32, "-5", variant_t(std::int32_t{-5})},
        {vtUInt32, "5", variant_t(std::uint32_t{5})},
        {vtInt64, "-5000000000", variant_t(std::int64_t{-5000000000})},
        {vtUInt64, "0x1F", variant_t(std::uint64_t{31})},
        {vtDouble, "2.5", variant_t(2.5)},
        {vtString, "text", variant_t("text")},
    };
    for (const auto& row : rows) {
        for (const char separator : {',', '\0'}) {
            SCOPED_TRACE(row.text);
            ValueBinding binding;
            binding.declare("level", row.type).tokenize(separator);
            binding.bind(row.text, "--level");
            ASSERT_EQ(binding.collector.values.size(), 1U);
            EXPECT_EQ(std::string(textOf(binding.collector.values[0])), row.text);
            EXPECT_TRUE(binding.collector.values[0].value == row.value);
            EXPECT_TRUE(binding.handler.lastValue == row.value);
        }
    }
}

TEST(ValueBinding, RefusesAValueThatDoesNotConvert) {
    for (const char separator : {',', '\0'}) {
        ValueBinding binding;
        binding.declare("level,l", vtInt32).tokenize(separator);
        EXPECT_EQ(
            binding.bind("abc", "-l=abc"),
            "2: Value validation problem in argument '-l=abc': Option 'level' can not parse 'abc' value, "
            "requires a type 'integer' here.");
        EXPECT_EQ(binding.handler.events, "");
        EXPECT_EQ(binding.positions.taken(), 1) << "a value that fails takes no index";
    }
}

TEST(ValueBinding, RefusesAnyValueOfTheNullKind) {
    ValueBinding binding;
    binding.declare("flag", vtNull);
    EXPECT_EQ(binding.bind("x", "x"),
              "2: Value validation problem in argument 'x': Option 'flag' can not parse 'x' value, "
              "requires a type '' here.");
}

TEST(ValueBinding, RefusesAValueThatIsNotAllowed) {
    ValueBinding binding;
    binding.declare("mode", vtString).allowValue("alpha").allowValue("alps").allowValue("beta");
    EXPECT_EQ(binding.bind("x", "--mode=x"),
              "2: Value validation problem in argument '--mode=x': Option 'mode' does not allow value 'x'. "
              "Possible values follows: 'alpha', 'alps', 'beta'");
    EXPECT_EQ(binding.bind("al", "--mode=al"),
              "2: Value validation problem in argument '--mode=al': Ambiguous value for option 'mode'. "
              "Possible values follows: 'alpha', 'alps', 'beta'");
}

TEST(ValueBinding, StoresNothingWhenALaterPieceFails) {
    ValueBinding binding;
    binding.declare("levels", vtInt32);
    EXPECT_EQ(
        binding.bind("1,x,3", "--levels=1,x,3"),
        "2: Value validation problem in argument '--levels=1,x,3': Option 'levels' can not parse 'x' value, "
        "requires a type 'integer' here.");
    EXPECT_EQ(binding.handler.events, "value levels=\"1\"@2");
    EXPECT_EQ(binding.positions.taken(), 2);
}

TEST(ValueBinding, CompletesAnAllowedValueInEventAndResult) {
    for (const char separator : {',', '\0'}) {
        ValueBinding binding;
        binding.declare("mode", vtString).allowValue("alpha").allowValue("beta").tokenize(separator);
        EXPECT_EQ(binding.bind("al", "--mode=al"), "0: mode@1=\"alpha\"@2");
        EXPECT_EQ(binding.handler.events, "value mode=\"alpha\"@2");
        EXPECT_TRUE(binding.collector.values.at(0).value == variant_t("alpha"));
    }
}

TEST(ValueBinding, CompletesEveryPieceOfAList) {
    ValueBinding binding;
    binding.declare("mode", vtString).allowValue("alpha").allowValue("beta");
    EXPECT_EQ(binding.bind("b,al", "--mode=b,al"), "0: mode@1=\"beta\"@2,\"alpha\"@3");
    EXPECT_EQ(binding.handler.events, "value mode=\"beta\"@2; value mode=\"alpha\"@3");
    EXPECT_EQ(binding.value, "b,al");
}

TEST(ValueBinding, LeavesTheCompletedSingleValueToTheCaller) {
    ValueBinding binding;
    binding.declare("mode", vtString).allowValue("alpha").tokenize(0);
    binding.bind("al", "--mode=al");
    EXPECT_EQ(binding.value, "alpha");
}

TEST(ValueVeto, NamesTheCompletedTextOfASingleValue) {
    ValueBinding binding;
    binding.declare("mode,m", vtString).allowValue("alpha").tokenize(0);
    binding.handler.refusedValues = {"alpha"};
    EXPECT_EQ(binding.bind("al", "-m=al"),
              "1: Value 'alpha' is not valid for option 'mode' in argument '-m=al'");
    EXPECT_EQ(binding.handler.events, "value mode=\"alpha\"@2");
    EXPECT_EQ(binding.positions.taken(), 2) << "a vetoed value has taken its index";
}

TEST(ValueVeto, NamesTheWholeTextOfAListAsItWasGiven) {
    ValueBinding binding;
    binding.declare("mode,m", vtString).allowValue("alpha").allowValue("beta");
    binding.handler.refusedValues = {"alpha"};
    EXPECT_EQ(binding.bind("be,al,b", "-m=be,al,b"),
              "1: Value 'be,al,b' is not valid for option 'mode' in argument '-m=be,al,b'");
    EXPECT_EQ(binding.handler.events, "value mode=\"beta\"@2; value mode=\"alpha\"@3");
    EXPECT_EQ(binding.positions.taken(), 3);
}

TEST(ValueVeto, OfTheSecondPieceStoresNothing) {
    ValueBinding binding;
    binding.declare("files", vtString);
    binding.handler.refusedValues = {"b"};
    EXPECT_EQ(binding.bind("a,b", "--files=a,b"),
              "1: Value 'a,b' is not valid for option 'files' in argument '--files=a,b'");
    EXPECT_EQ(binding.handler.events, "value files=\"a\"@2; value files=\"b\"@3");
    EXPECT_EQ(binding.positions.taken(), 3);
}

TEST(ValueBinding, StoresNothingOfAListWhoseHandlerThrewNorInTheNextOne) {
    ValueBinding binding;
    binding.declare("files", vtString);
    binding.handler.thrownAt = "b";
    EXPECT_THROW(binding.bind("a,b", "--files"), std::runtime_error);
    EXPECT_EQ(binding.collector.stored, "");
    EXPECT_EQ(binding.bind("", "--files"), "0: files@4");
}

TEST(ValueBinding, DoesNotExamineWhatStoreReturns) {
    ValueBinding binding;
    binding.declare("level", vtInt32);
    binding.collector.answer = 5;
    EXPECT_EQ(binding.bind("3", "--level=3"), "0: level@1=\"3\"@2");
}

TEST(ValueBinding, TakesIndicesAndTellsHandlersWithoutACollectorToo) {
    ValueBinding binding;
    binding.declare("level", vtInt32);
    EXPECT_EQ(binding.bind("3", "--level=3", nullptr), "0: ");
    EXPECT_EQ(binding.handler.events, "value level=\"3\"@2");
    EXPECT_EQ(binding.positions.taken(), 2);
}

TEST(ValueBinding, NumbersTheOccurrenceBeforeItsValues) {
    ValueBinding binding;
    binding.declare("files", vtString);
    binding.bind("a,b", "--files=a,b");
    binding.bind("", "--files");
    EXPECT_EQ(binding.bind("c", "--files=c"), "0: files@1=\"a\"@2,\"b\"@3 files@4 files@5=\"c\"@6");
}

} // namespace
} // namespace tarv_3_3
