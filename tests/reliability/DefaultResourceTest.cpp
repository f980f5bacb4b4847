#include <gtest/gtest.h>

#include <memory>
#include <memory_resource>
#include <string>
#include <vector>

#include "reliability/Session.h"
#include "support/TemporaryDirectory.h"
#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/explain.h"
#include "tarv_3_3/typed.h"

namespace {

using namespace tarv_3_3;

/// Makes a resource the default one of the process, for as long as it lives.
class DefaultResource {
public:
    explicit DefaultResource(std::pmr::memory_resource* resource)
        : m_former(std::pmr::set_default_resource(resource)) {}
    DefaultResource(const DefaultResource&) = delete;
    DefaultResource& operator=(const DefaultResource&) = delete;
    ~DefaultResource() { std::pmr::set_default_resource(m_former); }

private:
    std::pmr::memory_resource* m_former;
};

/// Declares and parses in the middle of an event.
class Meddling final : public EventHandler {
public:
    explicit Meddling(IParser& parser) : m_parser(parser) {}

    bool onOptionParse(const char* name) override {
        if (std::string(name) == "number") {
            m_parser.option("declared-by-a-handler", "", vtString).synonym("a-synonym-of-some-length");
            m_parser.parseStream("--switch\n--text=from-the-handler", nullptr);
        }
        return true;
    }

private:
    IParser& m_parser;
};

void declareEveryKind(IParser& parser) {
    parser.action("build,b", "Makes the program.", vtNull, "work:What is to be done");
    parser.action("test", "Runs the tests.", vtNull, "work");
    parser.option("switch,s", "A switch.", vtBool).defaultValue(true);
    parser.option("number,n", "A number of some description.", vtInt32)
        .synonym("count-of-things")
        .synonym("a-synonym-longer-than-a-short-text")
        .allowValue(3)
        .allowValue(4);
    parser.option("unsigned-number", "", vtUInt32).defaultValue(7U);
    parser.option("large-number", "", vtInt64);
    parser.option("hexadecimal-number", "", vtUInt64);
    parser.option("ratio", "", vtDouble).defaultValue(1.5);
    parser.option("text", "", vtString).defaultValue("a default longer than a short text");
    parser.option("nothing", "Takes no value.", vtNull, "tarv_hidden:Hidden");
    parser.modifier("jobs,j", "build,test", "How many at once.", vtInt32).tag("more");
    parser.option("switch", "Is refused.", vtBool).synonym("of-the-placeholder").tag("placeholder");
    parser.option("files", "", vtString).positional();
    parser.addOptionFileOption("Reads more arguments.");
}

std::string help(IParser& parser) {
    std::string text;
    for (const bool hidden : {false, true}) {
        text += parser.getDescription(hidden);
        text += parser.getDescription("number", hidden);
        text += parser.getDescription("unknown", hidden);
        text += parser.getActionModifiersDescription("build", hidden);
        text += parser.getGlobalModifiersDescription(hidden);
    }
    return text;
}

/// What is declared, explained, offered and proposed.
std::string answers(IParser& parser) {
    std::string text = describeAsJson(&parser);
    const char* const argv[] = {"program", "--sw", "--unknown-argument", "--numb=3", "file"};
    const Explanation* const explanation = explain(&parser, 5, argv);
    for (unsigned i = 0; i < explanation->argumentCount; ++i) {
        text += std::string("|") + explainedAt(*explanation, i).name;
    }
    release(explanation);
    const char* const words[] = {"program", "--a-synonym-longer"};
    const Completion* const completion = complete(&parser, 2, words);
    text += std::string("|") + completion->common;
    release(completion);
    return text + "|" + suggest(&parser, "--txet");
}

/// What is stored, and the help in full.
std::string live(Session& session, const std::string& optionFile) {
    open(session, flagPlainArePositional);
    declareEveryKind(*session.parser);
    Meddling handler(*session.parser);
    session.parser->addHandler(&handler);
    std::string told = std::to_string(parse(
        session, {"--build", "--option-file=" + optionFile, "--no-switch", "--number=3,4", "--large=-5",
                  "--hexadecimal=ff", "--text=a value longer than a short text", "a.txt", "--", "b.txt"}));
    told += std::to_string(session.parser->parseStream("--jobs=2\n--a-synonym-longer=4", session.result));
    told += std::to_string(parse(session, {"--number=5"}));
    told += std::string(" ") + session.parser->getErrorDesc() + " ";
    told += stored(session, {"switch", "n", "unsigned-number", "large-number", "hexadecimal-number", "ratio",
                             "text", "j", "files"});
    told += getLastValue(session.result, "number").text;
    session.parser->removeHandler(&handler);
    return told + "\n" + help(*session.parser) + answers(*session.parser);
}

/// What a program of the typed face says.
std::string liveTyped() {
    typed::Program tool("tool", "1.0", "A tool with a description that is longer than a short text.");
    auto names = tool.option<std::vector<std::string>>("name,n", "A list.").completeAs("file");
    auto level = tool.option("level,l", "A number.", 3).range(0, 9).env("TARV_TEST_LEVEL");
    auto rest = tool.positional<std::vector<std::string>>("file", "What is left.").required();
    const char* const line[] = {"tool", "--name=a name longer than a short text,b", "-l", "5", "a.txt"};
    std::string told = tool.parse(5, line).errors();
    told += names->front() + rest->front() + std::to_string(*level);
    const char* const wrong[] = {"tool", "--level=50"};
    told += tool.parse(2, wrong).errors();
    const char* const asking[] = {"tool", "--help"};
    told += tool.parse(2, asking).output();
    return told;
}

class DefaultResources : public testing::Test {
protected:
    TemporaryDirectory directory;
    std::string optionFile = directory.write("options", "--number=4\n--nothing\n");
};

TEST_F(DefaultResources, AreNotUsedInAWholeLife) {
    std::string expected;
    {
        Session session;
        expected = live(session, optionFile);
    }
    EXPECT_NE(expected.find("switch=0 n=3,4,4,4 unsigned-number=7"), std::string::npos) << expected;
    EXPECT_NE(expected.find("|switch||number||--a-synonym-longer-than-a-short-text=|Did you mean"),
              std::string::npos)
        << expected;
    const DefaultResource none(std::pmr::null_memory_resource());
    Session session;
    EXPECT_EQ(live(session, optionFile), expected);
}

TEST_F(DefaultResources, AreNotUsedByAProgramOfTheTypedFace) {
    const std::string expected = liveTyped();
    EXPECT_EQ(expected.find("a name longer than a short texta.txt5tool: "), 0U) << expected;
    const DefaultResource none(std::pmr::null_memory_resource());
    EXPECT_EQ(liveTyped(), expected);
}

TEST_F(DefaultResources, MayEndBeforeTheNextParse) {
    Session session;
    {
        auto resource = std::make_unique<std::pmr::monotonic_buffer_resource>();
        const DefaultResource scoped(resource.get());
        live(session, optionFile);
    }
    for (int i = 0; i < 100; ++i) {
        const std::string name = "name-of-another-option-" + std::to_string(i);
        session.parser->option(name.c_str(), "", vtString).synonym((name + "-again").c_str());
        ASSERT_EQ(parse(session, {"--build", "--number=3,4", "--" + name + "=a value of some length"}), 0);
    }
    EXPECT_EQ(stored(session, {"name-of-another-option-99-again"}),
              "name-of-another-option-99-again=a value of some length -- b.txt");
    EXPECT_STRNE(session.parser->getDescription(), "");
}

} // namespace
