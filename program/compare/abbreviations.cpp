#include "compare/abbreviations.h"

#include <algorithm>

namespace tarv_program {

namespace {

/// Of a name of common length there are some hundred.
constexpr std::size_t mostGroups = 200000;
constexpr std::size_t mostWords = 100;

using Words = std::vector<std::string>;

Words wordsOf(std::string_view name) {
    Words words;
    for (std::size_t dash = name.find('-'); dash != std::string_view::npos; dash = name.find('-')) {
        words.emplace_back(name.substr(0, dash));
        name.remove_prefix(dash + 1);
    }
    words.emplace_back(name);
    return words;
}

std::size_t commonLength(std::string_view left, std::string_view right) {
    const std::size_t most = std::min(left.size(), right.size());
    const auto parting = std::mismatch(left.begin(), left.begin() + most, right.begin());
    return static_cast<std::size_t>(parting.first - left.begin());
}

/// Lengths of one word, from the least to the greatest, that no rival tells apart.
struct Cut {
    std::size_t least;
    std::size_t greatest;
};

// A rival fits up to where the words part, and is whole where its own word ends.
std::vector<Cut> cutsOf(std::string_view word, std::size_t least, const std::set<std::string>& rivals) {
    std::vector<bool> isEnd(word.size() + 1, false);
    const auto endWhole = [&](std::size_t length) {
        isEnd[length] = true;
        if (length > 0) {
            isEnd[length - 1] = true;
        }
    };
    endWhole(word.size());
    for (const std::string& rival : rivals) {
        const std::size_t common = commonLength(word, rival);
        isEnd[common] = true;
        if (common == rival.size()) {
            endWhole(common);
        }
    }
    std::vector<Cut> cuts;
    for (std::size_t end = least; end < isEnd.size(); ++end) {
        if (isEnd[end]) {
            cuts.push_back({least, end});
            least = end + 1;
        }
    }
    return cuts;
}

class Groups {
public:
    Groups(const std::string& name, const NameTable::Row& rivals, const NameTable::Row& touched)
        : m_words(wordsOf(name)), m_touched(touched.names) {
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            m_cuts.push_back(cutsOf(m_words[i], i == 0 ? 1 : 0, rivals.columns[i]));
        }
    }

    bool areTooMany() const {
        if (m_words.size() > mostWords) {
            return true;
        }
        std::size_t count = 1;
        for (const std::vector<Cut>& cuts : m_cuts) {
            count *= cuts.size();
            if (count > mostGroups) {
                return true;
            }
        }
        return false;
    }

    void forEach(const std::function<void(const Abbreviations&)>& use) {
        std::vector<const Words*> fitting;
        for (const Words& words : m_touched) {
            fitting.push_back(&words);
        }
        add(0, {"", 1}, fitting, use);
    }

private:
    void add(std::size_t place, const Abbreviations& group, const std::vector<const Words*>& fitting,
             const std::function<void(const Abbreviations&)>& use) {
        if (place == m_words.size()) {
            use(group);
            return;
        }
        for (const Cut& cut : m_cuts[place]) {
            const std::string_view typed = std::string_view(m_words[place]).substr(0, cut.greatest);
            std::vector<const Words*> left;
            std::copy_if(fitting.begin(), fitting.end(), std::back_inserter(left), [&](const Words* words) {
                return (*words)[place].compare(0, typed.size(), typed) == 0;
            });
            if (left.empty()) {
                continue;
            }
            Abbreviations longer = group;
            longer.longest.append(place == 0 ? "" : "-").append(typed);
            longer.count *= cut.greatest - cut.least + 1;
            add(place + 1, longer, left, use);
        }
    }

    const Words m_words;
    const std::vector<Words>& m_touched;
    std::vector<std::vector<Cut>> m_cuts;
};

} // namespace

NameRow rowOf(std::string_view name) {
    const auto dashes = static_cast<std::size_t>(std::count(name.begin(), name.end(), '-'));
    return {dashes + 1, name.empty() ? '\0' : name.front()};
}

void NameTable::add(const std::string& name) {
    Row& row = m_rows[rowOf(name)];
    row.names.push_back(wordsOf(name));
    const Words& words = row.names.back();
    row.columns.resize(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        row.columns[i].insert(words[i]);
    }
}

const NameTable::Row* NameTable::find(std::string_view name) const {
    const auto found = m_rows.find(rowOf(name));
    return found != m_rows.end() ? &found->second : nullptr;
}

bool forEachAbbreviation(const std::string& name, const NameTable::Row& rivals, const NameTable::Row& touched,
                         const std::function<void(const Abbreviations&)>& use) {
    if (name.empty() || name.front() == '-') {
        return true;
    }
    Groups groups(name, rivals, touched);
    if (groups.areTooMany()) {
        return false;
    }
    groups.forEach(use);
    return true;
}

} // namespace tarv_program
