#include "explain/levels.h"

#include <deque>
#include <memory>
#include <new>

#include "model/mends.h"
#include "model/verbs.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

struct Release {
    void operator()(const Explanation* explanation) const { release(explanation); }
};
using OwnedExplanation = std::unique_ptr<const Explanation, Release>;

OwnedExplanation explained(const Side& side, const std::vector<std::string>& arguments) {
    std::vector<const char*> argv(1, "");
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    OwnedExplanation explanation(explain(&side.parser(), static_cast<int>(argv.size()), argv.data()));
    if (explanation == nullptr) {
        throw std::bad_alloc();
    }
    return explanation;
}

// The first argument that is no option's; the number of arguments when there is none.
std::size_t firstNameless(const Explanation& explanation, const std::vector<std::string>& arguments) {
    std::size_t place = 0;
    while (place < arguments.size()) {
        const int role = explainedAt(explanation, static_cast<unsigned>(place)).role;
        const bool hasDash = !arguments[place].empty() && arguments[place].front() == '-';
        if ((role == explainedPositional || role == explainedUnknown) && !hasDash) {
            break;
        }
        ++place;
    }
    return place;
}

} // namespace

bool asksForHelp(const CommandLine& program, const std::string& word, const Meaning& verb) {
    return verb.kind == Meaning::nothing && mendOf(program, "--" + word) == "help";
}

void forEachLevel(const CommandLine& program, const std::vector<std::string>& arguments,
                  const std::function<void(const LevelPart&)>& use) {
    // A deque leaves the lines where they are, which the sides refer to.
    std::deque<CommandLine> lines = {withRequiredAsRules(program)};
    std::size_t first = 0;
    for (;;) {
        const CommandLine& line = lines.back();
        const Side side(line);
        const std::vector<std::string> left(arguments.begin() + static_cast<std::ptrdiff_t>(first),
                                            arguments.end());
        const OwnedExplanation explanation = explained(side, left);
        const std::size_t count = line.verbs.empty() ? left.size() : firstNameless(*explanation, left);
        LevelPart part = {side, left, *explanation, first, count, count < left.size(), Meaning(), false};
        if (part.isVerbNext) {
            const CommandLine names = verbsAsOptions(line);
            part.verb = Side(names).meaningOf(left[count]);
            part.isHelpNext = lines.size() == 1 && asksForHelp(line, left[count], part.verb);
            part.isVerbNext = !part.isHelpNext;
        }
        use(part);
        if (!part.isVerbNext || part.verb.kind != Meaning::one) {
            return;
        }
        first += count + 1;
        lines.push_back(within(line, line.verbs[part.verb.place]));
    }
}

} // namespace tarv_program
