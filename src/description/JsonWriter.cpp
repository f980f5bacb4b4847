#include "description/JsonWriter.h"

#include "description/utf8.h"

namespace tarv_3_3::internal {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr std::string_view hexadecimal = "0123456789ABCDEF";

void appendHexadecimal(std::string& json, unsigned byte) {
    json += hexadecimal[byte / 16];
    json += hexadecimal[byte % 16];
}

void appendBytes(std::string& json, std::string_view bytes) {
    for (const char byte : bytes) {
        appendHexadecimal(json.append(replacement), static_cast<unsigned char>(byte));
    }
}

// The code point of a control character is its last byte.
void appendControl(std::string& json, std::string_view character) {
    appendHexadecimal(json.append("\\u00"), static_cast<unsigned char>(character.back()));
}

void appendCharacter(std::string& json, std::string_view character) {
    if (character == replacement || character.front() == '\0') {
        appendBytes(json, character);
    } else if (isControl(character)) {
        appendControl(json, character);
    } else {
        json.append(character == "\"" || character == "\\" ? "\\" : "").append(character);
    }
}

} // namespace

void appendJsonText(std::string& json, std::string_view text) {
    json += '"';
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        if (length == 0) {
            appendBytes(json, text.substr(0, 1));
        } else {
            appendCharacter(json, text.substr(0, length));
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    json += '"';
}

void JsonWriter::open(char bracket, std::string_view name) {
    if (name.empty()) {
        separate();
    } else {
        beginMember(name);
    }
    m_json += bracket;
    m_isFirst = true;
}

void JsonWriter::close(char bracket) {
    m_json += bracket;
    m_isFirst = false;
}

void JsonWriter::member(std::string_view name, std::string_view text) {
    beginMember(name);
    appendJsonText(m_json, text);
}

void JsonWriter::memberBool(std::string_view name, bool value) {
    beginMember(name);
    m_json += value ? "true" : "false";
}

void JsonWriter::memberNumber(std::string_view name, std::size_t number) {
    beginMember(name);
    m_json += std::to_string(number);
}

void JsonWriter::element(std::string_view text) {
    separate();
    appendJsonText(m_json, text);
}

void JsonWriter::separate() {
    if (!m_isFirst) {
        m_json += m_breaks ? "," : ", ";
    }
    if (m_breaks) {
        m_json += '\n';
    }
    m_isFirst = false;
    m_breaks = false;
}

void JsonWriter::beginMember(std::string_view name) {
    separate();
    appendJsonText(m_json, name);
    m_json += ": ";
}

} // namespace tarv_3_3::internal
