#include "typed/CommandLine.h"

#include <functional>

#include "description/terminalText.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

CommandLine::CommandLine(Command& program, int argc, const char* const* argv) : chosen(&program) {
    int count = 0;
    while (count < argc && argv != nullptr && argv[count] != nullptr) {
        ++count;
    }
    if (count > 0) {
        arguments.assign(argv, argv + count);
    }
    occurrences.reserve(arguments.size());
}

void CommandLine::complain(std::string text, std::string advice) {
    if (!hasComplaint) {
        hasComplaint = true;
        complaint = std::move(text);
        suggestion = std::move(advice);
    }
}

std::string dashed(const std::string& name) {
    return (name.size() == 1 ? "-" : "--") + name;
}

std::string argumentName(const Option& option) {
    std::string name = option.valueName.empty() ? option.name() : option.valueName;
    if (option.valueName.empty()) {
        for (char& byte : name) {
            byte = 'a' <= byte && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
        }
    }
    return name;
}

std::string quotedName(const Option& option) {
    return option.isPositional() ? argumentName(option) : "'" + dashed(option.name()) + "'";
}

std::string calledName(const Option& option) {
    const char* const kind = option.isPositional()       ? "argument "
                             : option.role == roleAction ? "action "
                                                         : "option ";
    return kind + quotedName(option);
}

namespace {

// A value in the argument itself is shown with it, one behind it too.
std::string shownArgument(const CommandLine& line, const Occurrence& occurrence) {
    const std::string& argument = line.arguments[static_cast<std::size_t>(occurrence.place)];
    if (occurrence.option->isPositional()) {
        return argumentName(*occurrence.option) + " '" + terminalText(argument) + "'";
    }
    const std::less_equal<const char*> isNotBehind;
    const bool isInside = isNotBehind(argument.data(), occurrence.text) &&
                          isNotBehind(occurrence.text, argument.data() + argument.size());
    const bool hasNext = !isInside && occurrence.option->takesValue();
    const std::string value = *occurrence.text == '\0' ? "''" : terminalText(occurrence.text);
    return terminalText(argument) + (hasNext ? " " + value : "");
}

} // namespace

std::string shownOccurrence(const CommandLine& line, const Occurrence& occurrence) {
    if (occurrence.source == fromFile) {
        return terminalText(occurrence.line->file) + ":" + std::to_string(occurrence.line->number) + ": " +
               terminalText(occurrence.line->text);
    }
    if (occurrence.source == fromEnvironment) {
        return terminalText(occurrence.option->environment + "=" + occurrence.text);
    }
    return shownArgument(line, occurrence);
}

} // namespace tarv_3_3::typed::engine
