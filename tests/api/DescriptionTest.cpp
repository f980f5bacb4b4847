#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "api/CommandLine.h"
#include "tarv_3_3/description.h"

namespace tarv = tarv_3_3;

namespace {

/// A parser of somebody else's, which nothing may be asked of.
class ForeignParser : public tarv::IParser {
public:
    void destroy() override {}
    int createResult(tarv::IParseResult**) override { return 0; }
    tarv::IOption& option(const char*, const char*, tarv::das_variant_type_t, const char*) override {
        return *m_none;
    }
    tarv::IOption& action(const char*, const char*, tarv::das_variant_type_t, const char*) override {
        return *m_none;
    }
    tarv::IOption& modifier(const char*, const char*, const char*, tarv::das_variant_type_t,
                            const char*) override {
        return *m_none;
    }
    bool isOptionDeclared(const char*, bool, const char*) override { return false; }
    int parseArgsVector(int, const char* const*, tarv::IParseResult*) override { return 0; }
    int parseStream(const char*, tarv::IParseResult*) override { return 0; }
    const char* getErrorDesc() override { return ""; }
    const char* getDescription(bool) override { return ""; }
    const char* getDescription(const char*, bool) override { return ""; }
    const char* getActionModifiersDescription(const char*, bool) override { return ""; }
    const char* getGlobalModifiersDescription(bool) override { return ""; }
    bool addHandler(tarv::EventHandler*) override { return false; }
    bool removeHandler(tarv::EventHandler*) override { return false; }
    bool addOptionFileOption(const char*, const char*) override { return false; }

private:
    tarv::IOption* m_none = nullptr;
};

class ForeignResult : public tarv::IParseResult {
public:
    void destroy() override {}
    bool present(const char*, int, int) override { return true; }
    tarv::Value get(const char*, int, int) override { return {}; }
    tarv::Value next(const char*) override { return {}; }
    int nextPosition() override { return 0; }
    int getFirstArgument(const char**) override { return 1; }
    int getNextArgument(const char**) override { return 1; }
};

TEST(Descriptions, RefuseParsersThatTheLibraryDidNotMake) {
    ForeignParser foreign;
    const CommandLine line;
    for (tarv::IParser* const parser :
         {static_cast<tarv::IParser*>(&foreign), static_cast<tarv::IParser*>(nullptr)}) {
        SCOPED_TRACE(parser == nullptr ? "null" : "foreign");
        EXPECT_EQ(tarv::describe(parser), nullptr);
        EXPECT_EQ(tarv::describeAsJson(parser), nullptr);
        EXPECT_EQ(tarv::suggest(parser, "--levle"), nullptr);
        EXPECT_EQ(tarv::annotate(parser, "level", "value", "N"), 1);
        EXPECT_EQ(tarv::addRule(parser, tarv::ruleRequired, "level"), 1);
        EXPECT_EQ(tarv::checkRules(parser, line.result), 3);
    }
}

TEST(Descriptions, RefuseResultsThatTheLibraryDidNotMake) {
    const CommandLine line;
    ForeignResult foreign;
    EXPECT_EQ(tarv::checkRules(line.parser, &foreign), 3);
    EXPECT_EQ(tarv::checkRules(line.parser, nullptr), 3);
    EXPECT_EQ(tarv::checkRules(line.parser, line.result), 0);
}

TEST(Descriptions, NumberTheirKinds) {
    EXPECT_EQ(tarv::roleAction, 0);
    EXPECT_EQ(tarv::roleOption, 1);
    EXPECT_EQ(tarv::positionalNot, 0U);
    EXPECT_EQ(tarv::positionalFilled, 1U);
    EXPECT_EQ(tarv::positionalUnused, 2U);
    EXPECT_EQ(tarv::ruleRequired, 0);
    EXPECT_EQ(tarv::ruleAtMostOne, 1);
    EXPECT_EQ(tarv::ruleAtLeastOne, 2);
    EXPECT_EQ(tarv::ruleExactlyOne, 3);
    EXPECT_EQ(tarv::ruleAllOrNone, 4);
    EXPECT_EQ(tarv::ruleNeeds, 5);
    EXPECT_EQ(tarv::remarkStored, 0);
    EXPECT_EQ(tarv::remarkRefused, 1);
    EXPECT_EQ(tarv::remarkException, 3);
}

TEST(Descriptions, KeepTheLayoutOfTheirRecords) {
    // The last field of each: others are only ever added behind it.
    EXPECT_EQ(offsetof(tarv::Declaration, noteCount), 104U);
    EXPECT_EQ(offsetof(tarv::Description, asksHandlers), 44U);
    EXPECT_EQ(sizeof(tarv::Note), 16U);
    EXPECT_EQ(sizeof(tarv::Rule), 24U);
}

TEST(Descriptions, OfTwoThousandDeclarationsAreMadeAtOnce) {
    const CommandLine line;
    for (int i = 0; i < 2000; ++i) {
        line.parser->option(("name-of-option-" + std::to_string(i)).c_str(), "", tarv::vtString);
    }
    for (int i = 1999; i >= 0; --i) {
        ASSERT_EQ(tarv::annotate(line.parser, ("name-of-option-" + std::to_string(i)).c_str(), "value", "X"),
                  0);
    }
    const tarv::Description* const description = tarv::describe(line.parser);
    ASSERT_NE(description, nullptr);
    EXPECT_EQ(description->declarationCount, 2000U);
    EXPECT_STREQ(tarv::declarationAt(*description, 1999).names[0], "name-of-option-1999");
    tarv::release(description);
    EXPECT_NE(std::string(tarv::describeAsJson(line.parser)).find("name-of-option-1999"), std::string::npos);
    EXPECT_STREQ(tarv::suggest(line.parser, "--name-of-optoin-1999"),
                 "Did you mean '--name-of-option-1999'?");
}

TEST(Descriptions, FollowWhatAHandlerDeclaresInTheMiddleOfAParse) {
    struct Declaring : EventLog {
        bool onOptionParse(const char*) override {
            parser->option("added", "", tarv::vtNull);
            status = tarv::annotate(parser, "added", "value", "X");
            json = tarv::describeAsJson(parser);
            return true;
        }

        tarv::IParser* parser = nullptr;
        int status = -1;
        std::string json;
    };
    Declaring handler;
    CommandLine line;
    handler.parser = line.parser;
    line.parser->option("level", "", tarv::vtInt32);
    line.parser->addHandler(&handler);
    EXPECT_EQ(line.parse({"--level=1"}), 0);
    EXPECT_EQ(handler.status, 0);
    EXPECT_NE(handler.json.find(R"("names": ["added"], "separator": ",", "notes": {"value": "X"}})"),
              std::string::npos);
}

} // namespace
