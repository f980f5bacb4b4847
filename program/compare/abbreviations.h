#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarv_program {

/// The number of words and the first byte of a name. Names that differ in one of the two have no abbreviation
/// in common.
using NameRow = std::pair<std::size_t, char>;
NameRow rowOf(std::string_view name);

/// Names that may be typed, in rows.
class NameTable {
public:
    struct Row {
        /// The words of each name.
        std::vector<std::vector<std::string>> names;
        /// Each word that stands first in some name, then each that stands second, and so on.
        std::vector<std::set<std::string>> columns;
    };

    void add(const std::string& name);

    /// The row that `name` belongs to; null where it is empty.
    const Row* find(std::string_view name) const;

private:
    std::map<NameRow, Row> m_rows;
};

/// Ways to cut the words of a name short that no other name tells apart.
struct Abbreviations {
    /// The longest of them.
    std::string longest;
    std::size_t count;
};

/// Calls `use` with abbreviations of a name, its own text among them, in groups: those that cut the words at
/// places which differ in nothing to any name of `rivals`. So one of a group means what all of them mean.
/// Groups that fit no name of `touched` may be left out. An abbreviation that is empty or begins with a dash,
/// which nobody can type, is none. Returns false, without having called, when there are too many groups.
bool forEachAbbreviation(const std::string& name, const NameTable::Row& rivals, const NameTable::Row& touched,
                         const std::function<void(const Abbreviations&)>& use);

} // namespace tarv_program
