#include "harness/Answer.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

/// Enough for the everyday list, and for every occurrence on the longest command line.
std::size_t mostValues(const Workload& workload) {
    return workload.given.size() + 8;
}

std::string printed(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

} // namespace

Answer::Answer(const Workload& workload) {
    for (const Option& option : workload.options) {
        switch (option.kind) {
        case Kind::Switch:
            switches.push_back(0);
            break;
        case Kind::Integer:
            integers.push_back(0);
            break;
        case Kind::Number:
            numbers.push_back(0);
            break;
        case Kind::Text:
            texts.emplace_back();
            break;
        case Kind::List:
        case Kind::Positional:
            lists.emplace_back();
            break;
        }
    }
    for (std::vector<std::string_view>& list : lists)
        list.reserve(mostValues(workload));
}

void Answer::clear() {
    std::fill(switches.begin(), switches.end(), 0);
    std::fill(integers.begin(), integers.end(), 0);
    std::fill(numbers.begin(), numbers.end(), 0);
    std::fill(texts.begin(), texts.end(), std::string_view());
    for (std::vector<std::string_view>& list : lists)
        list.clear();
}

std::string Answer::canonicalText(const std::vector<Option>& options) const {
    std::string text;
    for (const Option& option : options) {
        text.append(option.name).append(":");
        switch (option.kind) {
        case Kind::Switch:
            text.append(switches[option.slot] ? " on" : " off");
            break;
        case Kind::Integer:
            text.append(" ").append(std::to_string(integers[option.slot]));
            break;
        case Kind::Number:
            text.append(" ").append(printed(numbers[option.slot]));
            break;
        case Kind::Text:
            text.append(" '").append(texts[option.slot]).append("'");
            break;
        case Kind::List:
        case Kind::Positional:
            for (const std::string_view value : lists[option.slot])
                text.append(" '").append(value).append("'");
            break;
        }
        text.append("\n");
    }
    return text;
}

void splitAtCommas(std::string_view text, std::vector<std::string_view>& parts) {
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(','), text.size());
        parts.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
}

} // namespace bench
