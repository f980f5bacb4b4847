#include "suggestions/Misspeller.h"

#include <utility>

namespace {

std::vector<std::string> wordsOf(const std::string& name) {
    std::vector<std::string> words(1);
    for (const char letter : name) {
        if (letter == '-') {
            words.emplace_back();
        } else {
            words.back() += letter;
        }
    }
    return words;
}

std::string joined(const std::vector<std::string>& words) {
    std::string name;
    for (const std::string& word : words) {
        name.append(name.empty() ? "" : "-").append(word);
    }
    return name;
}

} // namespace

std::string Misspeller::edit(std::string name) {
    const std::size_t place = below(name.size());
    switch (below(4)) {
    case 0:
        return name.insert(below(name.size() + 1), 1, letter());
    case 1:
        return name.erase(place, 1);
    case 2:
        name[place] = letter();
        return name;
    default:
        if (place + 1 < name.size()) {
            std::swap(name[place], name[place + 1]);
        }
        return name;
    }
}

std::string Misspeller::cutShort(const std::string& name) {
    std::vector<std::string> words = wordsOf(name);
    for (std::string& word : words) {
        if (word.size() > 2) {
            word.resize(2 + below(word.size() - 1));
        }
    }
    return joined(words);
}

std::string Misspeller::leaveOutWord(const std::string& name) {
    std::vector<std::string> words = wordsOf(name);
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(below(words.size())));
    return joined(words);
}

std::string Misspeller::nonsense(std::size_t least, std::size_t most) {
    std::string text;
    for (std::size_t left = least + below(most - least + 1); left != 0; --left) {
        text += letter();
    }
    return text;
}
