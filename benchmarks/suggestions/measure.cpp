// Measures how often suggestions name the option that was meant, beside the rules of other libraries.
//
//     bench-suggestions NAMES [COUNT [SEED]]           a table, COUNT words a row
//     bench-suggestions NAMES COUNT SEED sample        the words themselves: kind, tool, word, meant name
//
// README.md says how words are made.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "suggestions/Misspeller.h"
#include "suggestions/rules.h"
#include "tarv_3_3/description.h"

namespace tarv = tarv_3_3;

namespace {

/// A tool with its options.
class Tool {
public:
    Tool() {
        if (tarv::createParser(&m_parser, tarv::flagRejectUnknown) != tarv::parseOk) {
            std::abort();
        }
    }
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    ~Tool() { m_parser->destroy(); }

    void declare(const std::string& name) {
        names.push_back(name);
        m_parser->option(name.c_str(), "", tarv::vtNull);
    }

    /// Whether it would not get as far as a suggestion: the parse takes the word, or names the options that
    /// it stands for.
    bool isUnderstood(const std::string& word) const {
        const std::string argument = "--" + word;
        const char* const arguments[] = {"tool", argument.c_str()};
        return m_parser->parseArgsVector(2, arguments, nullptr) == tarv::parseOk ||
               m_parser->getErrorDesc() != "Unknown option: " + argument;
    }

    /// Whether it stands for the name and no other.
    bool isAbbreviation(const std::string& word, const std::string& name) const {
        const std::string argument = "--" + word;
        const char* const arguments[] = {"tool", argument.c_str()};
        tarv::IParseResult* result = nullptr;
        m_parser->createResult(&result);
        const bool stands =
            m_parser->parseArgsVector(2, arguments, result) == tarv::parseOk && result->present(name.c_str());
        result->destroy();
        return stands;
    }

    std::vector<std::string> suggested(const std::string& word) const {
        std::vector<std::string> found;
        const char* const sentence = tarv::suggest(m_parser, ("--" + word).c_str());
        const std::string text = sentence != nullptr ? sentence : "";
        for (std::size_t begin = text.find("'--"); begin != std::string::npos;) {
            const std::size_t end = text.find('\'', begin + 1);
            found.push_back(text.substr(begin + 3, end - begin - 3));
            begin = text.find("'--", end + 1);
        }
        return found;
    }

