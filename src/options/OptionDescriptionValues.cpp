#include <charconv>
#include <string_view>
#include <utility>

#include "options/OptionDescription.h"
#include "options/conversions.h"
#include "options/messages.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

namespace {

using internal::messages::ambiguousValue;
using internal::messages::cannotParseValue;
using internal::messages::valueNotAllowed;

template <class T>
variant_t convertedWholeText(const char* text) {
    T value;
    return convertWholeText(text, value) ? variant_t(value) : variant_t();
}

template <class T>
const char* keepNumber(Garbage* garbage, T value) {
    char digits[24];
    *std::to_chars(digits, digits + sizeof digits - 1, value).ptr = '\0';
    return garbage->init(digits);
}

// In the default format of a stream.
const char* keepNumber(Garbage* garbage, double value) {
    char digits[32];
    constexpr int precision = 6;
    *std::to_chars(digits, digits + sizeof digits - 1, value, std::chars_format::general, precision).ptr =
        '\0';
    return garbage->init(digits);
}

bool isPrefix(const std::string& text, std::string_view whole) {
    return whole.substr(0, text.size()) == text;
}

} // namespace

variant_t OptionDescription::fromString(const char* text, Garbage* garbage) const {
    OperationFromString operation(garbage, text);
    switch (m_type) {
    case vtBool:
        operation.execute<bool>();
        return std::move(operation.result);
    case vtInt32:
        operation.execute<std::int32_t>();
        return std::move(operation.result);
    case vtUInt32:
        return convertedWholeText<std::uint32_t>(text);
    case vtInt64:
        operation.execute<std::int64_t>();
        return std::move(operation.result);
    case vtUInt64:
        operation.execute<std::uint64_t>();
        return std::move(operation.result);
    case vtDouble:
        return convertedWholeText<double>(text);
    case vtString:
        operation.execute<const char*>();
        return std::move(operation.result);
    case vtNull:
        break;
    }
    return variant_t();
}

const char* OptionDescription::toString(Garbage* garbage, variant_t value) const {
    switch (m_type) {
    case vtBool:
        return garbage->init(value.get<bool>() ? "1" : "0");
    case vtInt32:
        return keepNumber(garbage, value.get<std::int32_t>());
    case vtUInt32:
        return keepNumber(garbage, value.get<std::uint32_t>());
    case vtInt64:
        return keepNumber(garbage, value.get<std::int64_t>());
    case vtUInt64:
        return keepNumber(garbage, value.get<std::uint64_t>());
    case vtDouble:
        return keepNumber(garbage, value.get<double>());
    case vtString: {
        OperationToString operation(garbage, value);
        operation.execute<const char*>();
        return operation.result;
    }
    case vtNull:
        break;
    }
    return nullptr;
}

// A default of another kind is a mistake of the host. It is not cached, so each use calls the assertion
// handler.
const variant_t& OptionDescription::defaultText() {
    const bool isRendered = m_defaultText.type() == vtString && m_default.type() == m_type;
    if (!isRendered) {
        const bool isText = m_type == vtString && m_default.type() == vtString;
        const char* const text = isText ? nullptr : toString(m_garbage, m_default);
        m_defaultText = isText ? m_default : text != nullptr ? variant_t(text) : variant_t();
    }
    return m_defaultText;
}

std::string OptionDescription::getTypeName() const {
    OperatorGetTypeName operation;
    switch (m_type) {
    case vtBool:
        return "undefined";
    case vtInt32:
        operation.execute<std::int32_t>();
        break;
    case vtUInt32:
        operation.execute<std::uint32_t>();
        break;
    case vtInt64:
        operation.execute<std::int64_t>();
        break;
    case vtUInt64:
        operation.execute<std::uint64_t>();
        break;
    case vtDouble:
        operation.execute<double>();
        break;
    case vtString:
        operation.execute<const char*>();
        break;
    case vtNull:
        break;
    }
    return std::move(operation.result);
}

bool OptionDescription::validate(std::string& text, variant_t& value, std::string& message) const {
    value = fromString(text.c_str(), m_garbage);
    if (value.type() == vtNull) {
        message = cannotParseValue(primaryName(), text, getTypeName());
        return false;
    }
    if (m_allowedValues.empty()) {
        return true;
    }
    for (const variant_t& allowed : m_allowedValues) {
        if (allowed == value) {
            return true;
        }
    }
    return acceptAbbreviation(text, value, message);
}

// Only texts may be abbreviated. For every other kind, no allowed value matches.
bool OptionDescription::acceptAbbreviation(std::string& text, variant_t& value, std::string& message) const {
    int matches = 0;
    if (m_type == vtString) {
        for (const variant_t& allowed : m_allowedValues) {
            if (allowed.can_get<const char*>() && isPrefix(text, allowed.get<const char*>())) {
                ++matches;
                value = m_garbage->init(allowed.get<const char*>());
            }
        }
    }
    if (matches == 1) {
        text = value.get<const char*>();
        return true;
    }
    message = matches > 1 ? ambiguousValue(primaryName(), allowedValueList())
                          : valueNotAllowed(primaryName(), text, allowedValueList());
    return false;
}

std::string OptionDescription::allowedValueList() const {
    std::string list;
    for (const variant_t& allowed : m_allowedValues) {
        if (!list.empty()) {
            list += ", ";
        }
        list.append("'").append(toString(m_garbage, allowed)).append("'");
    }
    return list;
}

} // namespace tarv_3_3
