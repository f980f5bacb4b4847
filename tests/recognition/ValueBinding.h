#pragma once

#include <string>
#include <vector>

#include "recognition/IArgumentParser.h"
#include "recognition/Recognition.h"

/// A recognizer of nothing, through which values are bound directly. It has no name of its own.
class ValueBinder : public tarv_3_3::IArgumentParser {
public:
    using IArgumentParser::IArgumentParser;

    int recognize(std::vector<std::string>&, std::vector<tarv_3_3::OptionDescription>&,
                  std::string&) override {
        return 1;
    }

    int parse(std::vector<std::string>&, tarv_3_3::IResultCollector*,
              std::vector<tarv_3_3::OptionDescription>&, unsigned long&, std::string&) override {
        return 2;
    }

    int getPriority() override { return 0; }

    using IArgumentParser::parseValueAndAddOption;
};

/// Binds values to the first declaration.
class ValueBinding : public Recognition<ValueBinder> {
public:
    /// The outcome as one line: the status, everything stored so far, the message.
    std::string bind(const std::string& text, const std::string& argument) {
        return bind(text, argument, &collector);
    }

    std::string bind(const std::string& text, const std::string& argument,
                     tarv_3_3::IResultCollector* resultCollector) {
        value = text;
        args = {argument, "next"};
        message.clear();
        const int status = recognizer.parseValueAndAddOption(value, message, registry.m_options.front(), args,
                                                             resultCollector);
        const bool argumentsKept = args == std::vector<std::string>{argument, "next"};
        return std::to_string(status) + ": " + collector.stored + message +
               (argumentsKept ? "" : " (arguments changed)");
    }

    std::string value;
};
