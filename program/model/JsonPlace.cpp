#include "model/JsonPlace.h"

namespace tarv_program {

namespace {

// Stands in front of the two digits of a byte that is no text.
constexpr char byteMark[] = "\xEF\xBF\xBD";
constexpr std::size_t markLength = sizeof byteMark - 1;

int digit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace

void JsonPlace::refuse(const std::string& reason) const {
    throw Failure((m_path.empty()          ? ""
                   : m_path.front() == '.' ? m_path.substr(1) + ": "
                                           : m_path + ": ") +
                  reason);
}

void JsonPlace::requireObject() const {
    if (!m_value.is_object()) {
        refuse("must be an object");
    }
}

bool JsonPlace::has(const char* name) const {
    requireObject();
    return m_value.contains(name);
}

JsonPlace JsonPlace::member(const char* name) const {
    if (!has(name)) {
        refuse(std::string("has no member '") + name + "'");
    }
    return {m_value[name], m_path + "." + name};
}

std::string JsonPlace::plainText() const {
    if (!m_value.is_string()) {
        refuse("must be a text");
    }
    return m_value.get<std::string>();
}

std::string JsonPlace::bytesOf(const std::string& text) const {
    std::string bytes;
    std::size_t done = 0;
    for (std::size_t mark = text.find(byteMark); mark != std::string::npos;
         mark = text.find(byteMark, done)) {
        const std::size_t digits = mark + markLength;
        const int high = digits + 1 < text.size() ? digit(text[digits]) : -1;
        const int low = high >= 0 ? digit(text[digits + 1]) : -1;
        if (low < 0) {
            refuse("holds U+FFFD without the two digits of a byte");
        }
        bytes.append(text, done, mark - done);
        bytes += static_cast<char>(high * 16 + low);
        done = digits + 2;
    }
    return bytes.append(text, done);
}

std::vector<std::string> JsonPlace::texts() const {
    std::vector<std::string> all;
    forEach([&](const JsonPlace& element) { all.push_back(element.text()); });
    return all;
}

unsigned long JsonPlace::number() const {
    if (!m_value.is_number_unsigned()) {
        refuse("must be a number that is not negative");
    }
    return m_value.get<unsigned long>();
}

bool JsonPlace::boolean() const {
    if (!m_value.is_boolean()) {
        refuse("must be true or false");
    }
    return m_value.get<bool>();
}

bool JsonPlace::isTrue() const {
    if (!m_value.is_boolean() || !m_value.get<bool>()) {
        refuse("must be true");
    }
    return true;
}

std::size_t JsonPlace::oneOf(std::initializer_list<const char*> known) const {
    const std::string word = plainText();
    std::size_t place = 0;
    for (const char* const name : known) {
        if (word == name) {
            return place;
        }
        ++place;
    }
    refuse("'" + word + "' is not known");
}

} // namespace tarv_program
