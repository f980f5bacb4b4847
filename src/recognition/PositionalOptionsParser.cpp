#include "recognition/PositionalOptionsParser.h"

#include "options/OptionDescription.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/IParser.h"

namespace tarv_3_3 {

namespace {

constexpr const char* parserName = "PositionalOptionsParser";

} // namespace

std::size_t positionalIndex(const std::vector<OptionDescription>& options, std::size_t from) {
    while (from < options.size() && !options[from].m_positional) {
        ++from;
    }
    return from;
}

bool isPositionalForm(std::string_view argument, unsigned int flags) {
    return (flags & flagDashIsNotPositional) == 0 || !beginsWithHyphen(argument);
}

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = parserName;
}

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                                 internal::Binding& binding)
    : IArgumentParser(handler, garbage, flags, parserName, binding) {}

PositionalOptionsParser::~PositionalOptionsParser() = default;

int PositionalOptionsParser::recognize(std::vector<std::string>& args,
                                       std::vector<OptionDescription>& options, std::string& /*message*/) {
    return takes(args.at(0), options) ? 0 : 1;
}

bool PositionalOptionsParser::takes(const std::string& argument,
                                    const std::vector<OptionDescription>& options) {
    log(": recognizing argument '", argument, "'");
    return isPositionalForm(argument, m_flags) && findPositional(options) != options.size();
}

int PositionalOptionsParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                                   std::vector<OptionDescription>& options, unsigned long& index,
                                   std::string& message) {
    static_cast<void>(args.at(0));
    index = findPositional(options);
    internal::ConsumedArguments consumed(args);
    return bind(consumed.left(), collector, options, message, consumed.count);
}

int PositionalOptionsParser::bind(internal::ArgumentSpan left, IResultCollector* collector,
                                  const std::vector<OptionDescription>& options, std::string& message,
                                  std::size_t& consumed) {
    log(": parsing argument '", left.front(), "'");
    const OptionDescription& option = recordToBind(options, findPositional(options));
    // The trace and the event name the first declaration, whichever option takes the argument.
    log(": option is '", options.front().primaryName(), "'");
    const bool takesRest = (m_flags & flagPositionalTakesRest) != 0;
    const std::string* const end = takesRest ? left.end : left.first + 1;
    for (const std::string* argument = left.first; argument != end; ++argument) {
        m_handler->onOptionParse(options.front().primaryName().c_str());
        const int status = bindValue(*argument, option, *argument, collector, message);
        if (status != parseOk) {
            return status;
        }
        log(": removing argument: '", *argument, "'");
        ++consumed;
    }
    return parseOk;
}

// Only the last record can still become positional, so the records before it are searched once.
std::size_t PositionalOptionsParser::findPositional(const std::vector<OptionDescription>& options) {
    const std::size_t index = positionalIndex(options, m_index);
    m_index = index < options.size() || index == 0 ? index : index - 1;
    return index;
}

int PositionalOptionsParser::getPriority() {
    return -100;
}

} // namespace tarv_3_3