    std::vector<std::string> names;

private:
    tarv::IParser* m_parser = nullptr;
};

struct Word {
    const Tool* tool;
    std::string toolName;
    std::string typed;
    /// Empty when nothing was meant.
    std::string meant;
};

using Tools = std::map<std::string, Tool>;
/// Makes a word from a name; an empty one when that name does not serve.
using Maker = std::function<std::string(Misspeller&, const Tool&, const std::string&)>;

std::string oneEdit(Misspeller& misspeller, const Tool&, const std::string& name) {
    return misspeller.edit(name);
}

std::string cutAndOneEdit(Misspeller& misspeller, const Tool& tool, const std::string& name) {
    const std::string cut = misspeller.cutShort(name);
    return cut != name && tool.isAbbreviation(cut, name) ? misspeller.edit(cut) : "";
}

std::string twoEdits(Misspeller& misspeller, const Tool&, const std::string& name) {
    const std::string once = misspeller.edit(name);
    return once.empty() ? "" : misspeller.edit(once);
}

std::string wordLeftOut(Misspeller& misspeller, const Tool&, const std::string& name) {
    return misspeller.leaveOutWord(name);
}

std::string lastWordLeftOut(Misspeller&, const Tool&, const std::string& name) {
    return name.substr(0, std::min(name.rfind('-'), name.size()));
}

std::string nonsense(Misspeller& misspeller, const Tool&, const std::string&) {
    return misspeller.nonsense(4, 12);
}

std::string anyNonsense(Misspeller& misspeller, const Tool&, const std::string&) {
    return misspeller.nonsense(2, 12);
}

std::string threeLetters(Misspeller& misspeller, const Tool&, const std::string&) {
    return misspeller.nonsense(3, 3);
}

std::vector<Word> makeWords(const Tools& tools, const Maker& make, bool isMeant, std::size_t count,
                            unsigned seed) {
    std::vector<Word> all;
    for (const auto& [toolName, tool] : tools) {
        for (const std::string& name : tool.names) {
            all.push_back({&tool, toolName, "", name});
        }
    }
    Misspeller misspeller(seed);
    std::vector<Word> words;
    while (words.size() < count) {
        Word word = all[misspeller.below(all.size())];
        word.typed = make(misspeller, *word.tool, word.meant);
        if (!word.typed.empty() && !word.tool->isUnderstood(word.typed)) {
            word.meant = isMeant ? word.meant : "";
            words.push_back(word);
        }
    }
    return words;
}

struct Row {
    const char* name;
    Maker make;
    bool isMeant;
};

const Row rows[] = {{"one-edit", oneEdit, true},
                    {"two-edits", twoEdits, true},
                    {"cut-and-one-edit", cutAndOneEdit, true},
                    {"word-left-out", wordLeftOut, true},
                    {"last-word-left-out", lastWordLeftOut, true},
                    {"nonsense", nonsense, false},
                    {"two-to-twelve-letters-of-nonsense", anyNonsense, false},
                    {"three-letters-of-nonsense", threeLetters, false}};

using Rule = std::function<std::vector<std::string>(const Word&)>;

void printShares(const std::vector<Word>& words, const Rule& rule) {
    std::size_t right = 0;
    std::size_t wrong = 0;
    std::size_t shown = 0;
    for (const Word& word : words) {
        const std::vector<std::string> names = rule(word);
        shown += names.size();
        bool isNamed = false;
        for (const std::string& name : names) {
            isNamed = isNamed || name == word.meant;
        }
        right += isNamed ? 1 : 0;
        wrong += !isNamed && !names.empty() ? 1 : 0;
    }
    const auto all = static_cast<double>(words.size());
    std::printf(" | %5.1f / %4.1f (%.1f)", 100 * static_cast<double>(right) / all,
                100 * static_cast<double>(wrong) / all, static_cast<double>(shown) / all);
}

void printTable(const Tools& tools, std::size_t count, unsigned seed) {
    std::printf("| | tarv | clap | LLVM | cobra |\n| --- | --- | --- | --- | --- |\n");
    for (const Row& row : rows) {
        const std::vector<Word> words = makeWords(tools, row.make, row.isMeant, count, seed);
        std::printf("| %s", row.name);
        printShares(words, [](const Word& word) { return word.tool->suggested(word.typed); });
        printShares(words, [](const Word& word) { return byJaro(word.typed, word.tool->names); });
        printShares(words, [](const Word& word) { return byNearest(word.typed, word.tool->names); });
        printShares(words,
                    [](const Word& word) { return byDistanceOrBeginning(word.typed, word.tool->names); });
        std::printf(" |\n");
    }
}

void printSample(const Tools& tools, std::size_t count, unsigned seed) {
    for (const Row& row : rows) {
        for (const Word& word : makeWords(tools, row.make, row.isMeant, count, seed)) {
            std::printf("%s %s %s %s\n", row.name, word.toolName.c_str(), word.typed.c_str(),
                        word.meant.empty() ? "-" : word.meant.c_str());
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "bench-suggestions: the file of names is missing\n");
        return 2;
    }
    Tools tools;
    std::ifstream file(argv[1]);
    for (std::string tool, name; file >> tool >> name;) {
        tools[tool].declare(name);
    }
    if (tools.empty()) {
        std::fprintf(stderr, "bench-suggestions: no names in '%s'\n", argv[1]);
        return 2;
    }
    const std::size_t count = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 4000;
    const auto seed = static_cast<unsigned>(argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 1);
    if (argc > 4) {
        printSample(tools, count, seed);
    } else {
        printTable(tools, count, seed);
    }
    return 0;
}
