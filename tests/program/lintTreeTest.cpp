#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <tarv_3_3/description.h>

#include "Described.h"
#include "lint/lintScript.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

Word known(const std::string& text) {
    Word word;
    word.text = text;
    return word;
}

TEST(ProgramPlace, IsBehindCommandsThatRunOthers) {
    const struct {
        std::vector<const char*> words;
        std::size_t expected;
    } rows[] = {
        {{"pack", "x"}, 0},
        {{"/usr/bin/pack", "x"}, 0},
        {{"packer", "x"}, 2},
        {{"echo", "pack"}, 2},
        {{"sudo", "pack"}, 1},
        {{"sudo", "-n", "-u", "me", "LANG=C", "pack"}, 5},
        {{"sudo", "-nu", "pack", "pack"}, 3},
        {{"sudo", "--user", "me", "--", "pack"}, 4},
        {{"sudo", "apt", "install", "pack"}, 4},
        {{"env", "-i", "A=b", "pack"}, 3},
        {{"xargs", "-0", "-n1", "-P", "4", "pack"}, 5},
        {{"xargs", "-I{}", "pack", "{}"}, 2},
        {{"timeout", "-k", "1", "60", "pack"}, 4},
        {{"nice", "nohup", "time", "-o", "f", "exec", "-a", "n", "pack"}, 8},
        {{"timeout"}, 1},
        {{"sudo", "-u"}, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.words));
        Call call;
        for (const char* const text : row.words) {
            call.push_back(known(text));
        }
        EXPECT_EQ(programPlace(call, "pack"), row.expected);
    }
}

Call callOf(const std::vector<const char*>& words) {
    Call call;
    for (const char* const text : words) {
        call.push_back(known(text));
    }
    return call;
}

TEST(ProgramPlace, IsBehindEveryRunnerAndTheValuesOfItsOptions) {
    const struct {
        const char* runner;
        std::vector<const char*> optionsWithValues;
    } rows[] = {
        {"sudo", {"-u",          "-g",
                  "-C",          "-c",
                  "-D",          "-h",
                  "-p",          "-r",
                  "-R",          "-t",
                  "-T",          "-U",
                  "--user",      "--group",
                  "--chdir",     "--close-from",
                  "--host",      "--prompt",
                  "--chroot",    "--role",
                  "--type",      "--command-timeout",
                  "--other-user"}},
        {"doas", {"-u", "-C"}},
        {"env", {"-u", "-C", "-S", "--unset", "--chdir", "--split-string"}},
        {"xargs",
         {"-a", "-d", "-E", "-I", "-L", "-n", "-P", "-s", "--arg-file", "--delimiter", "--max-args",
          "--max-procs", "--max-chars", "--max-lines"}},
        {"nice", {"-n", "--adjustment"}},
        {"ionice", {"-c", "-n", "-p", "-P", "-u", "--class", "--classdata"}},
        {"nohup", {}},
        {"setsid", {}},
        {"stdbuf", {"-i", "-o", "-e", "--input", "--output", "--error"}},
        {"time", {"-f", "-o", "--format", "--output"}},
        {"command", {}},
        {"builtin", {}},
        {"exec", {"-a"}},
        {"busybox", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.runner);
        EXPECT_EQ(programPlace(callOf({row.runner, "pack"}), "pack"), 1U);
        EXPECT_EQ(programPlace(callOf({row.runner, "-z", "pack", "x"}), "pack"), 2U);
        for (const char* const option : row.optionsWithValues) {
            EXPECT_EQ(programPlace(callOf({row.runner, option, "pack", "pack"}), "pack"), 3U) << option;
        }
    }
    for (const char* const option : {"-k", "-s", "--kill-after", "--signal"}) {
        EXPECT_EQ(programPlace(callOf({"timeout", option, "x", "pack", "pack"}), "pack"), 4U) << option;
    }
}

