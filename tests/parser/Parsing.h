#pragma once

#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "result/ParseResult.h"
#include "support/RelativePositions.h"
#include "support/describe.h"

/// A parser, the result that it parses into, and what is in that result as one line. The parser may be of a
/// class derived from the library's.
template <class Parser>
class ParsingWith {
public:
    template <class... More>
    explicit ParsingWith(int flags = 0, More... more) : parser(flags, more...) {}

    /// Parses the arguments of a command line; the program's name goes in front.
    int parse(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "program");
        return parser.parseArgsVector(static_cast<int>(arguments.size()), arguments.data(), &result);
    }

    int parseStream(const char* text) { return parser.parseStream(text, &result); }

    /// The entries of the result, in its order; see `describe`.
    std::string stored() const {
        std::string line;
        for (const tarv_3_3::internal::Entries::Entry* const entry : result.entries().listByName()) {
            line += (line.empty() ? "" : " ") + describe(*entry, positions);
        }
        return line;
    }

    /// The plain arguments, each in square brackets.
    std::string plainArguments() {
        std::string line;
        const char* text = nullptr;
        for (int status = result.getFirstArgument(&text); status == 0;
             status = result.getNextArgument(&text)) {
            line += "[" + std::string(text) + "]";
        }
        return line;
    }

    std::string error() { return parser.getErrorDesc(); }

    const RelativePositions positions;
    Parser parser;
    tarv_3_3::ParseResult result;
};

using Parsing = ParsingWith<tarv_3_3::BasicParser>;
