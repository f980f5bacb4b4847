#include "model/readDescription.h"

#include <gtest/gtest.h>

#include <tarv_3_3/description.h>

using namespace tarv_3_3;

namespace tarv_program {
namespace {

constexpr char begin[] =
    R"({"format": "tarv-description", "version": "1.0", "flags": [], "topics": [], "rules": [], "checks": [])";

std::string failure(const std::string& json) {
    try {
        readDescription(json, "it");
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "read";
}

TEST(ReadDescription, NamesThePlaceOfWhatIsWrong) {
    const struct {
        std::string json;
        const char* expected;
    } rows[] = {
        {"", "it:1:1: this is not JSON"},
        {"{\n \"format\": }", "it:2:12: this is not JSON"},
        {"\"\xFF\"", "it:1:2: this is not JSON"},
        {"[]", "it: must be an object"},
        {"1E400", "it: a number is too large"},
        {R"({"format": -1E400})", "it: a number is too large"},
        {"{}", "it: has no member 'format'"},
        {R"({"format": "other", "version": "1.0"})", "it: format: must be tarv-description"},
        {R"({"format": "tarv-description", "version": "2.0"})",
         "it: version: '2.0' is not a version that is known; 1.0 is"},
        {R"({"format": "tarv-description", "version": "1."})",
         "it: version: '1.' is not a version that is known; 1.0 is"},
        {R"({"format": "tarv-description", "version": "1.0"})", "it: has no member 'flags'"},
        {R"({"format": "tarv-description", "version": "1.0", "flags": ["odd"]})",
         "it: flags[0]: 'odd' is not known"},
        {std::string(begin) + R"(, "declarations": {}})", "it: declarations: must be an array"},
        {std::string(begin) + R"(, "declarations": [{"role": "option"}]})",
         "it: declarations[0]: has no member 'kind'"},
        {std::string(begin) + R"(, "declarations": [{"role": "option", "kind": "int"}]})",
         "it: declarations[0].kind: 'int' is not known"},
        {std::string(begin) + R"(, "declarations": [{"role": "option", "kind": "none", "names": ["a", 1]}]})",
         "it: declarations[0].names[1]: must be a text"},
        {std::string(begin) + R"(, "declarations": [{"role": "option", "kind": "none", "separator": ""}]})",
         "it: declarations[0].separator: must be one byte"},
        {std::string(begin) + R"(, "declarations": [{"role": "option", "kind": "none", "hidden": 1}]})",
         "it: declarations[0].hidden: must be true"},
        {std::string(begin) +
             R"(, "declarations": [{"role": "option", "kind": "none", "count": {"least": -1}}]})",
         "it: declarations[0].count.least: must be a number that is not negative"},
        {std::string(begin) +
             ", \"declarations\": [{\"role\": \"option\", \"kind\": \"none\", \"text\": \"\xEF\xBF\xBD"
             "4\"}]}",
         "it: declarations[0].text: holds U+FFFD without the two digits of a byte"},
        {std::string(begin) +
             ", \"declarations\": [{\"role\": \"option\", \"kind\": \"none\", \"text\": \"\xEF\xBF\xBD\"}]}",
         "it: declarations[0].text: holds U+FFFD without the two digits of a byte"},
        {std::string(begin) + R"(, "verbs": [{"flags": []}]})", "it: verbs[0] has no names"},
        {std::string(begin) + R"(, "verbRequired": "no"})", "it: verbRequired: must be true or false"},
        {std::string(begin) + "}", "read"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.json);
        EXPECT_EQ(failure(row.json), row.expected);
    }
}

TEST(ReadDescription, RefusesVerbsThatNeverEnd) {
    std::string verbs;
    std::string ends;
    for (int i = 0; i < 25; ++i) {
        verbs += R"(, "verbs": [{"names": ["v"], "flags": [])";
        ends += "}]";
    }
    EXPECT_EQ(failure(begin + verbs + ends + "}").substr(0, 30), "it: verbs[0].verbs[0].verbs[0]");
}

TEST(ReadDescription, ReadsWhatAProgramOfSeveralVerbsAdds) {
    const CommandLine line = readDescription(R"({"format": "tarv-description", "version": "1.3",
        "program": {"name": "vcs", "version": "2.1", "text": "Tracks\ufffdC3 \ufffdFF."}, "unknown": [1],
        "flags": ["rejectUnknown", "noLists"], "optionFiles": true, "mends": ["numbers"],
        "settings": [{"file": "/etc/vcs"}, {"option": "config"}], "topics": [{"name": "a", "title": "A"}],
        "declarations": [{"role": "option", "kind": "string", "names": ["file"], "positional": "filled",
            "count": {"least": 1, "most": 3}, "notes": {"required": "1"}, "separator": ",",
            "checks": [{"opaque": true, "text": "even"}]}],
        "rules": [{"kind": "needs", "names": ["file", "x"]}],
        "checks": [{"opaque": true, "by": "handlers"}], "verbRequired": false,
        "verbs": [{"names": ["log", "l"], "text": "Show.", "flags": [], "declarations":
            [{"role": "action", "kind": "uint64", "tags": ["t"], "allowed": ["1"], "default": "1",
              "hidden": true, "positional": "unused"}]}]})",
                                             "it");
    EXPECT_EQ(line.minorVersion, 3U);
    EXPECT_EQ(line.names, std::vector<std::string>{"vcs"});
    EXPECT_EQ(line.version, "2.1");
    EXPECT_EQ(line.text, "Tracks\xC3 \xFF.");
    EXPECT_EQ(line.flags, flagRejectUnknown | flagNoLists);
    EXPECT_TRUE(line.readsOptionFiles);
    EXPECT_EQ(line.mends, std::vector<std::string>{"numbers"});
    ASSERT_EQ(line.settings.size(), 2U);
    EXPECT_EQ(line.settings[0].file + "|" + line.settings[1].option, "/etc/vcs|config");
    EXPECT_EQ(line.topics.at(0).name + line.topics.at(0).title, "aA");
    const Option& file = line.options.at(0);
    EXPECT_EQ(file.count->least, 1U);
    EXPECT_EQ(file.count->most, 3U);
    EXPECT_EQ(*file.note("required"), "1");
    EXPECT_EQ(file.note("range"), nullptr);
    EXPECT_EQ(file.separator, ',');
    EXPECT_EQ(file.positional, Positional::filled);
    EXPECT_EQ(file.checks, std::vector<std::string>{"even"});
    EXPECT_EQ(line.rules.at(0).kind, ruleNeeds);
    EXPECT_EQ(line.checks, std::vector<std::string>{"handlers"});
    EXPECT_EQ(line.isVerbRequired, std::optional<bool>(false));
    const CommandLine& verb = line.verbs.at(0);
    EXPECT_EQ(verb.isVerbRequired, std::nullopt);
    EXPECT_EQ(verb.names, (std::vector<std::string>{"log", "l"}));
    EXPECT_EQ(verb.text, "Show.");
    const Option& action = verb.options.at(0);
    EXPECT_TRUE(action.isAction);
    EXPECT_TRUE(action.isHidden);
    EXPECT_EQ(action.kind, vtUInt64);
    EXPECT_EQ(action.positional, Positional::unused);
    EXPECT_EQ(action.defaultText, "1");
}

} // namespace
} // namespace tarv_program
