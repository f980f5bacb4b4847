#include <gtest/gtest.h>

#include <string>

#include "parser/BasicParser.h"
#include "tarv_3_3/description.h"

using namespace tarv_3_3;

namespace {

/// The notes of the declaration at a place, as `key:value key:value`.
std::string notesOf(BasicParser& parser, unsigned place) {
    const Description* const description = describe(&parser);
    const Declaration& record = declarationAt(*description, place);
    std::string line;
    for (unsigned i = 0; i < record.noteCount; ++i) {
        line.append(i == 0 ? "" : " ").append(record.notes[i].key).append(":").append(record.notes[i].value);
    }
    release(description);
    return line;
}

TEST(Annotate, TakesTheKeysThatItKnowsAndThoseWithADot) {
    const struct {
        const char* key;
        const char* value;
        int status;
    } rows[] = {
        {"complete", "file", 0},
        {"complete", "directory", 0},
        {"complete", "none", 0},
        {"complete", "files", 1},
        {"complete", "", 1},
        {"environment", "VARIABLE", 0},
        {"required", "1", 0},
        {"required", "0", 1},
        {"required", "11", 1},
        {"value", "", 0},
        {"deprecated", "", 0},
        {"range", "1..99", 0},
        {"Value", "", 1},
        {"completes", "file", 1},
        {"icon", "x", 1},
        {"", "x", 1},
        {".", "x", 0},
        {"seek.icon", "\xFF\n", 0},
        {"complete.", "what", 0},
        {nullptr, "x", 1},
        {"value", nullptr, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.key != nullptr ? row.key : "null") + ":" +
                     (row.value != nullptr ? row.value : "null"));
        BasicParser parser(0);
        parser.option("file", "", vtString, "");
        EXPECT_EQ(annotate(&parser, "file", row.key, row.value), row.status);
        const std::string stored =
            row.status == 0 ? std::string(row.key).append(":").append(row.value) : std::string();
        EXPECT_EQ(notesOf(parser, 0), stored);
    }
}

TEST(Annotate, FindsADeclarationByAnyExactName) {
    BasicParser parser(0);
    parser.option("first", "", vtNull, "");
    parser.option("output-file,o", "", vtBool, "").synonym("to").synonym("first");
    parser.option("", "", vtString, "").positional();
    const struct {
        const char* name;
        int status;
        const char* notesOfFirst;
        const char* notesOfSecond;
    } rows[] = {
        {"output", 1, "", ""},
        {"no-o", 1, "", ""},
        {"", 1, "", ""},
        {nullptr, 1, "", ""},
        {"output-file", 0, "", "value:output-file"},
        {"o", 0, "", "value:o"},
        {"to", 0, "", "value:to"},
        {"first", 0, "value:first", "value:to"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name != nullptr ? row.name : "null");
        EXPECT_EQ(annotate(&parser, row.name, "value", row.name != nullptr ? row.name : ""), row.status);
        EXPECT_EQ(notesOf(parser, 0), row.notesOfFirst);
        EXPECT_EQ(notesOf(parser, 1), row.notesOfSecond);
    }
}

TEST(Annotate, ReplacesWhatWasSaidUnderTheSameKeyInItsPlace) {
    BasicParser parser(0);
    parser.option("file", "", vtString, "");
    annotate(&parser, "file", "value", "FILE");
    annotate(&parser, "file", "complete", "file");
    annotate(&parser, "file", "value", "PATH");
    EXPECT_EQ(notesOf(parser, 0), "value:PATH complete:file");
}

TEST(Annotate, CopiesWhatItIsTold) {
    BasicParser parser(0);
    parser.option("file", "", vtString, "");
    char key[] = "a.key";
    char value[] = "value";
    annotate(&parser, "file", key, value);
    key[0] = 'X';
    value[0] = 'X';
    EXPECT_EQ(notesOf(parser, 0), "a.key:value");
}

TEST(Annotate, MayGoBackToAnEarlierDeclaration) {
    BasicParser parser(0);
    parser.option("a", "", vtString, "");
    parser.option("b", "", vtString, "");
    annotate(&parser, "b", "value", "B");
    annotate(&parser, "a", "value", "A");
    EXPECT_EQ(notesOf(parser, 0), "value:A");
    EXPECT_EQ(notesOf(parser, 1), "value:B");
}

TEST(Annotate, ChangesNothingOfAParse) {
    BasicParser parser(flagRejectUnknown);
    parser.option("file", "", vtString, "");
    annotate(&parser, "file", "required", "1");
    IParseResult* result = nullptr;
    parser.createResult(&result);
    EXPECT_EQ(parser.parseArgsVector(0, nullptr, result), parseOk);
    EXPECT_EQ(checkRules(&parser, result), parseOk);
    result->destroy();
}

} // namespace
