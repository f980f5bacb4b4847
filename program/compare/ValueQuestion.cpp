#include "compare/ValueQuestion.h"

#include <cstdlib>

namespace tarv_program {

using namespace tarv_3_3;

namespace {

CommandLine alone(const Option& option) {
    CommandLine line;
    line.options = {option};
    Option& only = line.options.front();
    only.names = {"value"};
    only.isAction = false;
    only.notes.clear();
    only.defaultText.reset();
    only.separator = option.isSlot() ? '\0' : option.separator;
    only.positional = Positional::no;
    return line;
}

struct Range {
    std::string least;
    std::string greatest;
};

Range rangeOf(const std::string& text) {
    const std::size_t dots = text.find("..");
    if (dots == std::string::npos) {
        return {};
    }
    return {text.substr(0, dots), text.substr(dots + 2)};
}

// -1, 0 or 1; 64-bit integers are too long for a double.
int compareNumbers(das_variant_type_t kind, const std::string& left, const std::string& right) {
    const std::optional<variant_t> a = valueOf(kind, left);
    const std::optional<variant_t> b = valueOf(kind, right);
    if (!a || !b) {
        const double difference = std::strtod(left.c_str(), nullptr) - std::strtod(right.c_str(), nullptr);
        return difference < 0 ? -1 : difference > 0 ? 1 : 0;
    }
    const auto order = [](auto x, auto y) { return x < y ? -1 : x > y ? 1 : 0; };
    switch (kind) {
    case vtInt32:
        return order(a->get<std::int32_t>(), b->get<std::int32_t>());
    case vtUInt32:
        return order(a->get<std::uint32_t>(), b->get<std::uint32_t>());
    case vtInt64:
        return order(a->get<std::int64_t>(), b->get<std::int64_t>());
    case vtUInt64:
        return order(a->get<std::uint64_t>(), b->get<std::uint64_t>());
    case vtDouble:
        return order(a->get<double>(), b->get<double>());
    default:
        return 0;
    }
}

void addBounds(std::vector<std::string>& values, const Option& option) {
    if (const std::string* const text = option.note("range")) {
        const Range range = rangeOf(*text);
        for (const std::string& bound : {range.least, range.greatest}) {
            if (!bound.empty()) {
                values.push_back(bound);
            }
        }
    }
}

void add(std::vector<std::string>& values, const std::vector<std::string>& more) {
    values.insert(values.end(), more.begin(), more.end());
}

} // namespace

ValueQuestion::ValueQuestion(const Option& option)
    : m_kind(option.kind),
      m_takesEmptyWord(option.isSlot() && option.kind == vtString && option.allowed.empty()),
      m_isSlot(option.isSlot()), m_parser(rebuild(alone(option))) {
    if (const std::string* const range = option.note("range")) {
        m_range = *range;
    }
}

std::optional<std::vector<std::string>> ValueQuestion::accept(const std::string& text) const {
    if (m_isSlot && text.empty()) {
        return m_takesEmptyWord ? std::optional<std::vector<std::string>>({""}) : std::nullopt;
    }
    const std::string argument = text.empty() ? "--value" : "--value=" + text;
    const char* const argv[] = {"", argument.c_str()};
    const Result result = createResult(*m_parser);
    if (m_parser->parseArgsVector(2, argv, result.get()) != parseOk) {
        return std::nullopt;
    }
    std::vector<std::string> values;
    for (Value value = result->get("value"); value.status == valueFound; value = result->next("value")) {
        if (value.text != nullptr) {
            values.emplace_back(value.text);
            if (!isInRange(values.back())) {
                return std::nullopt;
            }
        }
    }
    return values;
}

bool ValueQuestion::isInRange(const std::string& text) const {
    if (!m_range) {
        return true;
    }
    const Range range = rangeOf(*m_range);
    return (range.least.empty() || compareNumbers(m_kind, text, range.least) >= 0) &&
           (range.greatest.empty() || compareNumbers(m_kind, text, range.greatest) <= 0);
}

std::vector<std::string> telltaleValues(const Option& older, const Option& newer) {
    std::vector<std::string> values = {""};
    add(values, older.allowed);
    for (const Option* const option : {&older, &newer}) {
        addBounds(values, *option);
        if (option->defaultText && !option->defaultText->empty()) {
            values.push_back(*option->defaultText);
        }
    }
    // Each number is the first that some kind refuses, or reads in its own way.
    add(values, {"1",
                 "0",
                 "-1",
                 "text",
                 "2147483647",
                 "-2147483648",
                 "2147483648",
                 "4294967295",
                 "4294967296",
                 "-2147483649",
                 "9223372036854775807",
                 "-9223372036854775808",
                 "9223372036854775808",
                 "18446744073709551615",
                 "1.5",
                 "1e3",
                 "0x1f",
                 "1fh",
                 "12abc",
                 " 1 "});
    for (const Option* const option : {&older, &newer}) {
        if (option->separator != 0) {
            const std::string separator(1, option->separator);
            const std::string one = older.allowed.empty() ? "1" : older.allowed.front();
            values.push_back(one);
            values.back().append(separator).append(one);
        }
    }
    return values;
}

std::optional<std::string> sampleValue(const Option& option) {
    if (!option.takesValue()) {
        return std::nullopt;
    }
    const ValueQuestion question(option);
    const bool isText = option.kind == vtString && option.allowed.empty();
    for (const std::string& value : telltaleValues(option, option)) {
        if (!value.empty() && !(isText && value != "text") && question.accept(value)) {
            return value;
        }
    }
    return std::nullopt;
}

} // namespace tarv_program
