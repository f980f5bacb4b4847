#include <gtest/gtest.h>

#include "reliability/Session.h"

namespace {

using namespace tarv_3_3;

/// `level` and `verbose` are named, everything else goes to `files`.
struct HostileArguments : testing::Test {
    HostileArguments() {
        open(session);
        session.parser->option("level", "", vtInt32);
        session.parser->option("verbose", "", vtBool);
        session.parser->option("output-file", "", vtString).tokenize(0);
        session.parser->option("files", "", vtString).tokenize(0).positional();
    }

    std::string storedNow() { return stored(session, {"level", "verbose", "output-file", "files"}); }

    Session session;
};

TEST_F(HostileArguments, EmptyOnesArePositionalOccurrencesWithoutAValue) {
    EXPECT_EQ(parse(session, {"", "", "x", ""}), parseOk);
    EXPECT_EQ(storedNow(), "files=x");
    session.result->get("files");
    int occurrences = 0;
    while (session.result->nextPosition() != noPosition) {
        ++occurrences;
    }
    EXPECT_EQ(occurrences, 4);
}

TEST_F(HostileArguments, TenThousandDashesArePositional) {
    const std::string dashes(10000, '-');
    EXPECT_EQ(parse(session, {dashes}), parseOk);
    EXPECT_EQ(session.result->get("files").text, dashes);
}

TEST_F(HostileArguments, ANameOfTenThousandEmptyWordsSelectsNothing) {
    const std::string words = "--level" + std::string(10000, '-') + "=3";
    EXPECT_EQ(parse(session, {words}), parseOk);
    EXPECT_EQ(session.result->get("files").text, words);
    EXPECT_FALSE(session.result->present("level"));
}

TEST_F(HostileArguments, BrokenUtf8IsOrdinaryText) {
    const char* const rows[] = {
        "\xE2",                 // the first byte of an en dash
        "\xE2\x80",             // two bytes of it
        "\xE2\x80\x93\xE2\x80", // a whole one, and a cut one behind it
        "\xC0\xAD",             // an overlong hyphen
        "\xE0\x80\xAD",         // a longer one
        "\xF0\x80\x80\xAD",     // the longest
        "\x80",                 // a continuation byte alone
        "\xFF\xFE",             // bytes that no text has
        "\xED\xA0\x80",         // a surrogate
        "name\xE2\x80",         // cut at the end of a name
        "--\xE2\x80",           // cut where a name begins
        "--\xF0\x9F",           // cut inside a character that is no dash
    };
    for (const char* const row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::string(row)));
        Session fresh;
        open(fresh);
        fresh.parser->option("level", "", vtInt32);
        fresh.parser->option("files", "", vtString).positional();
        EXPECT_EQ(parseAndShow(fresh, {row}, {"level", "files"}), "0 files=" + std::string(row));
    }
}

TEST_F(HostileArguments, BrokenUtf8EndsAValueUnchanged) {
    EXPECT_EQ(parse(session, {"--output-file=\xE2\x80", "-o-f", "\xC0\xAD"}), parseOk);
    EXPECT_EQ(storedNow(), "output-file=\xE2\x80,\xC0\xAD");
}

TEST_F(HostileArguments, AValueOfAMebibyteIsKept) {
    const std::string value(1 << 20, 'v');
    EXPECT_EQ(parse(session, {"--output-file=" + value, "-o-f", value + "2"}), parseOk);
    EXPECT_EQ(session.result->get("output-file").text, value);
    EXPECT_EQ(session.result->next("output-file").text, value + "2");
}

TEST_F(HostileArguments, AListOfAMebibyteIsSplitIntoAllItsPieces) {
    std::string list;
    for (int i = 0; i < 1 << 19; ++i) {
        list += ",x";
    }
    Session fresh;
    open(fresh);
    fresh.parser->option("list", "", vtString);
    EXPECT_EQ(parse(fresh, {"--list=" + list}), parseOk);
    int pieces = 0;
    for (Value value = fresh.result->get("list"); value.status == valueFound;
         value = fresh.result->next("list")) {
        ++pieces;
    }
    EXPECT_EQ(pieces, 1 << 19);
}

