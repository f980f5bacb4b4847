#include "description/JsonWriter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace tarv_3_3;

namespace {

std::string written(std::string_view text) {
    std::string json;
    internal::appendJsonText(json, text);
    return json;
}

unsigned hexadecimal(const std::string& json, std::size_t place, std::size_t digits) {
    return static_cast<unsigned>(std::stoul(json.substr(place, digits), nullptr, 16));
}

std::string utf8OfLatin(unsigned code) {
    if (code < 0x80) {
        return std::string(1, static_cast<char>(code));
    }
    return {static_cast<char>(0xC0 | (code >> 6)), static_cast<char>(0x80 | (code & 0x3F))};
}

/// What a reader makes of a string: first the string that JSON means, then the bytes behind U+FFFD.
std::string readBack(const std::string& json) {
    std::string meant;
    for (std::size_t i = 1; i + 1 < json.size(); ++i) {
        if (json[i] != '\\') {
            meant += json[i];
        } else if (json[++i] == 'u') {
            meant += utf8OfLatin(hexadecimal(json, i + 1, 4));
            i += 4;
        } else {
            meant += json[i];
        }
    }
    std::string bytes;
    for (std::size_t i = 0; i < meant.size(); ++i) {
        if (meant.compare(i, 3, "\xEF\xBF\xBD") == 0) {
            bytes += static_cast<char>(hexadecimal(meant, i + 3, 2));
            i += 4;
        } else {
            bytes += meant[i];
        }
    }
    return bytes;
}

TEST(AppendJsonText, EscapesWhatJsonAndTerminalsMustNotGet) {
    const struct {
        std::string text;
        const char* json;
    } rows[] = {
        {"", "\"\""},
        {"plain", "\"plain\""},
        {"a \"b\" \\ /", "\"a \\\"b\\\" \\\\ /\""},
        {"tab\tline\n", "\"tab\\u0009line\\u000A\""},
        {"\x1B[31m\x7F", "\"\\u001B[31m\\u007F\""},
        {"\xC2\x9B\xC2\xA0", "\"\\u009B\xC2\xA0\""},
        {"gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80", "\"gr\xC3\xBC\xC3\x9F \xF0\x9F\x98\x80\""},
        {"\xFF", "\"\xEF\xBF\xBD"
                 "FF\""},
        {"\xC3(\xC3", "\"\xEF\xBF\xBD"
                      "C3(\xEF\xBF\xBD"
                      "C3\""},
        {std::string(1, '\0'), "\"\xEF\xBF\xBD"
                               "00\""},
        // Text that looks like the escape.
        {"\xEF\xBF\xBD"
         "FF",
         "\"\xEF\xBF\xBD"
         "EF\xEF\xBF\xBD"
         "BF\xEF\xBF\xBD"
         "BDFF\""},
        {"\\u001B", "\"\\\\u001B\""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(written(row.text), row.json);
        EXPECT_EQ(readBack(row.json), row.text);
    }
}

TEST(AppendJsonText, GivesEveryByteBack) {
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            const std::string text = {static_cast<char>(first), static_cast<char>(second)};
            ASSERT_EQ(readBack(written(text)), text) << first << " " << second;
        }
    }
}

TEST(AppendJsonText, GivesRandomTextsBack) {
    // Pieces of characters and of the escape, so that many texts look like it.
    const std::string pieces[] = {"\xEF", "\xBF",     "\xBD", "\xEF\xBF\xBD", "F",    "0",
                                  "\\",   "\"",       "u00",  "\xC2",         "\x9B", "\xED",
                                  "\xA0", "\xF0\x9F", "\x80", "\n",           "a"};
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (auto left = random() % 12; left != 0; --left) {
            text += pieces[random() % std::size(pieces)];
        }
        ASSERT_EQ(readBack(written(text)), text) << testing::PrintToString(text);
    }
}

TEST(JsonWriter, PutsCommasBetweenElementsAndMembers) {
    internal::JsonWriter json;
    json.open('{');
    json.member("a", "x");
    json.memberBool("b", true);
    json.open('[', "c");
    json.element("1");
    json.element("2");
    json.open('{');
    json.close('}');
    json.close(']');
    json.open('[', "d");
    json.close(']');
    json.member("e", "");
    json.memberBool("f", false);
    json.close('}');
    EXPECT_EQ(json.text(), R"({"a": "x", "b": true, "c": ["1", "2", {}], "d": [], "e": "", "f": false})");
}

TEST(JsonWriter, BreaksALineBeforeWhatComesNext) {
    internal::JsonWriter json;
    json.open('[');
    json.breakLine();
    json.element("1");
    json.element("2");
    json.breakLine();
    json.element("3");
    json.close(']');
    EXPECT_EQ(json.text(), "[\n\"1\", \"2\",\n\"3\"]");
}

} // namespace
