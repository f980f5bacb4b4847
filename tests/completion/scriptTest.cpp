#include "completion/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>

namespace tarv_3_3 {
namespace {

const struct {
    Shell shell;
    const char* file;
} shells[] = {{Shell::bash, "program.bash"}, {Shell::zsh, "program.zsh"}, {Shell::fish, "program.fish"}};

std::string contentsOf(const std::string& file) {
    std::ifstream stream("../src/completion/scripts/" + file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string withNames(std::string text, const std::string& function, const std::string& program) {
    for (std::size_t at = 0; (at = text.find("FUNCTION", at)) != std::string::npos; at += function.size()) {
        text.replace(at, 8, function);
    }
    for (std::size_t at = 0; (at = text.find("PROGRAM", at)) != std::string::npos; at += program.size()) {
        text.replace(at, 7, program);
    }
    return text;
}

TEST(MakeScript, IsTheFileWithTheNamesFilledIn) {
    const struct {
        const char* path;
        const char* function;
        const char* program;
    } cases[] = {
        {"seek", "seek", "seek"},
        {"/usr/bin/seek", "seek", "seek"},
        {"./seek", "seek", "seek"},
        {"a b/$(c)/g++", "g_2b_2b", "g++"},
        {"clang-format", "clang_2dformat", "clang-format"},
        {"clang_2dformat", "clang_5f2dformat", "clang_2dformat"},
        {"Seek-2.0", "Seek_2d2_2e0", "Seek-2.0"},
        {"7zAZaz09", "7zAZaz09", "7zAZaz09"},
        {"FUNCTION", "FUNCTION", "FUNCTION"},
    };
    for (const auto& shell : shells) {
        const std::string contents = contentsOf(shell.file);
        ASSERT_NE(contents, "") << shell.file;
        for (const auto& example : cases) {
            SCOPED_TRACE(std::string(shell.file) + " for " + example.path);
            EXPECT_EQ(makeScript(shell.shell, example.path),
                      withNames(contents, example.function, example.program));
        }
    }
}

TEST(MakeScript, RegistersTheProgram) {
    const struct {
        Shell shell;
        const char* end;
    } cases[] = {
        {Shell::bash,
         "complete -o nosort -F _tarv_g_2b_2b g++ 2>/dev/null || complete -F _tarv_g_2b_2b g++\n"},
        {Shell::zsh, "then _tarv_g_2b_2b \"$@\"; else compdef _tarv_g_2b_2b g++; fi\n"},
        {Shell::fish, "complete -c g++ -f -k -a '(__tarv_g_2b_2b)'\n"},
    };
    for (const auto& example : cases) {
        const std::string script = makeScript(example.shell, "bin/g++");
        const std::string end = example.end;
        SCOPED_TRACE(end);
        ASSERT_GT(script.size(), end.size());
        EXPECT_EQ(script.substr(script.size() - end.size()), end);
    }
}

TEST(MakeScript, IsEmptyForNamesThatAShellMightRead) {
    for (const char* const path : {"",
                                   "/",
                                   "bin/",
                                   "-seek",
                                   "a b",
                                   "a;b",
                                   "$(a)",
                                   "`a`",
                                   "a'b",
                                   "a\"b",
                                   "a\\b",
                                   "a\nb",
                                   "a*",
                                   "a=b",
                                   "s\xc3\xa9"
                                   "ek",
                                   "a~",
                                   "a&b",
                                   "a|b",
                                   "a<b",
                                   "a{b}",
                                   "a#b",
                                   "a!b",
                                   "a%b",
                                   "a:b",
                                   "a,b",
                                   "a@b",
                                   "a[",
                                   "a`"}) {
        SCOPED_TRACE(path);
        for (const auto& shell : shells) {
            EXPECT_EQ(makeScript(shell.shell, path), "");
        }
    }
    EXPECT_EQ(makeScript(Shell::bash, nullptr), "");
}

TEST(MakeScript, IsEmptyForAnUnknownShell) {
    EXPECT_EQ(makeScript(Shell::unknown, "seek"), "");
}

TEST(Scripts, AreReadThroughInAMinute) {
    for (const auto& shell : shells) {
        SCOPED_TRACE(shell.file);
        const std::string contents = contentsOf(shell.file);
        EXPECT_LE(std::count(contents.begin(), contents.end(), '\n'), 60);
        EXPECT_NE(contents.find("version 1."), std::string::npos);
    }
}

} // namespace
} // namespace tarv_3_3
