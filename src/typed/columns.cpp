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

// Of several bytes.
char32_t codeOf(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    const std::size_t length = character.size();
    char32_t code = first & (0xFFU >> (length + 1));
    for (const char byte : character.substr(1)) {
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return code;
}

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// A byte that is no UTF-8 is a character by itself.
std::size_t characterLength(std::string_view text) {
    return std::max<std::size_t>(internal::utf8Length(text), 1);
}

// Of what begins a text: ASCII without a place to break it.
std::size_t lengthOfRun(std::string_view text) {
    const auto ends = [](char byte) { return byte == ' ' || byte == '\n' || !isAscii(byte); };
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), ends) - text.begin());
}

// Of a character that is not ASCII.
std::size_t columnsOfCharacter(std::string_view character) {
    if (internal::utf8Length(character) == 0) {
        return 1;
    }
    const char32_t code = codeOf(character);
    return isIn(withoutColumn, code) ? 0 : isIn(withTwoColumns, code) ? 2 : 1;
}

std::string_view longer(std::string_view part, std::size_t bytes) {
    return {part.data(), part.size() + bytes};
}

/// The line at hand, and the piece behind it: parts of a text that grow as the text is read.
class Wrapper {
public:
    explicit Wrapper(std::size_t width) : m_width(width) {}

    void addBreak(char byte) {
        endPiece();
        if (byte == '\n') {
            startLine();
        } else {
            m_blanks += m_line.empty() ? 0 : 1;
        }
    }

    /// Characters of one column each.
    void addRun(std::string_view run) {
        if (m_endsWide) {
            endPiece();
        }
        while (m_pieceColumns + run.size() > m_width) {
            const std::size_t fitting = m_width - m_pieceColumns;
            addToPiece(run.substr(0, fitting), fitting);
            run.remove_prefix(fitting);
            endPiece();
        }
        addToPiece(run, run.size());
    }

    /// One that is not ASCII.
    void addCharacter(std::string_view character) {
        const std::size_t columns = columnsOfCharacter(character);
        const bool isWide = columns == 2;
        if (columns > 0 && (isWide || m_endsWide || m_pieceColumns + columns > m_width)) {
            endPiece();
        }
        addToPiece(character, columns);
        m_endsWide = columns == 0 ? m_endsWide : isWide;
    }

    std::vector<std::string_view> finish() {
        endPiece();
        if (!m_line.empty() || m_lines.empty()) {
            startLine();
        }
        return std::move(m_lines);
    }

private:
    void addToPiece(std::string_view text, std::size_t columns) {
        m_piece = m_piece.empty() ? text : longer(m_piece, text.size());
        m_pieceColumns += columns;
    }

    // Puts the piece, which is not cut and not wider than a line, on the line or on a new one.
    void endPiece() {
        if (m_piece.empty()) {
            return;
        }
        if (m_lineColumns + m_blanks + m_pieceColumns > m_width) {
            startLine();
        }
        m_line = m_line.empty() ? m_piece : longer(m_line, m_blanks + m_piece.size());
        m_lineColumns += m_blanks + m_pieceColumns;
        m_blanks = 0;
        m_piece = {};
        m_pieceColumns = 0;
        m_endsWide = false;
    }

    void startLine() {
        m_lines.push_back(m_line);
        m_line = {};
        m_lineColumns = 0;
        m_blanks = 0;
    }

    const std::size_t m_width;
    std::vector<std::string_view> m_lines;
    std::string_view m_line;
    std::size_t m_lineColumns = 0;
    std::size_t m_blanks = 0;
    /// A part of the text that has no place to break it.
    std::string_view m_piece;
    std::size_t m_pieceColumns = 0;
    bool m_endsWide = false;
};

} // namespace

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const std::size_t length = isAscii(text.front()) ? 1 : characterLength(text);
        columns += isAscii(text.front()) ? 1 : columnsOfCharacter(text.substr(0, length));
        text.remove_prefix(length);
    }
    return columns;
}

std::vector<std::string_view> wrapColumns(std::string_view text, std::size_t width) {
    Wrapper wrapper(std::max<std::size_t>(width, 2));
    while (!text.empty()) {
        std::size_t length = 1;
        if (text.front() == ' ' || text.front() == '\n') {
            wrapper.addBreak(text.front());
        } else if (isAscii(text.front())) {
            length = lengthOfRun(text);
            wrapper.addRun(text.substr(0, length));
        } else {
            length = characterLength(text);
            wrapper.addCharacter(text.substr(0, length));
        }
        text.remove_prefix(length);
    }
    return wrapper.finish();
}

} // namespace tarv_3_3::typed::engine
