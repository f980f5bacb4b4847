#include "suggestions/rules.h"

#include <algorithm>

namespace {

std::size_t levenshtein(const std::string& from, const std::string& to) {
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = i;
    }
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t k = 0; k < to.size(); ++k) {
            const std::size_t replaced = diagonal + (from[i] == to[k] ? 0 : 1);
            diagonal = row[k + 1];
            row[k + 1] = std::min({replaced, row[k] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// The letters of `text` that have an equal one near their place in `other`, each of which is used once.
std::string matching(const std::string& text, std::string other, std::size_t reach) {
    std::string found;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t first = i > reach ? i - reach : 0;
        const std::size_t place = other.find(text[i], first);
        if (place != std::string::npos && place <= i + reach) {
            found += text[i];
            other[place] = '\0';
        }
    }
    return found;
}

double jaro(const std::string& left, const std::string& right) {
    const std::size_t longer = std::max(left.size(), right.size());
    const std::size_t reach = longer / 2 == 0 ? 0 : longer / 2 - 1;
    const std::string ofLeft = matching(left, right, reach);
    const std::string ofRight = matching(right, left, reach);
    if (ofLeft.empty() || ofLeft.size() != ofRight.size()) {
        return 0;
    }
    std::size_t misplaced = 0;
    for (std::size_t i = 0; i < ofLeft.size(); ++i) {
        misplaced += ofLeft[i] == ofRight[i] ? 0 : 1;
    }
    const auto matches = static_cast<double>(ofLeft.size());
    return (matches / static_cast<double>(left.size()) + matches / static_cast<double>(right.size()) +
            (matches - static_cast<double>(misplaced) / 2) / matches) /
           3;
}

} // namespace

std::vector<std::string> byJaro(const std::string& word, const std::vector<std::string>& names) {
    std::vector<std::string> best;
    double most = 0.7;
    for (const std::string& name : names) {
        const double similarity = jaro(word, name);
        if (similarity > most) {
            most = similarity;
            best = {name};
        }
    }
    return best;
}

std::vector<std::string> byNearest(const std::string& word, const std::vector<std::string>& names) {
    return {
        *std::min_element(names.begin(), names.end(), [&](const std::string& left, const std::string& right) {
            return levenshtein(word, left) < levenshtein(word, right);
        })};
}

std::vector<std::string> byDistanceOrBeginning(const std::string& word,
                                               const std::vector<std::string>& names) {
    std::vector<std::string> found;
    for (const std::string& name : names) {
        if (levenshtein(word, name) <= 2 || name.compare(0, word.size(), word) == 0) {
            found.push_back(name);
        }
    }
    return found;
}
