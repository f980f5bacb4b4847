// Tries a command line on declarations of one's own:
//
//     tryout --int=level,l --switch=verbose,v --file=file --reject-unknown -- -l 3 --no-verb a.txt
//
// declares what stands before "--", parses what stands behind it, and prints what that came to.
#include <tarv_3_3/tarv.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace tarv = tarv_3_3;

namespace {

struct Destroy {
    template <class Object>
    void operator()(Object* object) const {
        object->destroy();
    }
};
using ParserOwner = std::unique_ptr<tarv::IParser, Destroy>;
using ResultOwner = std::unique_ptr<tarv::IParseResult, Destroy>;

ParserOwner makeParser(int flagWord) {
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser, flagWord);
    return ParserOwner(parser);
}

ResultOwner makeResult(tarv::IParser& parser) {
    tarv::IParseResult* result = nullptr;
    parser.createResult(&result);
    return ResultOwner(result);
}

const struct {
    const char* name;
    tarv::das_variant_type_t type;
} kinds[] = {{"switch", tarv::vtBool},   {"int", tarv::vtInt32},     {"unsigned", tarv::vtUInt32},
             {"int64", tarv::vtInt64},   {"hex", tarv::vtUInt64},    {"double", tarv::vtDouble},
             {"string", tarv::vtString}, {"valueless", tarv::vtNull}};

const struct {
    const char* name;
    int flag;
} flags[] = {{"reject-unknown", tarv::flagRejectUnknown},
             {"plain-are-positional", tarv::flagPlainArePositional},
             {"dash-is-not-positional", tarv::flagDashIsNotPositional},
             {"positional-takes-rest", tarv::flagPositionalTakesRest},
             {"whole-values", tarv::flagNoLists}};

void declareOwnOptions(tarv::IParser& parser) {
    for (const auto& kind : kinds) {
        parser.option(kind.name, "Declare an option of this kind with these names.", tarv::vtString);
    }
    parser.option("file", "Declare a positional string option.", tarv::vtString);
    parser.option("number", "Declare a positional integer option.", tarv::vtString);
    parser.option("action", "Declare an action without a value.", tarv::vtString);
    parser.option("preset", "Declare a string option, name=default.", tarv::vtString);
    parser.option("option-files", "Declare the option 'option-file'.", tarv::vtNull);
    for (const auto& flag : flags) {
        parser.option(flag.name, "Create the parser with this flag.", tarv::vtNull);
    }
}

std::vector<std::string> valuesOf(tarv::IParseResult& result, const char* name) {
    std::vector<std::string> values;
    for (tarv::Value value = result.get(name); value.status == tarv::valueFound; value = result.next(name)) {
        values.emplace_back(value.text);
    }
    return values;
}

int flagsOf(tarv::IParseResult& own) {
    int word = 0;
    for (const auto& flag : flags) {
        word |= own.present(flag.name) ? flag.flag : 0;
    }
    return word;
}

/// Declares what `own` asks for and returns the first names.
std::vector<std::string> declareWanted(tarv::IParseResult& own, tarv::IParser& parser) {
    std::vector<std::string> names;
    const auto remember = [&names](const std::string& all) { names.push_back(all.substr(0, all.find(','))); };
    for (const auto& kind : kinds) {
        for (const std::string& wanted : valuesOf(own, kind.name)) {
            parser.option(wanted.c_str(), "", kind.type);
            remember(wanted);
        }
    }
    for (const std::string& wanted : valuesOf(own, "preset")) {
        const std::string::size_type equals = wanted.find('=');
        const std::string name = wanted.substr(0, equals);
        parser.option(name.c_str(), "", tarv::vtString).defaultValue(wanted.substr(equals + 1).c_str());
        remember(name);
    }
    for (const std::string& wanted : valuesOf(own, "action")) {
        parser.action(wanted.c_str(), "", tarv::vtNull);
        remember(wanted);
    }
    for (const std::string& wanted : valuesOf(own, "file")) {
        parser.option(wanted.c_str(), "", tarv::vtString).positional();
        remember(wanted);
    }
    for (const std::string& wanted : valuesOf(own, "number")) {
        parser.option(wanted.c_str(), "", tarv::vtInt32).positional();
        remember(wanted);
    }
    if (own.present("option-files")) {
        parser.addOptionFileOption("");
    }
    return names;
}

/// The command line to try: a program name, and what stands behind "--".
std::vector<const char*> argumentsOf(tarv::IParseResult& own) {
    std::vector<const char*> arguments = {"tryout"};
    const char* argument = nullptr;
    for (int found = own.getFirstArgument(&argument); found == tarv::valueFound;
         found = own.getNextArgument(&argument)) {
        arguments.push_back(argument);
    }
    return arguments;
}

/// The text as it was typed, and what it stands for where that may surprise.
void print(const tarv::Value& value) {
    std::printf(" [%s", value.text != nullptr ? value.text : "");
    if (value.value.can_get<std::uint32_t>()) {
        std::printf(" is %lu", static_cast<unsigned long>(value.value.get<std::uint32_t>()));
    } else if (value.value.can_get<std::uint64_t>()) {
        std::printf(" is %lu", static_cast<unsigned long>(value.value.get<std::uint64_t>()));
    }
    std::printf("]");
}

void printFound(tarv::IParseResult& result, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        tarv::Value value = result.get(name.c_str());
        if (value.status != tarv::valueFound) {
            continue;
        }
        std::printf("%s:", name.c_str());
        for (; value.status == tarv::valueFound; value = result.next(name.c_str())) {
            print(value);
        }
        std::printf("\n");
    }
    const char* plain = nullptr;
    for (int found = result.getFirstArgument(&plain); found == tarv::valueFound;
         found = result.getNextArgument(&plain)) {
        std::printf("plain argument: [%s]\n", plain);
    }
}

int tryOut(tarv::IParseResult& own) {
    const ParserOwner parser = makeParser(flagsOf(own));
    if (!parser) {
        return 1;
    }
    const std::vector<std::string> names = declareWanted(own, *parser);
    const std::vector<const char*> arguments = argumentsOf(own);
    const ResultOwner result = makeResult(*parser);
    const int argc = static_cast<int>(arguments.size());
    const int status = parser->parseArgsVector(argc, arguments.data(), result.get());
    if (status != tarv::parseOk) {
        std::printf("status %d: %s\n", status, parser->getErrorDesc());
        return status;
    }
    printFound(*result, names);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    const ParserOwner parser = makeParser(tarv::flagRejectUnknown | tarv::flagNoLists);
    if (!parser) {
        return 1;
    }
    declareOwnOptions(*parser);
    const ResultOwner own = makeResult(*parser);
    const int status = parser->parseArgsVector(argc, argv, own.get());
    if (status != tarv::parseOk) {
        std::fprintf(stderr, "tryout: %s\n", parser->getErrorDesc());
        return status;
    }
    return tryOut(*own);
}
