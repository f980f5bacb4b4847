#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarv_3_3/explain.h>

#include "compare/Side.h"
#include "model/CommandLine.h"

namespace tarv_program {

/// Arguments that belong to one level of a program: to the program itself, or to one of its verbs.
struct LevelPart {
    const Side& side;
    /// All arguments of the level; what stands from the verb on is not the level's.
    const std::vector<std::string>& arguments;
    const tarv_3_3::Explanation& explanation;
    /// Where the first of them stands among all arguments.
    std::size_t first;
    /// How many are the level's.
    std::size_t count;
    /// The argument behind them is to be a verb: what it means among the verbs of `side`.
    bool isVerbNext;
    Meaning verb;
    /// The argument behind them asks for help instead, as it does in programs that mend their command lines;
    /// verbs behind it say with what.
    bool isHelpNext;

    const tarv_3_3::ExplainedArgument& at(std::size_t place) const {
        return explainedAt(explanation, static_cast<unsigned>(place));
    }
};

/// Whether a word that means this among the verbs of the program asks for help: verbs that are declared go
/// before.
bool asksForHelp(const CommandLine& program, const std::string& word, const Meaning& verb);

/// Calls `use` for the program, and for each verb in the arguments with those behind it. Ends behind one that
/// is no verb, and in front of what asks for help.
void forEachLevel(const CommandLine& program, const std::vector<std::string>& arguments,
                  const std::function<void(const LevelPart&)>& use);

} // namespace tarv_program
