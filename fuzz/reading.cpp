#include <algorithm>

#include "Input.h"
#include "oracles.h"
#include "parser/BasicParser.h"
#include "reading/Reader.h"
#include "recognition/IArgumentParser.h"
#include "support/ExpectedParse.h"
#include "support/RandomCommandLine.h"
#include "tarv_3_3/internal/log.h"

using namespace tarv_3_3;

namespace {

/// Declares what a line decides, byte by byte. Behind its end there are only ones, with which every name
/// ends.
void declare(BasicParser& parser, const std::string& line) {
    std::size_t next = 0;
    RandomCommandLine random(
        [&] { return next < line.size() ? static_cast<unsigned char>(line[next++]) : 1U; });
    const bool withActions = random.once(2);
    random.declare(parser, withActions);
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::vector<ReadArgument> readUnnoticed(BasicParser& parser, const std::vector<std::string>& arguments,
                                        const Events& events) {
    const int position = IArgumentParser::m_idx;
    std::vector<ReadArgument> readings = readArguments(parser, arguments);
    require(events.all.empty(), "an event of a reading", joined(events.all));
    require(IArgumentParser::m_idx == position, "a position of a reading");
    require(!internal::tarvLogEnabled, "a reading switched the trace on");
    return readings;
}

/// An option declared with no name at all cannot be stored.
bool isForANamelessOption(const BasicParser& parser, const std::string& message) {
    const std::vector<OptionDescription>& options = parser.registry().m_options;
    return message == "Unidentified problem detected." &&
           std::any_of(options.begin(), options.end(), [](const OptionDescription& option) {
               return option.m_names.begin() == option.m_names.end();
           });
}

/// The message of the parse; empty when it succeeds.
std::string parse(BasicParser& parser, const std::vector<std::string>& arguments, IParseResult* result) {
    std::vector<const char*> argv(1, "program");
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    const int status = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
    internal::tarvLogEnabled = false;
    return status == parseOk ? "" : parser.getErrorDesc();
}

} // namespace

/// A byte for the flags and a line for the declarations, then arguments, one a line: what the arguments are
/// read as is what the parse takes them for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    silenceTrace();
    Input input(bytes, size);
    BasicParser parser((input.byte() & 0xF) << 1);
    declare(parser, input.until('\n'));
    const std::vector<std::string> arguments = input.arguments();
    Events events;
    parser.addHandler(&events);
    const std::vector<ReadArgument> readings = readUnnoticed(parser, arguments, events);
    const ExpectedParse expected(parser, arguments, readings);

    IParseResult* result = nullptr;
    parser.createResult(&result);
    const std::string message = parse(parser, arguments, result);
    const std::vector<std::string> plain = plainArguments(*result);
    result->destroy();
    if (isForANamelessOption(parser, message)) {
        return 0;
    }
    require(events.all == expected.events, "other events",
            joined(events.all) + "\n" + joined(expected.events));
    require(expected.agreesOnMessage(message), "another outcome", message + "\n" + expected.message);
    require(!expected.message.empty() || plain == expected.plain, "other plain arguments", joined(plain));
    return 0;
}
