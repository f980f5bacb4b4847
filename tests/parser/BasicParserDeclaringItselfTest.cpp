#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "parser/Parsing.h"
#include "result/ParseResult.h"

// A class derived from the concrete parser hears its events although no handler is registered. It may
// declare options in them: that moves the table, under a recognizer that works on one of its records. Only
// the last record is copied for an argument, since events may refine it; so the options here are not last.

namespace tarv_3_3 {
namespace {

/// Declares a hundred options in the first event of the given kind.
class DeclaringParser : public BasicParser {
public:
    enum When { atOption, atValue, atUnknown };

    DeclaringParser(int flags, When when) : BasicParser(flags), m_when(when) {}

    bool onOptionParse(const char* name) override {
        const std::string copy = name;
        declareAt(atOption);
        note("option " + std::string(name));
        EXPECT_EQ(name, copy);
        return true;
    }

    bool onValueParse(const char* name, const Value& value) override {
        const std::string copy = std::string(name) + "=" + value.text;
        declareAt(atValue);
        note("value " + std::string(name) + "=" + value.text);
        EXPECT_EQ(std::string(name) + "=" + value.text, copy);
        return std::string(value.text) != "veto";
    }

    bool onUknownArgument(const char* argument) override {
        const std::string copy = argument;
        declareAt(atUnknown);
        note("unknown " + std::string(argument));
        EXPECT_EQ(argument, copy);
        return true;
    }

    std::string events;

private:
    void note(const std::string& event) { events += (events.empty() ? "" : "; ") + event; }

    void declareAt(When when) {
        if (m_when != when || isOptionDeclared("declared0", false, nullptr)) {
            return;
        }
        for (int i = 0; i < 100; ++i) {
            option(("declared" + std::to_string(i)).c_str(), "", vtString, "");
        }
        reuseFreedMemory();
    }

    // A table that was given back then says something else, whatever its size was.
    void reuseFreedMemory() {
        for (std::size_t size = 64; size <= (1U << 20); size += size / 8) {
            m_blocks.push_back(std::make_unique<std::string>(size, '#'));
        }
    }

    When m_when;
    std::vector<std::unique_ptr<std::string>> m_blocks;
};

struct DeclaringItself : testing::TestWithParam<DeclaringParser::When> {
    using Parsing = ParsingWith<DeclaringParser>;
};

TEST_P(DeclaringItself, BindsTheArgumentAtHandAndTheNext) {
    Parsing parsing(0, GetParam());
    DeclaringParser& parser = parsing.parser;
    parser.option("list,l", "", vtString, "").tokenize(';');
    parser.option("last", "", vtString, "");
    EXPECT_EQ(parsing.parse({"unknown", "--list=a;b", "--list=c"}), parseOk);
    EXPECT_EQ(parser.events,
              "unknown unknown; option list; value list=a; value list=b; option list; value list=c");
    EXPECT_EQ(parsing.stored(), "l@1@4=\"a\"@2,\"b\"@3,\"c\"@5 list@1@4=\"a\"@2,\"b\"@3,\"c\"@5");
    EXPECT_EQ(parsing.parse({"--declared99=x"}), parseOk);
}

TEST_P(DeclaringItself, SaysWhatIsWrongWithAValueBehindIt) {
    Parsing parsing(0, GetParam());
    DeclaringParser& parser = parsing.parser;
    parser.option("number,n", "", vtInt32, "").allowValue(1).allowValue(2);
    parser.option("last", "", vtString, "");
    EXPECT_EQ(parsing.parse({"unknown", "--number=1,3"}), parseFailed);
    EXPECT_STREQ(parser.getErrorDesc(),
                 "Value validation problem in argument '--number=1,3': Option 'number' "
                 "does not allow value '3'. Possible values follows: '1', '2'");
}

TEST_P(DeclaringItself, BindsPositionalArguments) {
    for (const int flags : {0, int(flagPositionalTakesRest)}) {
        SCOPED_TRACE(flags);
        Parsing parsing(flags, GetParam());
        DeclaringParser& parser = parsing.parser;
        parser.option("files", "", vtString, "").positional();
        parser.option("last", "", vtString, "");
        EXPECT_EQ(parsing.parse({"a,b", "c", "veto"}), parseVetoed);
        EXPECT_EQ(parser.events, "option files; value files=a; value files=b; option files; value files=c; "
                                 "option files; value files=veto");
        EXPECT_STREQ(parser.getErrorDesc(),
                     "Value 'veto' is not valid for option 'files' in argument 'veto'");
        EXPECT_STREQ(parsing.result.get("files", 0, noPosition).text, "a");
    }
}

TEST_P(DeclaringItself, BindsPlainArguments) {
    Parsing parsing(flagPlainArePositional, GetParam());
    DeclaringParser& parser = parsing.parser;
    parser.option("files", "", vtString, "").positional().allowValue("text").allowValue("table");
    parser.option("last", "", vtString, "");
    EXPECT_EQ(parsing.parse({"--", "text,te", "ta", "none"}), parseFailed);
    EXPECT_EQ(
        parser.events,
        "option files; value files=text; value files=text; option files; value files=table; option files");
    EXPECT_STREQ(parser.getErrorDesc(),
                 "Value validation problem in argument 'none': Option 'files' does not allow "
                 "value 'none'. Possible values follows: 'text', 'table'");
    EXPECT_EQ(parsing.stored(), "files@2@6=\"text\"@3,\"text\"@4,\"table\"@7");
}

std::string nameOf(const testing::TestParamInfo<DeclaringParser::When>& event) {
    const char* const names[] = {"AtOption", "AtValue", "AtUnknown"};
    return names[event.param];
}

INSTANTIATE_TEST_SUITE_P(InEveryEvent, DeclaringItself,
                         testing::Values(DeclaringParser::atOption, DeclaringParser::atValue,
                                         DeclaringParser::atUnknown),
                         nameOf);

} // namespace
} // namespace tarv_3_3
