#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarv_program {

/// Ways to cut the words of a name short that no other name tells apart.
struct Abbreviations {
    /// The longest of them.
    std::string longest;
    std::size_t count;
};

/// A list of names that may be typed, in which those that can be mixed up with another are found quickly.
class NameTable {
public:
    void add(const std::string& name);

    /// The names that have as many words as `name`, and share the first byte: no other can be abbreviated
    /// alike.
    const std::vector<std::string>& rivalsOf(std::string_view name) const;

private:
    /// The number of words and the first byte.
    using Row = std::pair<std::size_t, char>;

    static Row rowOf(std::string_view name);

    std::map<Row, std::vector<std::string>> m_rows;
};

/// Calls `use` with all abbreviations of a name, its own text among them, in groups: those that cut the words
/// at places which differ in nothing to any of `rivals`. So one of a group means what all of them mean.
/// With `touched` not empty, groups that fit none of those names may be left out. An abbreviation that is
/// empty or begins with a dash, which nobody can type, is none. Returns false, without having called, when
/// there are too many groups.
bool forEachAbbreviation(const std::string& name, const std::vector<std::string>& rivals,
                         const std::vector<std::string>& touched,
                         const std::function<void(const Abbreviations&)>& use);

} // namespace tarv_program
