#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "api/CommandLine.h"

// The order of virtual operations is part of the binary interface: a host that was built with an
// older header calls them by their places. Here they are called by their places, too, as a compiler
// of the Itanium C++ ABI does: the table is what an object begins with, and `this` is the first
// argument behind the address for a returned record.

namespace tarv = tarv_3_3;

namespace {

template <class Result, class Object, class... Arguments>
Result callSlot(Object* object, std::size_t slot, Arguments... arguments) {
    void* const* table;
    std::memcpy(&table, static_cast<const void*>(object), sizeof table);
    const auto function = reinterpret_cast<Result (*)(Object*, Arguments...)>(table[slot]);
    return function(object, arguments...);
}

std::string called;

/// Stands where `tarv::IOption&` must be returned.
class RecordingOption : public tarv::IOption {
public:
    IOption& synonym(const char*) override { return note("synonym"); }
    IOption& allowValue(const tarv::variant_t&) override { return note("allowValue"); }
    IOption& defaultValue(const tarv::variant_t&) override { return note("defaultValue"); }
    IOption& tokenize(char) override { return note("tokenize"); }
    IOption& positional() override { return note("positional"); }
    IOption& tag(const char*) override { return note("tag"); }
    ~RecordingOption() override { called = "~IOption"; }

private:
    IOption& note(const char* name) {
        called = name;
        return *this;
    }
};

class RecordingResult : public tarv::IParseResult {
public:
    void destroy() override { called = "destroy"; }
    bool present(const char*, int, int) override { return note("present"); }
    tarv::Value get(const char*, int, int) override {
        called = "get";
        return tarv::Value();
    }
    tarv::Value next(const char*) override {
        called = "next";
        return tarv::Value();
    }
    int nextPosition() override { return note("nextPosition"); }
    int getFirstArgument(const char**) override { return note("getFirstArgument"); }
    int getNextArgument(const char**) override { return note("getNextArgument"); }
    ~RecordingResult() override { called = "~IParseResult"; }

private:
    static bool note(const char* name) {
        called = name;
        return true;
    }
};

class RecordingParser : public tarv::IParser {
public:
    bool onOptionParse(const char*) override { return note("onOptionParse"); }
    bool onValueParse(const char*, const tarv::Value&) override { return note("onValueParse"); }
    bool onUknownArgument(const char*) override { return note("onUknownArgument"); }
    void destroy() override { note("destroy"); }
    int createResult(tarv::IParseResult**) override { return note("createResult"); }
    tarv::IOption& option(const char*, const char*, tarv::das_variant_type_t, const char*) override {
        note("option");
        return m_option;
    }
    tarv::IOption& action(const char*, const char*, tarv::das_variant_type_t, const char*) override {
        note("action");
        return m_option;
    }
    tarv::IOption& modifier(const char*, const char*, const char*, tarv::das_variant_type_t,
                            const char*) override {
        note("modifier");
        return m_option;
    }
    bool isOptionDeclared(const char*, bool, const char*) override { return note("isOptionDeclared"); }
    int parseArgsVector(int, const char* const*, tarv::IParseResult*) override {
        return note("parseArgsVector");
    }
    int parseStream(const char*, tarv::IParseResult*) override { return note("parseStream"); }
    const char* getErrorDesc() override { return noteText("getErrorDesc"); }
    const char* getDescription(bool) override { return noteText("getDescription of everything"); }
    const char* getDescription(const char*, bool) override { return noteText("getDescription of a topic"); }
    const char* getActionModifiersDescription(const char*, bool) override {
        return noteText("getActionModifiersDescription");
    }
    const char* getGlobalModifiersDescription(bool) override {
        return noteText("getGlobalModifiersDescription");
    }
    bool addHandler(tarv::EventHandler*) override { return note("addHandler"); }
    bool removeHandler(tarv::EventHandler*) override { return note("removeHandler"); }
    bool addOptionFileOption(const char*, const char*) override { return note("addOptionFileOption"); }
    ~RecordingParser() override { called = "~IParser"; }

private:
    static bool note(const char* name) {
        called = name;
        return true;
    }
    static const char* noteText(const char* name) {
        called = name;
        return name;
    }

