#include "typed/columns.h"

#include <algorithm>
#include <iterator>

#include "description/utf8.h"

namespace tarv_3_3::typed::engine {

namespace {

struct CodeRange {
    char32_t first;
    char32_t last;
};

#include "typed/columnWidths.inc"

template <std::size_t count>
bool isIn(const CodeRange (&ranges)[count], char32_t code) {
    const CodeRange* const found =
        std::lower_bound(std::begin(ranges), std::end(ranges), code,
                         [](const CodeRange& range, char32_t wanted) { return range.last < wanted; });
    return found != std::end(ranges) && found->first <= code;
}

char32_t codeOf(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    const std::size_t length = character.size();
    char32_t code = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (const char byte : character.substr(1)) {
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return code;
}

std::size_t columnsOfCharacter(std::string_view character) {
    if (static_cast<unsigned char>(character.front()) < 0x80 || internal::utf8Length(character) == 0) {
        return 1;
    }
    const char32_t code = codeOf(character);
    return isIn(withoutColumn, code) ? 0 : isIn(withTwoColumns, code) ? 2 : 1;
}

/// A line while it is filled.
class Wrapper {
public:
    explicit Wrapper(std::size_t width) : m_width(width) {}

    void add(std::string_view character) {
        const std::size_t columns = columnsOfCharacter(character);
        if (character == "\n") {
            endLine();
        } else if (character == " ") {
            endPiece();
            m_blanks += m_line.empty() ? 0 : 1;
        } else {
            addToPiece(character, columns);
        }
    }

    std::vector<std::string> finish() {
        endPiece();
        if (!m_line.empty() || m_lines.empty()) {
            m_lines.push_back(m_line);
        }
        return m_lines;
    }

private:
    void addToPiece(std::string_view character, std::size_t columns) {
        const bool isWide = columns == 2;
        if (columns > 0 && (isWide || m_endsWide || m_pieceColumns + columns > m_width)) {
            endPiece();
        }
        m_piece += character;
        m_pieceColumns += columns;
        m_endsWide = columns == 0 ? m_endsWide : isWide;
    }

    // Puts the piece, which is not cut, on the line or on a new one.
    void endPiece() {
        if (m_piece.empty()) {
            return;
        }
        if (m_lineColumns + m_blanks + m_pieceColumns > m_width && !m_line.empty()) {
            m_lines.push_back(m_line);
            m_line.clear();
            m_lineColumns = 0;
            m_blanks = 0;
        }
        m_line.append(m_blanks, ' ').append(m_piece);
        m_lineColumns += m_blanks + m_pieceColumns;
        m_blanks = 0;
        m_piece.clear();
        m_pieceColumns = 0;
        m_endsWide = false;
    }

    void endLine() {
        endPiece();
        m_lines.push_back(m_line);
        m_line.clear();
        m_lineColumns = 0;
        m_blanks = 0;
    }

    const std::size_t m_width;
    std::vector<std::string> m_lines;
    std::string m_line;
    std::size_t m_lineColumns = 0;
    std::size_t m_blanks = 0;
    /// What has no place to break it.
    std::string m_piece;
    std::size_t m_pieceColumns = 0;
    bool m_endsWide = false;
};

} // namespace

std::size_t characterLength(std::string_view text) {
    return std::max<std::size_t>(internal::utf8Length(text), 1);
}

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        columns += columnsOfCharacter(text.substr(0, length));
        text.remove_prefix(length);
    }
    return columns;
}

std::vector<std::string> wrapColumns(std::string_view text, std::size_t width) {
    Wrapper wrapper(std::max<std::size_t>(width, 2));
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        wrapper.add(text.substr(0, length));
        text.remove_prefix(length);
    }
    return wrapper.finish();
}

} // namespace tarv_3_3::typed::engine
