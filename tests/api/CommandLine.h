#pragma once

#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

/// A parser and a result, made and released as a host does it, and what the result says as text.
class CommandLine {
public:
    explicit CommandLine(int flags = 0) {
        tarv_3_3::createParser(&parser, flags);
        parser->createResult(&result);
    }

    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    ~CommandLine() {
        result->destroy();
        if (parser != nullptr) {
            parser->destroy();
        }
    }

    /// Parses the arguments; the program's name goes in front.
    int parse(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "program");
        return parser->parseArgsVector(static_cast<int>(arguments.size()), arguments.data(), result);
    }

    int parseStream(const char* text) { return parser->parseStream(text, result); }

    std::string error() const { return parser->getErrorDesc(); }

    /// Everything that `get` and `next` yield, each in square brackets; `[]` also for an occurrence
    /// without a value.
    std::string values(const char* name, int lo = 0, int hi = 2147483647) const {
        std::string line;
        for (tarv_3_3::Value value = result->get(name, lo, hi); value.status == 0;
             value = result->next(name)) {
            line += "[" + std::string(value.text != nullptr ? value.text : "") + "]";
        }
        return line;
    }

    /// The plain arguments, each in square brackets.
    std::string plainArguments() const {
        std::string line;
        const char* text = nullptr;
        for (int status = result->getFirstArgument(&text); status == 0;
             status = result->getNextArgument(&text)) {
            line += "[" + std::string(text) + "]";
        }
        return line;
    }

    tarv_3_3::IParser* parser = nullptr;
    tarv_3_3::IParseResult* result = nullptr;
};

/// Notes every event, and refuses values and unknown arguments of the given texts.
class EventLog : public tarv_3_3::EventHandler {
public:
    explicit EventLog(std::string refusedText = "nothing is refused") : m_refused(std::move(refusedText)) {}

    bool onOptionParse(const char* name) override {
        note(std::string("option ") + name);
        return false;
    }

    bool onValueParse(const char* name, const tarv_3_3::Value& value) override {
        note(std::string("value ") + name + "=" + value.text);
        return value.text != m_refused;
    }

    bool onUknownArgument(const char* argument) override {
        note(std::string("unknown ") + argument);
        return argument != m_refused;
    }

    std::string events;

private:
    void note(const std::string& event) { events += (events.empty() ? "" : "; ") + event; }

    std::string m_refused;
};