TEST(InnerCalls, AreThoseBehindExecOfFind) {
    const struct {
        std::vector<const char*> words;
        std::vector<std::vector<std::string>> expected;
    } rows[] = {
        {{"find", "-exec", "pack", "x", ";"}, {{"pack", "x"}}},
        {{"find", ".", "-execdir", "pack", "{}", "+", "-ok", "ls", "+", ";", "-okdir", "rm", "{}", ";"},
         {{"pack", "{}"}, {"ls", "+"}, {"rm", "{}"}}},
        {{"sudo", "/usr/bin/find", "-exec", "pack"}, {{"pack"}}},
        {{"find", "-exec", ";", "-print"}, {}},
        {{"find", "-name", "pack"}, {}},
        {{"echo", "-exec", "pack", ";"}, {}},
        {{"find", "-exec"}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.words));
        std::vector<std::vector<std::string>> found;
        for (const Call& inner : innerCalls(callOf(row.words), "", nullptr)) {
            found.emplace_back();
            for (const Word& word : inner) {
                found.back().push_back(word.text);
            }
        }
        EXPECT_EQ(found, row.expected);
    }
}

TEST(InnerCalls, AreInTheScriptThatAShellIsGiven) {
    const struct {
        std::vector<const char*> words;
        const char* expected;
    } rows[] = {
        {{"sh", "-c", "script"}, "script"},
        {{"/bin/bash", "-ec", "script", "name"}, "script"},
        {{"env", "A=b", "bash", "--norc", "-euo", "pipefail", "-c", "script"}, "script"},
        {{"bash", "--rcfile", "file", "+o", "history", "-c", "-x", "script"}, "script"},
        {{"busybox", "sh", "-c", "--", "script"}, "script"},
        {{"dash", "-c", "-", "script"}, "script"},
        {{"sh", "file", "-c", "script"}, ""},
        {{"sh", "-e", "script"}, ""},
        {{"sh", "--color", "script"}, ""},
        {{"sh", "-c"}, ""},
        {{"sh", "-c", "-o"}, ""},
        {{"fish", "-c", "script"}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.words));
        std::string asked;
        innerCalls(callOf(row.words), "", [&](const std::string& script) {
            asked += script;
            return "";
        });
        EXPECT_EQ(asked, row.expected);
    }
}

// A script of two words, of which the second begins at the ninth byte.
const char treeOfTwoWords[] = R"({"Type": "File", "Stmts": [{"Cmd": {"Type": "CallExpr", "Args": [
    {"Pos": {"Offset": 0, "Line": 1, "Col": 1}, "Parts": [
        {"Type": "Lit", "Value": "pack", "ValuePos": {"Offset": 0, "Line": 1, "Col": 1}}]},
    {"Pos": {"Offset": 8, "Line": 2, "Col": 3}, "Parts": [
        {"Type": "Lit", "Value": "--out", "ValuePos": {"Offset": 8, "Line": 2, "Col": 3}}]}]}}]})";

TEST(InnerCalls, StandWhereTheirBytesStandInTheScriptAround) {
    const std::string script = "true\nsh -c 'pack \\\n --out'";
    Call call = callOf({"sh", "-c", "pack \\\n --out"});
    Word& argument = call[2];
    argument.line = 2;
    argument.column = 7;
    argument.offset = 11;
    for (std::size_t i = 0; i < argument.text.size(); ++i) {
        argument.offsets.push_back(12 + i);
    }
    const auto read = [](const std::string&) { return treeOfTwoWords; };
    std::vector<Call> inner = innerCalls(call, script, read);
    ASSERT_EQ(inner.size(), 1U);
    EXPECT_EQ(inner[0][0].line, 2U);
    EXPECT_EQ(inner[0][0].column, 8U);
    EXPECT_EQ(inner[0][1].text, "--out");
    EXPECT_EQ(inner[0][1].line, 3U);
    EXPECT_EQ(inner[0][1].column, 2U);
    EXPECT_TRUE(inner[0][1].isContiguous(0, 5));

    argument.offsets.assign(argument.text.size(), Word::none);
    inner = innerCalls(call, script, read);
    EXPECT_EQ(inner[0][1].line, 2U);
    EXPECT_EQ(inner[0][1].column, 7U);
    EXPECT_FALSE(inner[0][1].isContiguous(0, 5));

    argument.firstUnknown = 5;
    EXPECT_EQ(innerCalls(call, script, read).size(), 0U);
}

