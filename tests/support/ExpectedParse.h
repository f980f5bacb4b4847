#pragma once

#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "reading/Reader.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/IParseResult.h"

/// What a parse does, and what the reading of its arguments says that it does.

namespace tarv_3_3 {

/// Writes down all events.
class Events final : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return note("option " + std::string(name)); }
    bool onValueParse(const char* name, const Value& value) override {
        return note("value of " + std::string(name) + ": " + value.text);
    }
    bool onUknownArgument(const char* argument) override { return note("unknown " + std::string(argument)); }

    std::vector<std::string> all;

private:
    bool note(std::string event) {
        all.push_back(std::move(event));
        return true;
    }
};

/// What a parse should do, by what each argument was read as. Whether a value is one of the option's is
/// nothing that a reading says, so it is asked of the declaration.
class ExpectedParse {
public:
    ExpectedParse(const BasicParser& parser, const std::vector<std::string>& arguments,
                  const std::vector<ReadArgument>& readings)
        : m_options(parser.registry().m_options) {
        for (std::size_t i = 0; i < arguments.size() && message.empty(); ++i) {
            expect(arguments, readings[i], i);
        }
    }

    /// Whether it is what a parse did that ended with `found`, empty when it succeeded. Once all arguments
    /// are taken, they may still be refused together.
    bool agreesOnMessage(const std::string& found) const {
        const bool isOfPhaseTwo = found == "No action defined." || found.substr(0, 9) == "Action '-";
        return found.empty() || isOfPhaseTwo ? message.empty()
                                             : !message.empty() && found.substr(0, message.size()) == message;
    }

    std::vector<std::string> events;
    std::vector<std::string> plain;
    /// How the message begins; empty: none.
    std::string message;

private:
    void expect(const std::vector<std::string>& arguments, const ReadArgument& read, std::size_t i) {
        switch (read.role) {
        case ArgumentRole::named:
            expectNamed(arguments, read, i);
            break;
        case ArgumentRole::positional:
            expectPositional(arguments[i], read.index);
            break;
        case ArgumentRole::plain:
            plain.push_back(arguments[i]);
            if (read.index != ReadArgument::nowhere) {
                expectPositional(arguments[i], read.index);
            }
            break;
        case ArgumentRole::unknown:
            expectUnknown(arguments[i], read.isRefused);
            break;
        case ArgumentRole::misnamed:
            message = "Unknown option '";
            break;
        case ArgumentRole::ambiguous:
            message = "Ambiguous option '";
            break;
        default:
            break;
        }
    }

    void expectUnknown(const std::string& argument, bool isRefused) {
        events.push_back("unknown " + argument);
        message = isRefused ? "Unknown option: " : "";
    }

    void expectNamed(const std::vector<std::string>& arguments, const ReadArgument& read, std::size_t i) {
        const OptionDescription& option = m_options[read.index];
        if (read.isRefused) {
            message = "Option '" + option.primaryName() + "'";
            return;
        }
        events.push_back("option " + option.primaryName());
        const std::string negated = read.isNegated ? "0" : "1";
        expectValue(read.source == ValueSource::name           ? negated
                    : read.source == ValueSource::sameArgument ? std::string(read.token.valueIn(arguments[i]))
                    : read.source == ValueSource::nextArgument ? arguments[i + 1]
                                                               : "",
                    option);
    }

    void expectPositional(const std::string& argument, std::size_t place) {
        events.push_back("option " + m_options.front().primaryName());
        expectValue(argument, m_options[place]);
    }

    void expectValue(const std::string& value, const OptionDescription& option) {
        std::istringstream rest(value);
        bool isEmpty = true;
        for (std::string piece; message.empty() && nextPiece(rest, piece, option.m_tokenizer);) {
            isEmpty = false;
            variant_t converted;
            std::string reason;
            if (!option.validate(piece, converted, reason)) {
                message = "Value validation problem in argument '";
            } else {
                events.push_back("value of " + option.primaryName() + ": " + piece);
            }
        }
        message = isEmpty && !value.empty() ? "No value parsed in argument '" : message;
    }

    static bool nextPiece(std::istringstream& rest, std::string& piece, char separator) {
        while (std::getline(rest, piece, separator)) {
            if (!piece.empty()) {
                return true;
            }
        }
        return false;
    }

    const std::vector<OptionDescription>& m_options;
};

inline std::vector<std::string> plainArguments(IParseResult& result) {
    std::vector<std::string> all;
    const char* text = nullptr;
    for (int status = result.getFirstArgument(&text); status == valueFound;
         status = result.getNextArgument(&text)) {
        all.emplace_back(text);
    }
    return all;
}

} // namespace tarv_3_3
