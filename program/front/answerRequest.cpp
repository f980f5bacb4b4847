#include <cstdio>
#include <cstring>
#include <string>

#include <tarv_3_3/completion.h>
#include <unistd.h>

#include "front/Verb.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

constexpr char questionBegin[] = "tarvoption=complete=";
constexpr std::size_t mostBytes = 16 * 1024 * 1024;

std::vector<std::string> readWords() {
    std::vector<std::string> words;
    std::string word;
    std::size_t count = 0;
    for (int c = std::getchar(); c != EOF && count < mostBytes; c = std::getchar(), ++count) {
        if (c == 0) {
            words.push_back(word);
            word.clear();
        } else {
            word += static_cast<char>(c);
        }
    }
    return words;
}

// Whoever reads standard input now reads these words.
bool putBack(const std::vector<std::string>& words) {
    std::FILE* const file = std::tmpfile();
    if (file == nullptr) {
        return false;
    }
    for (const std::string& word : words) {
        std::fwrite(word.c_str(), 1, word.size() + 1, file);
    }
    const bool isDone =
        std::fflush(file) == 0 && std::fseek(file, 0, SEEK_SET) == 0 && dup2(fileno(file), STDIN_FILENO) >= 0;
    std::fclose(file);
    std::clearerr(stdin);
    return isDone;
}

// The verb that is typed in front of the cursor. What it is short for, the parser of the program knows.
const Verb* verbIn(const std::vector<Verb>& verbs, IParser& root, const std::string& typed) {
    const Result result = createResult(root);
    const char* const argv[] = {"", typed.c_str()};
    if (root.parseArgsVector(2, argv, result.get()) != parseOk) {
        return nullptr;
    }
    const Value value = result->get("verb");
    for (const Verb& verb : verbs) {
        if (value.text != nullptr && std::strcmp(value.text, verb.name) == 0) {
            return &verb;
        }
    }
    return nullptr;
}

// The program's words are those of the program, or behind a verb those of the verb.
void answerQuestion(const std::vector<Verb>& verbs, IParser& root, int argc, const char* const* argv) {
    std::vector<std::string> words = readWords();
    // Bash sends the word at the cursor in two pieces.
    const bool isBash = std::strcmp(argv[1] + std::strlen(questionBegin), "bash") == 0;
    const std::size_t behindVerb = isBash ? 4 : 3;
    const Verb* const verb = words.size() >= behindVerb ? verbIn(verbs, root, words[1]) : nullptr;
    if (verb != nullptr) {
        words.erase(words.begin() + 1);
    }
    if (putBack(words)) {
        const Parser parser = verb != nullptr ? parserOf(*verb) : nullptr;
        answerCompletion(parser ? parser.get() : &root, argc, argv);
    }
}

} // namespace

bool answerRequest(const std::vector<Verb>& verbs, IParser& root, int argc, const char* const* argv) {
    if (argc != 2) {
        return false;
    }
    if (std::strcmp(argv[1], "tarvoption=describe") == 0) {
        print(describeProgram(verbs, root));
        return true;
    }
    if (std::strncmp(argv[1], questionBegin, std::strlen(questionBegin)) == 0) {
        answerQuestion(verbs, root, argc, argv);
        return true;
    }
    return answerCompletion(&root, argc, argv);
}

} // namespace tarv_program