    RecordingOption m_option;
};

// Only `this` is passed: the operations of the recording classes look at nothing else.
template <class Object>
std::string operationAt(Object* object, std::size_t slot) {
    called = "nothing";
    callSlot<void>(object, slot);
    return called;
}

TEST(SlotOrder, OfTheParser) {
    const char* const operations[] = {"onOptionParse",
                                      "onValueParse",
                                      "onUknownArgument",
                                      "destroy",
                                      "createResult",
                                      "option",
                                      "action",
                                      "modifier",
                                      "isOptionDeclared",
                                      "parseArgsVector",
                                      "parseStream",
                                      "getErrorDesc",
                                      "getDescription of everything",
                                      "getDescription of a topic",
                                      "getActionModifiersDescription",
                                      "getGlobalModifiersDescription",
                                      "addHandler",
                                      "removeHandler",
                                      "addOptionFileOption"};
    auto* const parser = new RecordingParser;
    std::size_t slot = 0;
    for (const char* const operation : operations) {
        EXPECT_EQ(operationAt<tarv::IParser>(parser, slot), operation);
        ++slot;
    }
    constexpr std::size_t deletingDestructor = 20;
    EXPECT_EQ(operationAt<tarv::IParser>(parser, deletingDestructor), "~IOption");
}

TEST(SlotOrder, OfTheEventHandler) {
    RecordingParser parser;
    auto* const handler = static_cast<tarv::EventHandler*>(&parser);
    EXPECT_EQ(static_cast<void*>(handler), static_cast<void*>(&parser));
    EXPECT_EQ(operationAt(handler, 0), "onOptionParse");
    EXPECT_EQ(operationAt(handler, 1), "onValueParse");
    EXPECT_EQ(operationAt(handler, 2), "onUknownArgument");
}

TEST(SlotOrder, OfTheResult) {
    auto* const result = new RecordingResult;
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 0), "destroy");
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 1), "present");
    called = "nothing";
    callSlot<tarv::Value, tarv::IParseResult>(result, 2);
    EXPECT_EQ(called, "get");
    callSlot<tarv::Value, tarv::IParseResult>(result, 3);
    EXPECT_EQ(called, "next");
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 4), "nextPosition");
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 5), "getFirstArgument");
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 6), "getNextArgument");
    EXPECT_EQ(operationAt<tarv::IParseResult>(result, 8), "~IParseResult");
}

TEST(SlotOrder, OfAnOption) {
    auto* const option = new RecordingOption;
    const char* const operations[] = {"synonym",  "allowValue", "defaultValue",
                                      "tokenize", "positional", "tag"};
    std::size_t slot = 0;
    for (const char* const operation : operations) {
        EXPECT_EQ(operationAt<tarv::IOption>(option, slot), operation);
        ++slot;
    }
    constexpr std::size_t deletingDestructor = 7;
    EXPECT_EQ(operationAt<tarv::IOption>(option, deletingDestructor), "~IOption");
}

// The status is the first member behind the table.
TEST(Layout, OfAnOptionBeginsWithItsStatus) {
    const CommandLine line;
    for (const int status : {0, 1}) {
        tarv::IOption& option = line.parser->option("level", "", tarv::vtInt32);
        int found = -1;
        std::memcpy(&found, reinterpret_cast<const char*>(&option) + sizeof(void*), sizeof found);
        EXPECT_EQ(found, status);
    }
}

TEST(Layout, OfAValueIsItsFourMembersInOrder) {
    const tarv::Value value("text", tarv::variant_t(5), 3);
    const char* const start = reinterpret_cast<const char*>(&value);
    EXPECT_EQ(reinterpret_cast<const char*>(&value.text) - start, 0);
    EXPECT_EQ(reinterpret_cast<const char*>(&value.status) - start, 8);
    EXPECT_EQ(reinterpret_cast<const char*>(&value.position) - start, 12);
    EXPECT_EQ(reinterpret_cast<const char*>(&value.value) - start, 16);
}

/// Notes the arguments that a call leaves out: they are compiled into the host.
class DefaultsOfTheResult : public RecordingResult {
public:
    bool present(const char* name, int lo, int hi) override {
        given = std::to_string(lo) + " to " + std::to_string(hi);
        return RecordingResult::present(name, lo, hi);
    }
    tarv::Value get(const char* name, int lo, int hi) override {
        given = std::to_string(lo) + " to " + std::to_string(hi);
        return RecordingResult::get(name, lo, hi);
    }

    std::string given;
};