TEST(ReadCalls, RefusesWhatIsNoSyntaxTree) {
    for (const char* const tree :
         {"", "{", "[]", "null", R"({"Type": "CallExpr"})", R"({"Type": 1})",
          R"({"Type": "File", "Cmd": {"Type": "CallExpr", "Args": 1}})",
          R"({"Type": "File", "Cmd": {"Type": "CallExpr", "Args": [1]}})",
          R"({"Type": "File", "Cmd": {"Type": "CallExpr", "Args": [{"Pos": {"Offset": -1}}]}})",
          R"({"Type": "File", "Cmd": {"Type": "CallExpr", "Args": [
              {"Pos": {"Offset": 0, "Line": 1, "Col": 1}, "Parts": [{"Type": "Lit", "Value": 1}]}]}})"}) {
        SCOPED_TRACE(tree);
        EXPECT_THROW(readCalls(tree, "script"), Failure);
    }
}

TEST(ReadCalls, TrustsNoOffsetThatDoesNotFitTheScript) {
    const char tree[] = R"({"Type": "File", "Stmts": [{"Cmd": {"Type": "CallExpr", "Args": [
        {"Pos": {"Offset": 99999999999, "Line": 1, "Col": 1}, "Parts": [
            {"Type": "Lit", "Value": "pack", "ValuePos": {"Offset": 99999999999, "Line": 1, "Col": 1}}]}]}}]})";
    const std::vector<Call> calls = readCalls(tree, "pack");
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0][0].text, "pack");
    EXPECT_FALSE(calls[0][0].isContiguous(0, 4));
}

TEST(ReadCalls, TakesABackslashOutInFrontOfAnotherByte) {
    const struct {
        const char* source;
        const char* expected;
    } rows[] = {{"pack", "pack"}, {"\\pack", "pack"}, {"pa\\\\ck", "pa\\ck"}, {"pack\\", "pack\\"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.source);
        const std::string place = R"({"Offset": 0, "Line": 1, "Col": 1})";
        const std::string value = nlohmann::json(row.source).dump();
        const std::string tree = R"({"Type": "File", "Cmd": {"Type": "CallExpr", "Args": [{"Pos": )" + place +
                                 R"(, "Parts": [{"Type": "Lit", "Value": )" + value + R"(, "ValuePos": )" +
                                 place + "}]}]}}";
        EXPECT_EQ(readCalls(tree, row.source).at(0).at(0).text, row.expected);
    }
}

TEST(ReadCalls, ReadsATreeThatIsDeeperThanAnyStack) {
    constexpr int depth = 300000;
    std::string tree = R"({"Type": "File", "Stmts": )";
    for (int i = 0; i < depth; ++i) {
        tree += "[";
    }
    tree.append(depth, ']').append("}");
    EXPECT_EQ(readCalls(tree, "").size(), 0U);
}

TEST(Mended, ChangesAPlaceOnce) {
    LintedScript script = {"s", "abcdef", {}};
    script.diagnostics = {{false, 1, 1, "", Replacement{3, 1, "DD"}},
                          {false, 1, 1, "", std::nullopt},
                          {false, 1, 1, "", Replacement{0, 2, "A"}},
                          {false, 1, 1, "", Replacement{1, 2, "no"}}};
    EXPECT_EQ(mended(script), "AcDDef");
}

TEST(Difference, ShowsEndsWithoutALineFeedAndChangesApart) {
    LintedScript script = {"s", "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12", {}};
    script.diagnostics = {{false, 1, 1, "", Replacement{0, 1, "one"}},
                          {false, 1, 1, "", Replacement{script.contents.size() - 2, 2, "twelve"}}};
    EXPECT_EQ(differenceOf(script), "--- s\n+++ s\n"
                                    "@@ -1,4 +1,4 @@\n-1\n+one\n 2\n 3\n 4\n"
                                    "@@ -9,4 +9,4 @@\n 9\n 10\n 11\n"
                                    "-12\n\\ No newline at end of file\n"
                                    "+twelve\n\\ No newline at end of file\n");
}

} // namespace
} // namespace tarv_program
