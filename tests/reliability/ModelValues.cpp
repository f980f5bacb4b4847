#include "reliability/ModelValues.h"

#include <algorithm>
#include <map>
#include <sstream>

using namespace tarv_3_3;

namespace model {

namespace {

std::string typeName(das_variant_type_t kind) {
    const std::map<das_variant_type_t, std::string> names = {{vtBool, "undefined"},
                                                             {vtInt32, "integer"},
                                                             {vtUInt32, "unsigned integer"},
                                                             {vtInt64, "64 bit integer"},
                                                             {vtUInt64, "unsigned 64 bit or hex"},
                                                             {vtDouble, "double"},
                                                             {vtString, "string"},
                                                             {vtNull, ""}};
    return names.at(kind);
}

// The value in a form in which equal values are equal texts; empty when the text does not convert.
template <class T>
std::string readWhole(const std::string& text) {
    std::istringstream stream(text);
    T value;
    char behind;
    if (!(stream >> value) || stream >> behind) {
        return "";
    }
    std::ostringstream shown;
    shown.precision(17);
    shown << value;
    return shown.str();
}

std::string readUInt64(const std::string& text) {
    const std::string digits = "1234567890ABCDEFabcdef";
    const auto onlyDigits = [&](const std::string& part) {
        return part.find_first_not_of(digits) == std::string::npos;
    };
    const bool prefix = (beginsWith(text, "0x") || beginsWith(text, "0X")) && onlyDigits(text.substr(2));
    const bool suffix = !text.empty() && (text.back() == 'h' || text.back() == 'H') &&
                        onlyDigits(text.substr(0, text.size() - 1));
    std::istringstream stream(text);
    if (prefix || suffix) {
        stream >> std::hex;
    }
    std::uint64_t value;
    return stream >> value ? std::to_string(value) : "";
}

// An empty text is never converted here: an option without a value has no value to convert.
std::string read(const std::string& text, das_variant_type_t kind) {
    switch (kind) {
    case vtBool:
        return readWhole<bool>(text);
    case vtInt32:
        return readWhole<std::int32_t>(text);
    case vtUInt32:
        return readWhole<std::uint32_t>(text);
    case vtInt64:
        return readWhole<std::int64_t>(text);
    case vtUInt64:
        return readUInt64(text);
    case vtDouble:
        return readWhole<double>(text);
    case vtNull:
        return "";
    default:
        return text;
    }
}

} // namespace

bool beginsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

std::string listed(const std::vector<std::string>& texts) {
    std::string list;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        list += (i == 0 ? "'" : ", '") + texts[i] + "'";
    }
    return list;
}

std::string validate(std::string& text, const Option& option) {
    const std::string& name = option.names[0];
    const std::string value = read(text, option.kind);
    if (value.empty()) {
        return "Option '" + name + "' can not parse '" + text + "' value, requires a type '" +
               typeName(option.kind) + "' here.";
    }
    if (option.allowed.empty()) {
        return "";
    }
    std::vector<std::string> beginning;
    for (const std::string& allowed : option.allowed) {
        if (read(allowed, option.kind) == value) {
            return "";
        }
        if (option.kind == vtString && beginsWith(allowed, text)) {
            beginning.push_back(allowed);
        }
    }
    if (beginning.size() == 1) {
        text = beginning[0];
        return "";
    }
    const std::string start = beginning.empty() ? "Option '" + name + "' does not allow value '" + text + "'."
                                                : "Ambiguous value for option '" + name + "'.";
    return start + " Possible values follows: " + listed(option.allowed);
}

std::vector<std::string> pieces(const std::string& value, char separator) {
    if (separator == '\0') {
        return {value};
    }
    std::vector<std::string> found = {""};
    for (const char character : value) {
        if (character == separator) {
            found.emplace_back();
        } else {
            found.back() += character;
        }
    }
    found.erase(std::remove(found.begin(), found.end(), ""), found.end());
    return found;
}

} // namespace model
