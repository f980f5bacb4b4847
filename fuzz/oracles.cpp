#include "oracles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <locale>
#include <sstream>

using namespace tarv_3_3;

void require(bool holds, const char* what, const std::string& shown) {
    if (!holds) {
        std::fprintf(stderr, "BROKEN: %s\n%s\n", what, shown.c_str());
        std::abort();
    }
}

namespace {

bool beginsWithOneOf(const std::string& text, std::initializer_list<const char*> beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(), [&](const std::string& beginning) {
        return text.compare(0, beginning.size(), beginning) == 0;
    });
}

bool agree(int status, const std::string& error) {
    switch (status) {
    case parseVetoed:
        return beginsWithOneOf(error, {"Value '"});
    case parseFailed:
        return beginsWithOneOf(error,
                               {"Value validation problem in argument '", "No value parsed in argument '",
                                "Unknown option '", "Unknown option: ", "Ambiguous option '", "Option '",
                                "Action '-", "No action defined."});
    case parseFileUnreadable:
        return beginsWithOneOf(error, {"Error reading option file '"});
    default:
        // No other failure has a cause in what a fuzzer can write.
        return false;
    }
}

template <class T>
variant_t extractWhole(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    T value;
    if (!(stream >> value)) {
        return variant_t();
    }
    char behind;
    return stream >> behind ? variant_t() : variant_t(value);
}

bool isHexadecimal(const std::string& text) {
    const auto areDigits = [](const std::string& digits) {
        return digits.find_first_not_of("1234567890ABCDEFabcdef") == std::string::npos;
    };
    const bool prefixed = text.compare(0, 2, "0x") == 0 || text.compare(0, 2, "0X") == 0;
    const bool suffixed = !text.empty() && (text.back() == 'h' || text.back() == 'H');
    return (prefixed && areDigits(text.substr(2))) ||
           (suffixed && areDigits(text.substr(0, text.size() - 1)));
}

variant_t extractUInt64(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    if (isHexadecimal(text)) {
        stream >> std::hex;
    }
    std::uint64_t value;
    return stream >> value ? variant_t(value) : variant_t();
}

} // namespace

variant_t extracted(const std::string& text, das_variant_type_t kind) {
    switch (kind) {
    case vtBool:
        return extractWhole<bool>(text);
    case vtInt32:
        return extractWhole<std::int32_t>(text);
    case vtUInt32:
        return extractWhole<std::uint32_t>(text);
    case vtInt64:
        return extractWhole<std::int64_t>(text);
    case vtUInt64:
        return extractUInt64(text);
    case vtDouble:
        return extractWhole<double>(text);
    case vtString:
        return variant_t(text.c_str());
    default:
        return variant_t();
    }
}

bool isWhatTheTextSays(const char* text, const variant_t& value) {
    return text != nullptr ? extracted(text, value.type()) == value : value.type() == vtNull;
}

bool isDoubleWrittenAs(const char* text, const variant_t& value) {
    if (text == nullptr || !value.can_get<double>()) {
        return false;
    }
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << value.get<double>();
    return stream.str() == text;
}

namespace {

/// Takes what is written and drops it.
struct Silence : std::streambuf {
    int overflow(int character) override { return character; }
};

} // namespace

void silenceTrace() {
    // Standard output is flushed behind the end of every static object.
    static auto* const silence = new Silence;
    std::cout.rdbuf(silence);
}

Parse::Parse(int flags) {
    silenceTrace();
    require(createParser(&parser, flags) == parseOk, "createParser");
    parser->createResult(&result);
}

Parse::~Parse() {
    result->destroy();
    parser->destroy();
}

void Parse::renew() {
    result->destroy();
    parser->createResult(&result);
}

std::string Parse::error() const {
    return parser->getErrorDesc();
}

int Parse::checked(int status, const std::string& errorBefore) const {
    const std::string errorNow = error();
    const bool isNameless =
        hasNamelessOption && status == parseUnidentified && errorNow == "Unidentified problem detected.";
    require(isNameless || (status == parseOk ? errorNow == errorBefore : agree(status, errorNow)),
            "status and message disagree", std::to_string(status) + ": " + errorNow);
    return status;
}

int Parse::arguments(const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"fuzz"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    const std::string before = error();
    return checked(parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result), before);
}

int Parse::stream(const std::string& text) {
    const std::string before = error();
    return checked(parser->parseStream(text.c_str(), result), before);
}

std::string Parse::dump(const std::vector<std::string>& names) const {
    int first = noPosition;
    for (const std::string& name : names) {
        first = std::min(first, result->get(name.c_str()).position);
    }
    std::string text;
    for (const std::string& name : names) {
        const char* const key = name.c_str();
        text += name + (result->present(key) ? ":" : "-");
        Value last;
        for (Value value = result->get(key); value.status == valueFound; value = result->next(key)) {
            const bool isRounded = hasDefaultDouble && isDoubleWrittenAs(value.text, value.value);
            require(isRounded || isWhatTheTextSays(value.text, value.value),
                    "a value is not what its text says", value.text != nullptr ? value.text : "(null)");
            text += std::to_string(value.position - first) + "=" + (value.text != nullptr ? value.text : "") +
                    ";";
            last = value;
        }
        const Value asked = getLastValue(result, key);
        require(asked.status == last.status && asked.position == last.position && asked.value == last.value,
                "getLastValue is not the last of the iteration", name);
        result->get(key);
        for (int position = result->nextPosition(); position != noPosition;
             position = result->nextPosition()) {
            text += "@" + std::to_string(position - first);
        }
        text += "\n";
    }
    const char* plain = nullptr;
    for (int status = result->getFirstArgument(&plain); status == valueFound;
         status = result->getNextArgument(&plain)) {
        text += std::string("--") + plain + "\n";
    }
    return text;
}

void requireSameTwice(Parse& parse, const std::vector<std::string>& arguments,
                      const std::vector<std::string>& names) {
    parse.renew();
    const int firstStatus = parse.arguments(arguments);
    const std::string firstDump = parse.dump(names);
    const std::string firstError = firstStatus != parseOk ? parse.error() : "";
    parse.renew();
    const int secondStatus = parse.arguments(arguments);
    const std::string secondError = secondStatus != parseOk ? parse.error() : "";
    require(firstStatus == secondStatus && firstError == secondError,
            "two parses differ in status or message", firstError + "\n" + secondError);
    const std::string secondDump = parse.dump(names);
    require(firstDump == secondDump, "two parses differ in what they store", firstDump + "\n" + secondDump);
}
