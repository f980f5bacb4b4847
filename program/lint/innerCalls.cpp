#include <algorithm>

#include "lint/Call.h"

namespace tarv_program {

namespace {

constexpr const char* const shells[] = {"sh", "bash", "dash", "ash", "ksh"};

bool isOneOf(const std::string& text, std::initializer_list<const char*> texts) {
    return std::any_of(texts.begin(), texts.end(), [&](const char* known) { return text == known; });
}

// The words between "-exec" and ";" or "{} +", each time.
void addExecuted(const Call& call, std::size_t place, std::vector<Call>& calls) {
    while (++place < call.size()) {
        if (!isOneOf(call[place].text, {"-exec", "-execdir", "-ok", "-okdir"})) {
            continue;
        }
        Call executed;
        while (++place < call.size() && call[place].text != ";" &&
               !(call[place].text == "+" && call[place - 1].text == "{}")) {
            executed.push_back(call[place]);
        }
        if (!executed.empty()) {
            calls.push_back(executed);
        }
    }
}

// The place of the script that a shell is given with -c; the number of words when it is given none.
std::size_t scriptPlace(const Call& call, std::size_t place) {
    bool isGiven = false;
    while (++place < call.size()) {
        const std::string& text = call[place].text;
        const bool isOption = text.size() > 1 && (text.front() == '-' || text.front() == '+') && text != "--";
        if (!isOption) {
            place += text == "--" || text == "-" ? 1 : 0;
            break;
        }
        const bool isWord = text.compare(0, 2, "--") == 0;
        isGiven = isGiven || (!isWord && text.front() == '-' && text.find('c') != std::string::npos);
        // "-o pipefail" is an option with an argument.
        const bool takesNext = isWord ? isOneOf(text, {"--rcfile", "--init-file"})
                                      : text.find_first_of("oO") != std::string::npos;
        place += takesNext ? 1 : 0;
    }
    return isGiven ? std::min(place, call.size()) : call.size();
}

// A word of a script that stands in an argument, with its place in the script around it.
Word placed(Word word, const Word& argument, const std::string& script) {
    const auto outside = [&](std::size_t offset) {
        return offset < argument.offsets.size() ? argument.offsets[offset] : Word::none;
    };
    const std::size_t begin = outside(word.offset);
    for (std::size_t& offset : word.offsets) {
        // What cannot be shown where it stands is not to be changed either.
        offset = begin == Word::none ? Word::none : outside(offset);
    }
    word.offset = argument.offset;
    word.line = argument.line;
    word.column = argument.column;
    for (; begin != Word::none && word.offset < begin && word.offset < script.size(); ++word.offset) {
        const bool isLineEnd = script[word.offset] == '\n';
        word.line += isLineEnd ? 1 : 0;
        word.column = isLineEnd ? 1 : word.column + 1;
    }
    return word;
}

void addScript(const Word& argument, const std::string& script, const TreeOf& treeOf,
               std::vector<Call>& calls) {
    const std::string tree = argument.firstUnknown == Word::none ? treeOf(argument.text) : "";
    if (tree.empty()) {
        return;
    }
    for (const Call& inner : readCalls(tree, argument.text)) {
        calls.emplace_back();
        for (const Word& word : inner) {
            calls.back().push_back(placed(word, argument, script));
        }
    }
}

} // namespace

std::vector<Call> innerCalls(const Call& call, const std::string& script, const TreeOf& treeOf) {
    std::vector<Call> calls;
    for (const std::size_t place : commandPlaces(call)) {
        const std::string name = commandName(call[place]);
        if (name == "find") {
            addExecuted(call, place, calls);
        } else if (std::find(std::begin(shells), std::end(shells), name) != std::end(shells)) {
            const std::size_t found = scriptPlace(call, place);
            if (found < call.size()) {
                addScript(call[found], script, treeOf, calls);
            }
        }
    }
    return calls;
}

} // namespace tarv_program