TEST_F(HostileArguments, ANumberOfAMebibyteIsOutOfRange) {
    const std::string digits(1 << 20, '9');
    EXPECT_EQ(parse(session, {"--level=" + digits}), parseFailed);
    EXPECT_EQ(session.parser->getErrorDesc(), "Value validation problem in argument '--level=" + digits +
                                                  "': Option 'level' can not parse '" + digits +
                                                  "' value, requires a type 'integer' here.");
}

TEST_F(HostileArguments, ANameOfAMebibyteIsUnknown) {
    Session strict;
    open(strict, flagRejectUnknown);
    strict.parser->option("level", "", vtInt32);
    const std::string argument = "--" + std::string(1 << 20, 'n');
    EXPECT_EQ(parse(strict, {argument}), parseFailed);
    EXPECT_EQ(strict.parser->getErrorDesc(), "Unknown option: " + argument);
}

TEST_F(HostileArguments, ADeclaredNameOfAMebibyteIsFoundByAPrefix) {
    const std::string name = "zeta" + std::string(1 << 20, 'n');
    session.parser->option(name.c_str(), "", vtInt32);
    EXPECT_EQ(parse(session, {"--zet=1", "--" + name + "=2"}), parseOk);
    EXPECT_STREQ(session.result->get(name.c_str()).text, "1");
    EXPECT_STREQ(session.result->next(name.c_str()).text, "2");
}

TEST_F(HostileArguments, TwoHundredThousandAreParsedInOrder) {
    std::vector<std::string> arguments;
    for (int i = 0; i < 200000; ++i) {
        arguments.push_back(std::to_string(i));
    }
    EXPECT_EQ(parse(session, arguments), parseOk);
    int next = 0;
    for (Value value = session.result->get("files"); value.status == valueFound;
         value = session.result->next("files")) {
        ASSERT_EQ(value.text, std::to_string(next));
        ++next;
    }
    EXPECT_EQ(next, 200000);
}

TEST_F(HostileArguments, TwoHundredThousandBehindAPositionalOneAreTaken) {
    Session greedy;
    open(greedy, flagPositionalTakesRest);
    greedy.parser->option("files", "", vtString).positional();
    std::vector<std::string> arguments(200000, "--files");
    arguments[0] = "first";
    EXPECT_EQ(parse(greedy, arguments), parseOk);
    greedy.result->get("files");
    int occurrences = 0;
    while (greedy.result->nextPosition() != noPosition) {
        ++occurrences;
    }
    EXPECT_EQ(occurrences, 200000);
}

TEST_F(HostileArguments, TwoHundredThousandBehindTheMarkerAreKeptInOrder) {
    std::vector<std::string> arguments = {"--"};
    for (int i = 0; i < 200000; ++i) {
        arguments.push_back(std::to_string(i));
    }
    EXPECT_EQ(parse(session, arguments), parseOk);
    const char* text = nullptr;
    int next = 0;
    for (int status = session.result->getFirstArgument(&text); status == valueFound;
         status = session.result->getNextArgument(&text)) {
        ASSERT_EQ(text, std::to_string(next));
        ++next;
    }
    EXPECT_EQ(next, 200000);
}

TEST_F(HostileArguments, FiveThousandDeclarationsAreAllFound) {
    Session many;
    open(many);
    for (int i = 0; i < 5000; ++i) {
        const std::string name = "option-" + std::to_string(i) + "-end";
        ASSERT_EQ(many.parser->option(name.c_str(), "A description.", vtInt32).m_status, declarationStored);
    }
    EXPECT_EQ(many.parser->option("option-4999-end", "", vtInt32).m_status, declarationRefused);
    EXPECT_EQ(parseAndShow(many, {"--option-0-e=1", "--o-4999-e=2", "--option-123-end=3"},
                           {"option-0-end", "option-4999-end", "option-123-end"}),
              "0 option-0-end=1 option-4999-end=2 option-123-end=3");
    EXPECT_EQ(std::string(many.parser->getDescription()).size(), 5000U * 45U + 1U);
}

} // namespace
