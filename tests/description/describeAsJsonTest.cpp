#include <gtest/gtest.h>

#include "parser/BasicParser.h"
#include "support/RecordingHandler.h"
#include "tarv_3_3/description.h"

using namespace tarv_3_3;

namespace {

TEST(DescribeAsJson, OfAnEmptyParserHasEmptyLists) {
    BasicParser parser(0);
    EXPECT_STREQ(describeAsJson(&parser), R"({"format": "tarv-description", "version": "1.1",
"flags": [],
"topics": [],
"declarations": [],
"rules": [],
"checks": []}
)");
}

TEST(DescribeAsJson, HoldsEverythingThatWasSaid) {
    BasicParser parser(flagRejectUnknown | flagPlainArePositional | flagDashIsNotPositional |
                       flagPositionalTakesRest | flagNoLists | 0x40);
    parser.action("build,b", "Builds.", vtNull, "main:What to do");
    parser.modifier("jobs", "test,build", "", vtInt32, "").allowValue(1).allowValue(2).defaultValue(1);
    parser.option("color", "", vtBool, "tarv_hidden").synonym("colour");
    parser.option("files", "", vtString, "main").positional().defaultValue("").tokenize('\t');
    parser.option("", "", vtDouble, "").positional();
    parser.option("jobs", "", vtInt32, "refused");
    parser.addOptionFileOption("", "");
    annotate(&parser, "files", "complete", "file");
    annotate(&parser, "files", "seek.\xFF", "\"");
    addRule(&parser, ruleAtMostOne, "colour,jobs");
    addRule(&parser, ruleRequired, "files");
    addRule(&parser, ruleAtLeastOne, "b,files");
    addRule(&parser, ruleExactlyOne, "b,files");
    addRule(&parser, ruleAllOrNone, "b,files");
    addRule(&parser, ruleNeeds, "b,files,jobs");
    const RelativePositions relative;
    RecordingHandler handler(relative);
    parser.addHandler(&handler);
    EXPECT_STREQ(describeAsJson(&parser), R"({"format": "tarv-description", "version": "1.1",
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional", "positionalTakesRest", "noLists"], "optionFiles": true,
"topics": [
{"name": "main", "title": "What to do"},
{"name": ""},
{"name": "tarv_hidden"},
{"name": "refused"}],
"declarations": [
{"role": "action", "kind": "none", "names": ["build", "b"], "text": "Builds.", "topic": "main", "tags": ["b", "build"]},
{"role": "option", "kind": "int32", "names": ["jobs"], "tags": ["build", "test"], "allowed": ["1", "2"], "separator": ",", "default": "1"},
{"role": "option", "kind": "switch", "names": ["color", "colour"], "topic": "tarv_hidden", "negatable": true, "hidden": true},
{"role": "option", "kind": "string", "names": ["files"], "topic": "main", "separator": "\u0009", "default": "", "positional": "filled", "notes": {"complete": "file", "seek.)"
                                          "\xEF\xBF\xBD"
                                          R"(FF": "\""}},
{"role": "option", "kind": "double", "positional": "unused"},
{"role": "option", "kind": "string", "names": ["option-file"]}],
"rules": [
{"kind": "atMostOne", "names": ["color", "jobs"]},
{"kind": "required", "names": ["files"]},
{"kind": "atLeastOne", "names": ["build", "files"]},
{"kind": "exactlyOne", "names": ["build", "files"]},
{"kind": "allOrNone", "names": ["build", "files"]},
{"kind": "needs", "names": ["build", "files", "jobs"]}],
"checks": [{"opaque": true, "by": "handlers"}]}
)");
}

TEST(DescribeAsJson, NamesEveryKind) {
    const struct {
        das_variant_type_t kind;
        const char* json;
    } rows[] = {
        {vtBool,
         R"({"role": "option", "kind": "switch", "names": ["x"], "separator": ",", "negatable": true}])"},
        {vtInt32, R"({"role": "option", "kind": "int32", "names": ["x"], "separator": ","}])"},
        {vtUInt32, R"({"role": "option", "kind": "uint32", "names": ["x"], "separator": ","}])"},
        {vtInt64, R"({"role": "option", "kind": "int64", "names": ["x"], "separator": ","}])"},
        {vtUInt64, R"({"role": "option", "kind": "uint64", "names": ["x"], "separator": ","}])"},
        {vtDouble, R"({"role": "option", "kind": "double", "names": ["x"], "separator": ","}])"},
        {vtString, R"({"role": "option", "kind": "string", "names": ["x"], "separator": ","}])"},
        {vtNull, R"({"role": "option", "kind": "none", "names": ["x"], "separator": ","}])"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.json);
        BasicParser parser(0);
        parser.option("x", "", row.kind, "");
        const std::string expected = std::string(R"({"format": "tarv-description", "version": "1.1",
"flags": [],
"topics": [
{"name": ""}],
"declarations": [
)") + row.json + R"(,
"rules": [],
"checks": []}
)";
        EXPECT_EQ(describeAsJson(&parser), expected);
    }
}

TEST(DescribeAsJson, IsKeptByTheParserAndFollowsIt) {
    BasicParser parser(0);
    const char* const before = describeAsJson(&parser);
    const std::string copy = before;
    parser.option("x", "", vtNull, "");
    const char* const behind = describeAsJson(&parser);
    EXPECT_EQ(before, copy);
    EXPECT_NE(behind, copy);
    EXPECT_EQ(describeAsJson(&parser), behind);
}

} // namespace
