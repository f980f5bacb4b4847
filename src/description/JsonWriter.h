#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3::internal {

/// Appends `text` as a JSON string, in quotes. Control characters are written as "\u001b". A byte that is
/// no UTF-8, a zero byte and each byte of U+FFFD are written as U+FFFD and two hexadecimal digits in
/// capitals: so every U+FFFD in the string begins such a byte, and the text comes back the same.
void appendJsonText(std::string& json, std::string_view text);

/// Writes JSON objects and lists one inside the other, and sees to the commas between their elements.
class JsonWriter {
public:
    /// Opens a list or an object, with '[' or '{'; inside an object, as the member `name`.
    void open(char bracket, std::string_view name = {});

    /// Closes what was opened last, with ']' or '}'.
    void close(char bracket);

    ///@{
    /// A member of the object that is open.
    void member(std::string_view name, std::string_view text);
    void memberBool(std::string_view name, bool value);
    void memberNumber(std::string_view name, std::size_t number);
    ///@}

    /// An element of the list that is open.
    void element(std::string_view text);

    /// Starts a line in front of the next element or member.
    void breakLine() { m_breaks = true; }

    const std::string& text() const { return m_json; }

private:
    void separate();
    void beginMember(std::string_view name);

    std::string m_json;
    bool m_isFirst = true;
    bool m_breaks = false;
};

} // namespace tarv_3_3::internal