class DefaultsOfTheParser : public RecordingParser {
public:
    tarv::IOption& option(const char* names, const char* description, tarv::das_variant_type_t type,
                          const char* topic) override {
        given = "topic '" + std::string(topic) + "'";
        return RecordingParser::option(names, description, type, topic);
    }
    tarv::IOption& action(const char* names, const char* description, tarv::das_variant_type_t type,
                          const char* topic) override {
        given = "topic '" + std::string(topic) + "'";
        return RecordingParser::action(names, description, type, topic);
    }
    tarv::IOption& modifier(const char* names, const char* tags, const char* description,
                            tarv::das_variant_type_t type, const char* topic) override {
        given = "topic '" + std::string(topic) + "'";
        return RecordingParser::modifier(names, tags, description, type, topic);
    }
    const char* getDescription(bool hidden) override {
        given = hidden ? "hidden" : "not hidden";
        return RecordingParser::getDescription(hidden);
    }
    const char* getDescription(const char* topic, bool hidden) override {
        given = hidden ? "hidden" : "not hidden";
        return RecordingParser::getDescription(topic, hidden);
    }
    const char* getActionModifiersDescription(const char* action, bool hidden) override {
        given = hidden ? "hidden" : "not hidden";
        return RecordingParser::getActionModifiersDescription(action, hidden);
    }
    const char* getGlobalModifiersDescription(bool hidden) override {
        given = hidden ? "hidden" : "not hidden";
        return RecordingParser::getGlobalModifiersDescription(hidden);
    }
    bool addOptionFileOption(const char* description, const char* topic) override {
        given = "topic '" + std::string(topic) + "'";
        return RecordingParser::addOptionFileOption(description, topic);
    }

    std::string given;
};

TEST(DefaultArguments, OfTheResultAreAllPositions) {
    DefaultsOfTheResult recorder;
    tarv::IParseResult& result = recorder;
    result.present("level");
    EXPECT_EQ(recorder.given, "0 to 2147483647");
    recorder.given.clear();
    result.get("level");
    EXPECT_EQ(recorder.given, "0 to 2147483647");
    recorder.given.clear();
    tarv::getLastValue(&result, "level");
    EXPECT_EQ(recorder.given, "0 to 2147483647");
}

TEST(DefaultArguments, OfADeclarationAreTheTopicWithoutAName) {
    DefaultsOfTheParser recorder;
    tarv::IParser& parser = recorder;
    parser.option("level", "", tarv::vtInt32);
    EXPECT_EQ(recorder.given, "topic ''");
    recorder.given.clear();
    parser.action("build", "", tarv::vtNull);
    EXPECT_EQ(recorder.given, "topic ''");
    recorder.given.clear();
    parser.modifier("jobs", "build", "", tarv::vtInt32);
    EXPECT_EQ(recorder.given, "topic ''");
    recorder.given.clear();
    parser.addOptionFileOption("");
    EXPECT_EQ(recorder.given, "topic ''");
}

TEST(DefaultArguments, OfHelpLeaveOutWhatIsHidden) {
    DefaultsOfTheParser recorder;
    tarv::IParser& parser = recorder;
    parser.getDescription();
    EXPECT_EQ(recorder.given, "not hidden");
    recorder.given.clear();
    parser.getDescription("level");
    EXPECT_EQ(recorder.given, "not hidden");
    recorder.given.clear();
    parser.getActionModifiersDescription("build");
    EXPECT_EQ(recorder.given, "not hidden");
    recorder.given.clear();
    parser.getGlobalModifiersDescription();
    EXPECT_EQ(recorder.given, "not hidden");
}

TEST(Slots, OfTheLibrarysOwnObjectsParseACommandLine) {
    tarv::IParser* parser = nullptr;
    ASSERT_EQ(tarv::createParser(&parser, tarv::flagRejectUnknown), 0);
    tarv::IParseResult* result = nullptr;
    EXPECT_EQ((callSlot<int, tarv::IParser>(parser, 4, &result)), 0);
    auto* const option = callSlot<tarv::IOption*, tarv::IParser>(parser, 5, "level", "", tarv::vtInt32, "");
    callSlot<tarv::IOption*>(option, 0, "l");
    const char* const argv[] = {"program", "-l=5"};
    EXPECT_EQ((callSlot<int, tarv::IParser>(parser, 9, 2, static_cast<const char* const*>(argv), result)), 0);
    EXPECT_TRUE(callSlot<bool>(result, 1, "level", 0, 2147483647));
    const auto value = callSlot<tarv::Value>(result, 2, "level", 0, 2147483647);
    EXPECT_STREQ(value.text, "5");
    EXPECT_EQ((callSlot<int, tarv::IParser>(parser, 10, "x", result)), 2);
    EXPECT_STREQ((callSlot<const char*, tarv::IParser>(parser, 11)), "Unknown option: x");
    callSlot<void>(result, 0);
    callSlot<void, tarv::IParser>(parser, 3);
}

} // namespace
