#include "compare/abbreviations.h"

#include <algorithm>
#include <set>

namespace tarv_program {

namespace {

/// Of a name of common length there are some hundred.
constexpr std::size_t mostGroups = 200000;
constexpr std::size_t mostWords = 100;

using Words = std::vector<std::string_view>;

Words wordsOf(std::string_view name) {
    Words words;
    for (std::size_t dash = name.find('-'); dash != std::string_view::npos; dash = name.find('-')) {
        words.push_back(name.substr(0, dash));
        name.remove_prefix(dash + 1);
    }
    words.push_back(name);
    return words;
}

std::size_t commonLength(std::string_view left, std::string_view right) {
    const std::size_t most = std::min(left.size(), right.size());
    std::size_t length = 0;
    while (length < most && left[length] == right[length]) {
        ++length;
    }
    return length;
}

/// Lengths of one word, from the least to the greatest, that no rival tells apart.
struct Cut {
    std::size_t least;
    std::size_t greatest;
};

// A rival fits up to where the words part, and is whole where its own word ends.
std::vector<Cut> cutsOf(std::string_view word, std::size_t place, const std::vector<Words>& rivals) {
    std::set<std::size_t> ends = {word.size()};
    if (!word.empty()) {
        ends.insert(word.size() - 1);
    }
    for (const Words& rival : rivals) {
        const std::size_t common = commonLength(word, rival[place]);
        ends.insert(common);
        if (common == rival[place].size() && common > 0) {
            ends.insert(common - 1);
        }
    }
    std::vector<Cut> cuts;
    std::size_t least = place == 0 ? 1 : 0;
    for (const std::size_t end : ends) {
        if (end >= least) {
            cuts.push_back({least, end});
            least = end + 1;
        }
    }
    return cuts;
}

class Groups {
public:
    Groups(const std::string& name, const std::vector<std::string>& rivals,
           const std::vector<std::string>& touched)
        : m_words(wordsOf(name)), m_touched(allWords(touched)) {
        const std::vector<Words> rivalWords = allWords(rivals);
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            m_cuts.push_back(cutsOf(m_words[i], i, rivalWords));
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
    static std::vector<Words> allWords(const std::vector<std::string>& names) {
        std::vector<Words> all;
        all.reserve(names.size());
        for (const std::string& name : names) {
            all.push_back(wordsOf(name));
        }
        return all;
    }

    void add(std::size_t place, const Abbreviations& group, const std::vector<const Words*>& fitting,
             const std::function<void(const Abbreviations&)>& use) {
        if (place == m_words.size()) {
            use(group);
            return;
        }
        for (const Cut& cut : m_cuts[place]) {
            const std::string_view typed = m_words[place].substr(0, cut.greatest);
            std::vector<const Words*> left;
            for (const Words* const words : fitting) {
                if ((*words)[place].substr(0, typed.size()) == typed) {
                    left.push_back(words);
                }
            }
            if (left.empty() && !m_touched.empty()) {
                continue;
            }
            Abbreviations longer = group;
            longer.longest.append(place == 0 ? "" : "-").append(typed);
            longer.count *= cut.greatest - cut.least + 1;
            add(place + 1, longer, left, use);
        }
    }

    Words m_words;
    std::vector<Words> m_touched;
    std::vector<std::vector<Cut>> m_cuts;
};

} // namespace

NameTable::Row NameTable::rowOf(std::string_view name) {
    const auto words = static_cast<std::size_t>(std::count(name.begin(), name.end(), '-'));
    return {words, name.empty() ? '\0' : name.front()};
}

void NameTable::add(const std::string& name) {
    m_rows[rowOf(name)].push_back(name);
}

const std::vector<std::string>& NameTable::rivalsOf(std::string_view name) const {
    static const std::vector<std::string> none;
    const auto found = m_rows.find(rowOf(name));
    return found != m_rows.end() ? found->second : none;
}

bool forEachAbbreviation(const std::string& name, const std::vector<std::string>& rivals,
                         const std::vector<std::string>& touched,
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
