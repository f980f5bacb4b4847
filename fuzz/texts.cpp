#include <algorithm>

#include "Input.h"
#include "help/paragraphString.h"
#include "options/OptionDescription.h"
#include "oracles.h"
#include "recognition/singleSteps.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/internal/Garbage.h"

using namespace tarv_3_3;

namespace {

std::string withoutBlanks(std::string text) {
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\n'; }),
               text.end());
    return text;
}

void layOut(const std::string& lead, const std::string& text, unsigned long indent, unsigned long width) {
    const std::string laidOut = paragraphString(text, lead, indent, width);
    require(laidOut.empty() == text.empty(), "an empty text and nothing else yields nothing", laidOut);
    if (text.empty()) {
        return;
    }
    require(laidOut.back() == '\n', "the last line has no end", laidOut);
    require(withoutBlanks(laidOut) == withoutBlanks(lead + text), "a text was changed", laidOut);
    Input lines(reinterpret_cast<const std::uint8_t*>(laidOut.data()), laidOut.size());
    bool isFirst = true;
    while (!lines.empty()) {
        const std::string line = lines.until('\n');
        const bool hasColumn = !isFirst || lead.size() < indent;
        require(!hasColumn || line.size() <= indent + width - 1, "a line past its column", line);
        require(isFirst || line.find_first_not_of(' ') >= std::min<std::size_t>(indent, line.size()),
                "a line before its column", line);
        isFirst = false;
    }
}

void cut(const std::string& argument) {
    require(DecomposedName(argument).getName() == argument, "a name does not survive", argument);
    std::string name;
    std::string value = "untouched";
    const bool found = splitOptionValue(argument, &name, &value);
    const std::size_t dashes = getDashLength(argument, 0);
    const std::size_t start = dashes + getDashLength(argument, dashes);
    require(argument.compare(start, name.size(), name) == 0, "a name was changed", argument);
    require(name.find_first_of("= \t\n\v\f\r") == std::string::npos, "a name with an end in it", name);
    require(found == (start + name.size() < argument.size()), "a value was missed", argument);
    require(found ? argument.size() >= start + name.size() + 1 + value.size() &&
                        argument.compare(argument.size() - value.size(), value.size(), value) == 0
                  : value == "untouched",
            "a value was changed", argument);
}

void convert(const std::string& text) {
    Garbage garbage;
    OptionDescription option;
    option.m_names = {"x"};
    option.m_garbage = &garbage;
    for (const das_variant_type_t kind :
         {vtBool, vtInt32, vtUInt32, vtInt64, vtUInt64, vtDouble, vtString, vtNull}) {
        option.m_type = kind;
        const variant_t value = option.fromString(text.c_str(), &garbage);
        require(value == extracted(text, kind), "a conversion differs from the standard one",
                text + " of kind " + std::to_string(kind));
        if (value.type() == vtNull) {
            continue;
        }
        const char* const shown = option.toString(&garbage, value);
        const bool isRounded = kind == vtDouble;
        require(isRounded || extracted(shown, kind) == value, "a value does not survive its text", shown);
    }
}

// A word selects an allowed value exactly, or else as the prefix of a single one.
void complete(const std::string& word, const std::vector<std::string>& allowed) {
    Garbage garbage;
    OptionDescription option;
    option.m_names = {"x"};
    option.m_type = vtString;
    option.m_garbage = &garbage;
    std::vector<std::string> prefixed;
    for (const std::string& value : allowed) {
        option.allowValue(value.c_str());
        if (value.compare(0, word.size(), word) == 0) {
            prefixed.push_back(value);
        }
    }
    const bool isExact = std::find(allowed.begin(), allowed.end(), word) != allowed.end();
    std::string text = word;
    std::string message;
    variant_t value;
    const bool accepted = option.validate(text, value, message);
    require(accepted == (allowed.empty() || isExact || prefixed.size() == 1), "wrong choice of values", word);
    require(accepted == message.empty(), "choice and message disagree", message);
    require(!accepted || allowed.empty() || isExact || text == prefixed[0], "wrong completion", text);
}

// An exact name wins over every abbreviation of it.
void select(const std::string& name, const std::string& other) {
    if (name.empty() || other.find(name) == 0 || name.find_first_of("=, \t\n\v\f\r") != std::string::npos ||
        getDashLength(name, 0) != 0 || other.find(',') != std::string::npos) {
        return;
    }
    Parse parse(0);
    parse.parser->option(name.c_str(), "", vtString).tokenize(0);
    parse.parser->option(other.c_str(), "", vtNull);
    require(parse.arguments({"--" + name + "=value"}) == parseOk, "an exact name is not taken",
            parse.error());
    require(parse.result->present(name.c_str()), "an exact name selects another option", name);
}

} // namespace

/// Help layout, token syntax, conversions, completion and abbreviation, all on the same lines. Two
/// bytes hold the indent and the width of the layout, which has room for one byte at least.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    const unsigned long indent = input.byte() % 64;
    const unsigned long width = 3 + input.byte() % 80;
    const std::string first = input.until('\n').c_str();
    std::vector<std::string> lines = input.arguments();
    layOut(first, lines.empty() ? "" : lines[0], indent, width);
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    layOut("", text, indent, width);
    cut(first);
    convert(first);
    lines.resize(std::min<std::size_t>(lines.size(), 20));
    complete(first, lines);
    select(first, lines.empty() ? "x" : lines[0]);
    return 0;
}
