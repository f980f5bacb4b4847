#pragma once

#include <memory>
#include <vector>

#include "parser/BasicParser.h"
#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// A parser that knows names and kinds: all options that go with a command, those of the topmost first.
struct LevelParser {
    std::unique_ptr<BasicParser> parser;
    /// What was declared, by its place in the parser's table.
    std::vector<Option*> options;
};

/// The kind of value that the parser knows an option by.
das_variant_type_t parserKind(const Option& option);

LevelParser makeLevelParser(const Command& command);

/// Declares "help" and, with a version, "version", as far as the command leaves them.
void declareLastResort(IParser& parser, const Command& command);

/// A parser that knows the verbs of a command as options without a value.
std::unique_ptr<BasicParser> makeVerbParser(const Command& command);

} // namespace tarv_3_3::typed::engine
