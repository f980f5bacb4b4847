#include "description/nameDistance.h"

#include <algorithm>
#include <vector>

namespace tarv_3_3::internal {

namespace {

/// The table of an edit distance, row by row: the distances from each prefix of a typed name to each prefix
/// of a declared one. The rest of a word of the declared name may be skipped, once a letter of it is typed.
class DistanceTable {
public:
    DistanceTable(std::string_view typed, std::string_view name)
        : m_typed(typed), m_name(name), m_width(name.size() + 1), m_cells((typed.size() + 1) * m_width) {
        for (std::size_t row = 0; row <= typed.size(); ++row) {
            fillRow(row);
        }
    }

    NameDistance result() const { return m_cells.back(); }

private:
    NameDistance& at(std::size_t row, std::size_t column) { return m_cells[row * m_width + column]; }

    void fillRow(std::size_t row) {
        at(row, 0) = {row, 0};
        NameDistance skipping;
        for (std::size_t column = 1; column < m_width; ++column) {
            NameDistance& cell = at(row, column);
            cell = row == 0 ? NameDistance{column, 0} : nearest(row, column);
            const bool isDash = m_name[column - 1] == '-';
            ++skipping.cut;
            skipping = isDash ? NameDistance() : std::min(skipping, cell);
            const bool endsWord = column == m_name.size() || m_name[column] == '-';
            if (endsWord && !isDash) {
                cell = skipping;
            }
        }
    }

    // The last letters are the same, or one is different, superfluous, missing or swapped.
    NameDistance nearest(std::size_t row, std::size_t column) {
        const char last = m_typed[row - 1];
        const char lastWanted = m_name[column - 1];
        NameDistance best = behind(at(row - 1, column - 1), last != lastWanted);
        best = std::min(best, behind(at(row - 1, column), true));
        best = std::min(best, behind(at(row, column - 1), true));
        if (row > 1 && column > 1 && last == m_name[column - 2] && m_typed[row - 2] == lastWanted) {
            best = std::min(best, behind(at(row - 2, column - 2), true));
        }
        return best;
    }

    static NameDistance behind(NameDistance before, bool isEdited) {
        before.edits += isEdited ? 1 : 0;
        return before;
    }

    std::string_view m_typed;
    std::string_view m_name;
    std::size_t m_width;
    std::vector<NameDistance> m_cells;
};

std::string_view takeWord(std::string_view& words) {
    const std::size_t end = std::min(words.find('-'), words.size());
    const std::string_view word = words.substr(0, end);
    words.remove_prefix(std::min(end + 1, words.size()));
    return word;
}

std::size_t countWords(std::string_view name) {
    return 1 + static_cast<std::size_t>(std::count(name.begin(), name.end(), '-'));
}

// The typed words must occur in the name in the same order, each of them whole or abbreviated.
NameDistance leftOutDistance(std::string_view typed, std::string_view name, std::size_t words) {
    NameDistance sum = {1, 0};
    std::string_view wanted = takeWord(typed);
    for (std::size_t left = countWords(name); left != 0; --left) {
        const std::string_view word = takeWord(name);
        if (words != 0 && !wanted.empty() && word.substr(0, wanted.size()) == wanted) {
            sum.cut += word.size() - wanted.size();
            wanted = takeWord(typed);
            --words;
        }
    }
    return words == 0 ? sum : NameDistance();
}

} // namespace

NameDistance nameDistance(std::string_view typed, std::string_view name) {
    const NameDistance edited = DistanceTable(typed, name).result();
    const std::size_t words = countWords(typed);
    return words < countWords(name) ? std::min(edited, leftOutDistance(typed, name, words)) : edited;
}

} // namespace tarv_3_3::internal
