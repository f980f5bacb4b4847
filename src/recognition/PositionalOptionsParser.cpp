#include "recognition/PositionalOptionsParser.h"

#include <algorithm>

#include "options/OptionDescription.h"
#include "recognition/ArgumentWindow.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/IParser.h"

namespace tarv_3_3 {

namespace {

auto findPositional(const std::vector<OptionDescription>& options) {
    return std::find_if(options.begin(), options.end(),
                        [](const OptionDescription& option) { return option.m_positional; });
}

} // namespace

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : PositionalOptionsParser(handler, garbage, flags, Listeners::some) {}

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                                 Listeners listeners)
    : IArgumentParser(handler, garbage, flags, listeners) {
    m_name = "PositionalOptionsParser";
}

PositionalOptionsParser::~PositionalOptionsParser() = default;

int PositionalOptionsParser::recognize(std::vector<std::string>& args,
                                       std::vector<OptionDescription>& options, std::string& /*err*/) {
    log(": recognizing argument '", args.at(0), "'");
    if ((m_flags & flagDashIsNotPositional) != 0 && beginsWithHyphen(args[0])) {
        return 1;
    }
    return findPositional(options) != options.end() ? 0 : 1;
}

int PositionalOptionsParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                                   std::vector<OptionDescription>& options, unsigned long& index,
                                   std::string& err) {
    log(": parsing argument '", args.at(0), "'");
    index = static_cast<unsigned long>(findPositional(options) - options.begin());
    const OptionDescription& option = recordToBind(options.at(index));
    // The trace and the event name the first declaration, whichever option takes the argument.
    log(": option is '", options.front().primaryName(), "'");
    if ((m_flags & flagPositionalTakesRest) == 0) {
        return bindFront(args, collector, options, option, err);
    }
    ArgumentWindow window(args);
    int status = parseOk;
    while (status == parseOk && window.fill()) {
        status = bindFront(window.arguments(), collector, options, option, err);
    }
    return status;
}

int PositionalOptionsParser::bindFront(std::vector<std::string>& args, IResultCollector* collector,
                                       const std::vector<OptionDescription>& options,
                                       const OptionDescription& option, std::string& err) {
    std::string value = args[0];
    m_handler->onOptionParse(options.front().primaryName().c_str());
    const int status = parseValueAndAddOption(value, err, option, args, collector);
    if (status == parseOk) {
        log(": removing argument: '", args[0], "'");
        args.erase(args.begin());
    }
    return status;
}

int PositionalOptionsParser::getPriority() {
    return -100;
}

} // namespace tarv_3_3
