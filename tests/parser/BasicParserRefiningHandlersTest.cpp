#include <gtest/gtest.h>

#include <functional>
#include <locale>

#include "parser/Parsing.h"
#include "support/GlobalLocale.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {
namespace {

/// Refines the last option that was declared while it is told of it. That option is called `list`.
class RefiningHandler : public ::testing::Test, public EventHandler {
protected:
    RefiningHandler() { parsing.parser.addHandler(this); }

    bool onOptionParse(const char*) override {
        onOption();
        return true;
    }

    bool onValueParse(const char*, const Value&) override {
        onValue();
        return true;
    }

    bool onUknownArgument(const char*) override { return true; }

    std::function<void()> onOption = [] {};
    std::function<void()> onValue = [] {};
    Parsing parsing;
};

TEST_F(RefiningHandler, SplitsTheNextArgumentOtherwiseAndNotThisOne) {
    IOption& list = parsing.parser.option("list", "", vtString, "");
    onOption = [&] { list.tokenize(';'); };
    EXPECT_EQ(parsing.parse({"--list=a,b;c", "--list=a,b;c"}), 0);
    EXPECT_EQ(parsing.stored(), "list@1@4=\"a\"@2,\"b;c\"@3,\"a,b\"@5,\"c\"@6");
}

TEST_F(RefiningHandler, RestrictsTheNextArgumentAndNotTheRestOfThisOne) {
    IOption& list = parsing.parser.option("list", "", vtString, "");
    onValue = [&] { list.allowValue("a"); };
    EXPECT_EQ(parsing.parse({"--list=a,b", "--list=b"}), 2);
    EXPECT_EQ(parsing.stored(), "list@1=\"a\"@2,\"b\"@3");
    EXPECT_EQ(parsing.error(), "Value validation problem in argument '--list=b': Option 'list' does not "
                               "allow value 'b'. Possible values follows: 'a', 'a'");
}

TEST_F(RefiningHandler, NamesTheNextArgumentOtherwiseAndNotThisOne) {
    IOption& list = parsing.parser.option("list", "", vtString, "");
    onOption = [&] {
        list.synonym("other");
        onOption = [] {};
    };
    EXPECT_EQ(parsing.parse({"--list=a"}), 0);
    EXPECT_EQ(parsing.stored(), "list@1=\"a\"@2");
    EXPECT_EQ(parsing.parse({"--other=b"}), 0);
    EXPECT_EQ(parsing.stored(), "list@1@3=\"a\"@2,\"b\"@4 other@3=\"b\"@4");
}

TEST_F(RefiningHandler, SplitsTheNextPositionalArgumentOtherwise) {
    IOption& list = parsing.parser.option("list", "", vtString, "").positional();
    onOption = [&] { list.tokenize(';'); };
    EXPECT_EQ(parsing.parse({"a,b;c", "a,b;c"}), 0);
    EXPECT_EQ(parsing.stored(), "list@1@4=\"a\"@2,\"b;c\"@3,\"a,b\"@5,\"c\"@6");
}

TEST_F(RefiningHandler, SplitsNoneOtherwiseOfAllTheRestThatIsPositional) {
    Parsing rest(0x10);
    rest.parser.addHandler(this);
    IOption& list = rest.parser.option("list", "", vtString, "").positional();
    onOption = [&] { list.tokenize(';'); };
    EXPECT_EQ(rest.parse({"a,b;c", "a,b;c"}), 0);
    EXPECT_EQ(rest.stored(), "list@1@4=\"a\"@2,\"b;c\"@3,\"a\"@5,\"b;c\"@6");
}

TEST_F(RefiningHandler, SplitsTheNextPlainArgumentOtherwise) {
    Parsing plain(0x04);
    plain.parser.addHandler(this);
    IOption& list = plain.parser.option("list", "", vtString, "").positional();
    onOption = [&] { list.tokenize(';'); };
    EXPECT_EQ(plain.parse({"--", "a,b;c", "a,b;c"}), 0);
    EXPECT_EQ(plain.stored(), "list@2@6=\"a\"@3,\"b;c\"@4,\"a,b\"@7,\"c\"@8");
}

TEST_F(RefiningHandler, ChangesWhatIsWhiteSpaceInTheNextArgument) {
    parsing.parser.option("list", "", vtString, "");
    const GlobalLocale before{std::locale()};
    onOption = [] { std::locale::global(UnderscoreIsSpace::locale()); };
    EXPECT_EQ(parsing.parse({"--list a", "--list_b c"}), 0);
    EXPECT_EQ(parsing.stored(), "list@1@3=\"a\"@2,\"b c\"@4");
}

/// A parser that refines its option itself when it is told of a value.
class RefiningParser : public BasicParser {
public:
    explicit RefiningParser(int flags)
        : BasicParser(flags), m_list(option("list", "", vtString, "").positional()) {}

    bool onValueParse(const char*, const Value&) override {
        m_list.allowValue("a");
        return true;
    }

private:
    IOption& m_list;
};

TEST(RefiningParser, RestrictsTheNextArgumentAndNotTheRestOfThisOne) {
    const struct {
        const char* kind;
        int flags;
        std::vector<const char*> arguments;
        const char* stored;
    } rows[] = {
        {"named", 0, {"--list=a,b", "--list=b"}, "list@1=\"a\"@2,\"b\"@3"},
        {"positional", 0, {"a,b", "b"}, "list@1=\"a\"@2,\"b\"@3"},
        {"plain", 0x04, {"--", "a,b", "b"}, "list@2=\"a\"@3,\"b\"@4"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.kind);
        ParsingWith<RefiningParser> parsing(row.flags);
        EXPECT_EQ(parsing.parse(row.arguments), 2);
        EXPECT_EQ(parsing.stored(), row.stored);
    }
}

} // namespace
} // namespace tarv_3_3
