#include <gtest/gtest.h>

#include <locale>
#include <stdexcept>

#include "parser/Parsing.h"
#include "support/GlobalLocale.h"

namespace tarv_3_3 {
namespace {

using Arguments = std::vector<std::string>;

Arguments argumentsOf(const char* text) {
    BasicParser parser(0);
    Arguments arguments;
    parser.parseStreamToArgs(text, arguments);
    return arguments;
}

TEST(ParseStreamToArgs, TakesOneArgumentFromEachLine) {
    const struct {
        const char* text;
        Arguments arguments;
    } rows[] = {
        {nullptr, {}},
        {"", {}},
        {"\n", {}},
        {"\n\n\n", {}},
        {" \t\v\f\r", {}},
        {" \t\v\f\r\n \r\n", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\nb", {"a", "b"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\rb", {"a\rb"}},
        {"a\r\r\r\n", {"a"}},
        {"a \r\n", {"a "}},
        {"a\r \n", {"a\r "}},
        {"a\t\n", {"a\t"}},
        {" \t a", {"a"}},
        {"\v\f\ra", {"a"}},
        {"\r\na", {"a"}},
        {"-name=a b", {"-name=a b"}},
        {"--name a  b ", {"--name a  b "}},
        {"\"a b\" 'c' \\n", {"\"a b\" 'c' \\n"}},
        {"--", {"--"}},
        {"\xE2\x80\x94v", {"\xE2\x80\x94v"}},
        {"\xFF\x01\x80", {"\xFF\x01\x80"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? row.text : "null");
        EXPECT_EQ(argumentsOf(row.text), row.arguments);
    }
}

TEST(ParseStreamToArgs, SkipsCommentsAndBlankLines) {
    const struct {
        const char* text;
        Arguments arguments;
    } rows[] = {
        {"  # comment\n; comment\n\n-v\r\n", {"-v"}},
        {"#", {}},
        {";", {}},
        {"#a\n \t;b\n", {}},
        {"a # no comment", {"a # no comment"}},
        {"a;b", {"a;b"}},
        {"a\n#b\nc", {"a", "c"}},
        {"//a", {"//a"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(argumentsOf(row.text), row.arguments);
    }
}

TEST(ParseStreamToArgs, ReadsTheTextMinusOneAsAQuestionMark) {
    const struct {
        const char* text;
        Arguments arguments;
    } rows[] = {
        {"-1", {"?"}},    {"-1\n", {"-1"}}, {" -1", {"-1"}},        {"-1\r", {"-1"}},
        {"-10", {"-10"}}, {"-", {"-"}},     {"a\n-1", {"a", "-1"}}, {"?", {"?"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(argumentsOf(row.text), row.arguments);
    }
}

TEST(ParseStreamToArgs, AppendsToTheArguments) {
    BasicParser parser(0);
    Arguments arguments = {"first"};
    parser.parseStreamToArgs("second\nthird", arguments);
    EXPECT_EQ(arguments, (Arguments{"first", "second", "third"}));
}

/// Takes the underscore for a blank, and the carriage return for none.
class UnderscoreIsMoreSpace : public std::ctype<char> {
public:
    UnderscoreIsMoreSpace() : std::ctype<char>(makeTable(), true) {}

private:
    static const mask* makeTable() {
        auto* const table = new mask[table_size];
        std::copy(classic_table(), classic_table() + table_size, table);
        table[static_cast<unsigned char>('_')] |= space;
        table[static_cast<unsigned char>('\r')] = cntrl;
        return table;
    }
};

TEST(ParseStreamToArgs, SkipsWhatTheGlobalLocaleCallsSpaceInFrontOfALine) {
    {
        const GlobalLocale locale(std::locale(std::locale(), new UnderscoreIsMoreSpace));
        EXPECT_EQ(argumentsOf("__a_\n _#b\n___\n\r\r\n\ra\r\n"), (Arguments{"a_", "\ra"}));
    }
    EXPECT_EQ(argumentsOf("_a"), (Arguments{"_a"}));
}

TEST(ParseStream, ParsesNothingFromAnEmptyText) {
    for (const char* const text : {static_cast<const char*>(nullptr), "", "\n", "# nothing"}) {
        Parsing parsing(0x02);
        parsing.parser.action("build", "", vtNull, "");
        EXPECT_EQ(parsing.parseStream(text), 0);
        EXPECT_EQ(parsing.stored(), "");
        EXPECT_EQ(parsing.error(), "");
    }
}

TEST(ParseStream, ChecksTheRulesOnWhatWasStoredBefore) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--level=1"}), 0);
    parsing.parser.action("build", "", vtNull, "");
    EXPECT_EQ(parsing.parseStream(nullptr), 2);
    EXPECT_EQ(parsing.error(), "No action defined.");
}

TEST(ParseStream, AppliesNoDefaults) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    parsing.parser.option("size", "", vtInt32, "").defaultValue(8);
    EXPECT_EQ(parsing.parseStream("--size=9"), 0);
    EXPECT_EQ(parsing.stored(), "size@1=\"9\"@2");
}

TEST(ParseStream, TakesTheFirstLineForAnArgument) {
    Parsing parsing(0x02);
    parsing.parser.option("name,n", "", vtString, "");
    EXPECT_EQ(parsing.parseStream("-n=a b\n--name\nnext line\n-n it's"), 0);
    EXPECT_EQ(parsing.stored(), "n@1@3@5=\"a b\"@2,\"next line\"@4,\"it's\"@6 "
                                "name@1@3@5=\"a b\"@2,\"next line\"@4,\"it's\"@6");
}

TEST(ParseStream, StoresPlainArgumentsBehindTheMarker) {
    Parsing parsing(0x02);
    EXPECT_EQ(parsing.parseStream("--\n--a b\n#no\n\nc"), 0);
    EXPECT_EQ(parsing.plainArguments(), "[--a b][c]");
}

TEST(ParseStream, FailsAsACommandLineDoes) {
    Parsing parsing(0x02);
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parseStream("--level=1\nx\n--level=2"), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: x");
    EXPECT_EQ(parsing.stored(), "level@1=\"1\"@2");
}

TEST(ParseStream, ParsesForStatusAloneWithoutAResult) {
    BasicParser parser(0x02);
    EXPECT_EQ(parser.parseStream("", nullptr), 0);
    EXPECT_EQ(parser.parseStream("x", nullptr), 2);
    EXPECT_STREQ(parser.getErrorDesc(), "Unknown option: x");
}

} // namespace
} // namespace tarv_3_3
