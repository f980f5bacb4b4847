#include "help/synopsis.h"

#include "options/OptionDescription.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t typicalLength = 60;

// A kind without a text form shows as nothing.
std::string textOf(const OptionDescription& option, const variant_t& value) {
    const char* const text = option.toString(option.m_garbage, value);
    return text != nullptr ? text : "";
}

void appendNames(std::string& line, const OptionDescription& option) {
    for (std::size_t i = option.m_names.size(); i > 1; --i) {
        line.append("-").append(option.m_names[i - 1]).append(", ");
    }
    line.append("-").append(option.primaryName());
}

void appendNegatedForm(std::string& line, const OptionDescription& option) {
    const bool isOn = option.m_hasDefault && option.m_default.get<bool>();
    const bool isOff = option.m_hasDefault && !isOn;
    line.append(isOn ? " (default)" : "");
    line.append(" | -no-").append(option.primaryName());
    line.append(isOff ? " (default)" : "");
}

void appendAllowedValues(std::string& line, const OptionDescription& option) {
    const char* separator = "=";
    for (const variant_t& allowed : option.m_allowedValues) {
        line.append(separator).append(textOf(option, allowed));
        separator = " | ";
    }
}

void appendDefault(std::string& line, const OptionDescription& option) {
    const std::string text = option.m_hasDefault ? textOf(option, option.m_default) : std::string();
    if (!text.empty()) {
        line.append(" (").append(text).append(")");
    }
}

} // namespace

std::string makeSynopsis(const OptionDescription& option) {
    std::string line;
    line.reserve(typicalLength);
    appendNames(line, option);
    if (option.m_type == vtBool) {
        appendNegatedForm(line, option);
    } else if (option.m_type != vtNull) {
        if (option.m_allowedValues.empty()) {
            line.append("=<").append(option.getTypeName()).append(">");
        } else {
            appendAllowedValues(line, option);
        }
        appendDefault(line, option);
    }
    return line;
}

} // namespace tarv_3_3
