#include "typed/levelParser.h"

namespace tarv_3_3::typed::engine {

namespace {

// The others are for positional arguments, which these parsers have none of.
constexpr int levelFlags = flagRejectUnknown | flagNoLists;

constexpr char hiddenTopic[] = "tarv_hidden";

das_variant_type_t signedKind(const Shape& shape) {
    return shape.most <= 0x7fffffff ? vtInt32 : vtInt64;
}

das_variant_type_t unsignedKind(const Shape& shape) {
    return shape.most <= 0xffffffff ? vtUInt32 : vtUInt64;
}

// Synonyms are not counted and not checked, as the names of a declaration are.
IOption& declare(IParser& parser, const std::vector<std::string>& names, das_variant_type_t kind,
                 const char* topic) {
    IOption& option = parser.option(names.front().c_str(), "", kind, topic);
    for (std::size_t i = 1; i < names.size(); ++i) {
        option.synonym(names[i].c_str());
    }
    return option;
}

// False when the names are taken, which is a mistake of the programmer.
bool declareNames(IParser& parser, const Option& option) {
    const char* const topic = option.isHidden ? hiddenTopic : "";
    return declare(parser, option.names, parserKind(option), topic).m_status == declarationStored;
}

} // namespace

das_variant_type_t parserKind(const Option& option) {
    if (option.role == roleAction || option.isCounter()) {
        return vtNull;
    }
    if (option.isSwitch()) {
        return vtBool;
    }
    switch (option.shape().kind) {
    case kindSigned:
        return signedKind(option.shape());
    case kindUnsigned:
        return unsignedKind(option.shape());
    case kindReal:
        return vtDouble;
    default:
        return vtString;
    }
}

LevelParser makeLevelParser(const Command& command) {
    LevelParser level;
    level.parser = std::make_unique<BasicParser>(levelFlags);
    forEachOptionAbove(command, [&](Option& option) {
        if (!option.isPositional() && declareNames(*level.parser, option)) {
            level.options.push_back(&option);
        }
    });
    return level;
}

void declareLastResort(IParser& parser, const Command& command) {
    if (command.findOption("help") == nullptr) {
        parser.option("help", "Show this help.", vtNull, "");
    }
    if (command.program().hasVersion && command.findOption("version") == nullptr) {
        parser.option("version", "Show the version.", vtNull, "");
    }
}

std::unique_ptr<BasicParser> makeVerbParser(const Command& command) {
    auto parser = std::make_unique<BasicParser>(levelFlags);
    for (const std::unique_ptr<Command>& verb : command.verbs) {
        declare(*parser, verb->names, vtNull, "");
    }
    return parser;
}

} // namespace tarv_3_3::typed::engine
