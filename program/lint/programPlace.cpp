#include <algorithm>
#include <cstring>

#include "lint/Call.h"

namespace tarv_program {

namespace {

/// A command that runs the command behind its options.
struct Runner {
    const char* name;
    /// Letters of options that take the next word.
    const char* letters;
    /// Long options that do, with blanks around them.
    const char* words;
    /// How many words stand in front of the command besides.
    std::size_t arguments;
};

const Runner runners[] = {
    {"sudo", "ugCcDhpRrtTU",
     " user group close-from chdir host prompt chroot role type command-timeout other-user ", 0},
    {"doas", "uC", " ", 0},
    {"env", "uCS", " unset chdir split-string ", 0},
    {"xargs", "adEILnPs", " arg-file delimiter max-args max-procs max-chars max-lines ", 0},
    {"nice", "n", " adjustment ", 0},
    {"ionice", "cnpPu", " class classdata ", 0},
    {"nohup", "", " ", 0},
    {"setsid", "", " ", 0},
    {"stdbuf", "ioe", " input output error ", 0},
    {"time", "fo", " format output ", 0},
    {"timeout", "ks", " kill-after signal ", 1},
    {"command", "", " ", 0},
    {"builtin", "", " ", 0},
    {"exec", "a", " ", 0},
    {"busybox", "", " ", 0},
};

const Runner* runnerCalled(const std::string& name) {
    for (const Runner& runner : runners) {
        if (name == runner.name) {
            return &runner;
        }
    }
    return nullptr;
}

bool takesNextWord(const Runner& runner, const std::string& option) {
    if (option.compare(0, 2, "--") == 0) {
        return std::strstr(runner.words, (" " + option.substr(2) + " ").c_str()) != nullptr;
    }
    // "-n" takes the next word, "-n1" has its own, and "-rn" is two letters.
    const std::size_t found = option.find_first_of(runner.letters, 1);
    return found != std::string::npos && found + 1 == option.size();
}

bool isAssignment(const std::string& text) {
    const std::size_t equals = text.find('=');
    return equals != std::string::npos && equals != 0 &&
           std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(equals), [](char byte) {
               return std::strchr("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_", byte) !=
                      nullptr;
           });
}

// The place behind a runner's own options, assignments and arguments.
std::size_t commandBehind(const Runner& runner, const Call& call, std::size_t place) {
    while (place < call.size()) {
        const std::string& text = call[place].text;
        if (text == "--") {
            ++place;
            break;
        }
        if (text.size() > 1 && text.front() == '-') {
            place += takesNextWord(runner, text) ? 2 : 1;
        } else if (isAssignment(text)) {
            ++place;
        } else {
            break;
        }
    }
    return std::min(place + runner.arguments, call.size());
}

} // namespace

std::string commandName(const Word& word) {
    const std::size_t slash = word.text.rfind('/');
    return slash == std::string::npos ? word.text : word.text.substr(slash + 1);
}

std::vector<std::size_t> commandPlaces(const Call& call) {
    std::vector<std::size_t> places;
    std::size_t place = 0;
    while (place < call.size() && call[place].firstUnknown == Word::none) {
        places.push_back(place);
        const Runner* const runner = runnerCalled(commandName(call[place]));
        if (runner == nullptr) {
            break;
        }
        place = commandBehind(*runner, call, place + 1);
    }
    return places;
}

std::size_t programPlace(const Call& call, const std::string& program) {
    for (const std::size_t place : commandPlaces(call)) {
        if (commandName(call[place]) == program) {
            return place;
        }
    }
    return call.size();
}

} // namespace tarv_program
