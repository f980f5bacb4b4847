#include "typed/positionals.h"

#include <algorithm>

#include "description/terminalText.h"
#include "typed/messages.h"

namespace tarv_3_3::typed::engine {

namespace {

std::size_t needOf(const Option& option) {
    return std::max<std::size_t>(option.least, option.isRequired ? 1 : 0);
}

} // namespace

std::vector<Option*> positionalsOf(const Command& command) {
    std::vector<Option*> list;
    for (const std::unique_ptr<Option>& option : command.options) {
        if (option->isPositional()) {
            list.push_back(option.get());
        }
    }
    return list;
}

std::vector<std::size_t> shares(const std::vector<Option*>& positionals, std::size_t count) {
    std::vector<std::size_t> list;
    for (const Option* option : positionals) {
        list.push_back(std::min(needOf(*option), count));
        count -= list.back();
    }
    for (std::size_t i = 0; i < positionals.size(); ++i) {
        const std::size_t most = positionals[i]->most;
        const std::size_t more = most == 0 ? count : std::min(count, most - std::min(most, list[i]));
        list[i] += more;
        count -= more;
    }
    return list;
}

void distribute(const Command& command, const std::vector<std::size_t>& words, CommandLine& line) {
    const std::vector<Option*> positionals = positionalsOf(command);
    const std::vector<std::size_t> each = shares(positionals, words.size());
    std::size_t used = 0;
    for (std::size_t i = 0; i < positionals.size(); ++i) {
        for (std::size_t taken = 0; taken < each[i]; ++taken) {
            Occurrence occurrence;
            occurrence.option = positionals[i];
            occurrence.place = static_cast<int>(words[used]);
            occurrence.text = line.arguments[words[used]].c_str();
            line.occurrences.push_back(occurrence);
            ++used;
        }
    }
    if (used < words.size()) {
        line.complain(messages::tooManyArguments(internal::terminalText(line.arguments[words[used]])));
    }
}

} // namespace tarv_3_3::typed::engine
