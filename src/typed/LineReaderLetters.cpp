#include <algorithm>
#include <string_view>

#include "description/terminalText.h"
#include "description/utf8.h"
#include "recognition/tokenSyntax.h"
#include "typed/LineReader.h"
#include "typed/messages.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

// "-vvv"
bool LineReader::readRepeatedLetter(std::size_t place, const ReadArgument& read) {
    const std::string& argument = m_line.arguments[place];
    const std::string_view letters = read.token.nameIn(argument);
    const bool isRepeated = read.token.nameStart == dashLength(argument) && letters.size() > 1 &&
                            letters.find_first_not_of(letters.front()) == std::string_view::npos;
    const Option* const option =
        isRepeated && !read.token.hasValue ? m_line.chosen->findOption(letters.substr(0, 1)) : nullptr;
    if (option == nullptr || !option->isCounter()) {
        return false;
    }
    for (std::size_t i = 0; i < letters.size(); ++i) {
        add(*option, place, "1");
    }
    return true;
}

// Behind one dash.
bool LineReader::areLetters(const std::string& argument) const {
    const std::size_t dash = dashLength(argument);
    return m_program.joinsLetters && 0 < dash && dash < argument.size() &&
           dashLength(std::string_view(argument).substr(dash)) == 0;
}

bool LineReader::isLastOfLetters() const {
    return m_awaiting == nullptr && !isBehindMarker() && areLetters(m_line.arguments.back());
}

bool LineReader::readLastLetters() {
    return readLetters(m_line.arguments.size() - 1);
}

// Whether all of them are known.
bool LineReader::readLetters(std::size_t place) {
    const std::string& argument = m_line.arguments[place];
    std::size_t from = dashLength(argument);
    while (from < argument.size()) {
        const std::size_t length =
            std::max<std::size_t>(internal::utf8Length(std::string_view(argument).substr(from)), 1);
        from = readLetter(place, from, length);
    }
    return from == argument.size();
}

// Where the next letter is; past the end behind an unknown one.
std::size_t LineReader::readLetter(std::size_t place, std::size_t from, std::size_t length) {
    const std::string& argument = m_line.arguments[place];
    const std::string letter = argument.substr(from, length);
    const Option* const option = m_line.chosen->findOption(letter);
    if (option == nullptr) {
        if (letter == "h") {
            m_line.wish = m_line.wish == Wish::none ? Wish::help : m_line.wish;
            return from + length;
        }
        m_line.complain(messages::unknownOption(terminalText("-" + letter)));
        return std::string::npos;
    }
    if (!option->takesValue()) {
        add(*option, place, "1");
        return from + length;
    }
    const char* value = argument.c_str() + from + length;
    if (*value == '\0') {
        takeNextValue(place, *option, "-" + letter);
    } else {
        // "-l=3" is what it is elsewhere, and "-t=" has the value "=".
        add(*option, place, value[0] == '=' && value[1] != '\0' ? value + 1 : value);
    }
    return argument.size();
}

} // namespace tarv_3_3::typed::engine
