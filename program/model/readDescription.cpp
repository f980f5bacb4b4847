#include "model/readDescription.h"

#include "model/JsonPlace.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

/// Verbs within verbs. Nobody types that many, and every level costs memory of the stack.
constexpr unsigned deepestVerb = 20;

template <class Element, class Read>
std::vector<Element> readList(const JsonPlace& owner, const char* name, Read read) {
    std::vector<Element> all;
    if (owner.has(name)) {
        owner.member(name).forEach([&](const JsonPlace& element) { all.push_back(read(element)); });
    }
    return all;
}

std::vector<std::string> readTexts(const JsonPlace& owner, const char* name) {
    return owner.has(name) ? owner.member(name).texts() : std::vector<std::string>();
}

std::string readText(const JsonPlace& owner, const char* name) {
    return owner.has(name) ? owner.member(name).text() : "";
}

das_variant_type_t readKind(const JsonPlace& place) {
    static const das_variant_type_t kinds[] = {vtBool,   vtInt32,  vtUInt32, vtInt64,
                                               vtUInt64, vtDouble, vtString, vtNull};
    return kinds[place.oneOf({"switch", "int32", "uint32", "int64", "uint64", "double", "string", "none"})];
}

char readSeparator(const JsonPlace& place) {
    const std::string text = place.text();
    if (text.size() != 1 || text.front() == '\0') {
        place.refuse("must be one byte");
    }
    return text.front();
}

Count readCount(const JsonPlace& place) {
    Count count;
    count.least = place.has("least") ? place.member("least").number() : 0;
    if (place.has("most")) {
        count.most = place.member("most").number();
    }
    return count;
}

std::string readCheck(const JsonPlace& place) {
    const std::string by = readText(place, "by");
    const std::string text = readText(place, "text");
    return by.empty() || text.empty() ? by + text : by + ": " + text;
}

std::vector<Note> readNotes(const JsonPlace& option) {
    std::vector<Note> notes;
    if (option.has("notes")) {
        option.member("notes").forEachMember(
            [&](const std::string& key, const JsonPlace& value) { notes.emplace_back(key, value.text()); });
    }
    return notes;
}

Positional readPositional(const JsonPlace& option) {
    if (!option.has("positional")) {
        return Positional::no;
    }
    return option.member("positional").oneOf({"filled", "unused"}) == 0 ? Positional::filled
                                                                        : Positional::unused;
}

Option readOption(const JsonPlace& place) {
    Option option;
    option.isAction = place.member("role").oneOf({"action", "option"}) == 0;
    option.kind = readKind(place.member("kind"));
    option.names = readTexts(place, "names");
    option.text = readText(place, "text");
    option.topic = readText(place, "topic");
    option.tags = readTexts(place, "tags");
    option.allowed = readTexts(place, "allowed");
    option.separator = place.has("separator") ? readSeparator(place.member("separator")) : '\0';
    if (place.has("default")) {
        option.defaultText = place.member("default").text();
    }
    option.positional = readPositional(place);
    if (place.has("count")) {
        option.count = readCount(place.member("count"));
    }
    option.isHidden = place.has("hidden") && place.member("hidden").isTrue();
    option.notes = readNotes(place);
    option.checks = readList<std::string>(place, "checks", readCheck);
    return option;
}

Rule readRule(const JsonPlace& place) {
    const std::size_t kind = place.member("kind").oneOf(
        {"required", "atMostOne", "atLeastOne", "exactlyOne", "allOrNone", "needs"});
    return {static_cast<int>(kind), place.member("names").texts()};
}

int readFlags(const JsonPlace& place) {
    static const int known[] = {flagRejectUnknown, flagPlainArePositional, flagDashIsNotPositional,
                                flagPositionalTakesRest, flagNoLists};
    int flags = 0;
    place.forEach([&](const JsonPlace& flag) {
        flags |= known[flag.oneOf({"rejectUnknown", "plainArePositional", "dashIsNotPositional",
                                   "positionalTakesRest", "noLists"})];
    });
    return flags;
}

CommandLine readCommandLine(const JsonPlace& place, unsigned depth) {
    if (depth > deepestVerb) {
        place.refuse("too many verbs within verbs");
    }
    CommandLine line;
    line.names = readTexts(place, "names");
    line.text = readText(place, "text");
    line.flags = readFlags(place.member("flags"));
    line.readsOptionFiles = place.has("optionFiles") && place.member("optionFiles").isTrue();
    line.mends = readTexts(place, "mends");
    line.settings = readList<Settings>(place, "settings", [](const JsonPlace& from) {
        return Settings{readText(from, "file"), readText(from, "option")};
    });
    line.topics = readList<Topic>(place, "topics", [](const JsonPlace& topic) {
        return Topic{topic.member("name").text(), readText(topic, "title")};
    });
    line.options = readList<Option>(place, "declarations", readOption);
    line.rules = readList<Rule>(place, "rules", readRule);
    line.checks = readList<std::string>(place, "checks", readCheck);
    line.verbs = readList<CommandLine>(
        place, "verbs", [depth](const JsonPlace& verb) { return readCommandLine(verb, depth + 1); });
    if (place.has("verbRequired")) {
        line.isVerbRequired = place.member("verbRequired").boolean();
    }
    for (std::size_t i = 0; i < line.verbs.size(); ++i) {
        if (line.verbs[i].names.empty()) {
            place.refuse("verbs[" + std::to_string(i) + "] has no names");
        }
    }
    return line;
}

unsigned readMinorVersion(const JsonPlace& place) {
    const std::string text = place.text();
    const bool isNumber =
        text.size() > 2 && text.find_first_not_of("0123456789", 2) == std::string::npos && text.size() < 8;
    if (text.substr(0, 2) != "1." || !isNumber) {
        place.refuse("'" + text + "' is not a version that is known; 1.0 is");
    }
    return static_cast<unsigned>(std::stoul(text.substr(2)));
}

CommandLine readAll(const JsonPlace& root) {
    if (root.member("format").text() != "tarv-description") {
        root.member("format").refuse("must be tarv-description");
    }
    const unsigned minorVersion = readMinorVersion(root.member("version"));
    CommandLine line = readCommandLine(root, 0);
    line.minorVersion = minorVersion;
    if (root.has("program")) {
        const JsonPlace program = root.member("program");
        line.names = {readText(program, "name")};
        line.version = readText(program, "version");
        line.text = readText(program, "text");
    }
    return line;
}

std::string lineAndColumn(const std::string& text, std::size_t byte) {
    std::size_t line = 1;
    std::size_t column = 1;
    for (std::size_t i = 0; i + 1 < byte && i < text.size(); ++i) {
        column = text[i] == '\n' ? 1 : column + 1;
        line += text[i] == '\n' ? 1 : 0;
    }
    return std::to_string(line) + ":" + std::to_string(column);
}

} // namespace

bool looksLikeDescription(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string::npos && text[first] == '{';
}

CommandLine readDescription(const std::string& json, const std::string& source) {
    nlohmann::json root;
    try {
        root = nlohmann::json::parse(json);
    } catch (const nlohmann::json::parse_error& error) {
        throw Failure(source + ":" + lineAndColumn(json, error.byte) + ": this is not JSON");
    } catch (const nlohmann::json::out_of_range&) {
        throw Failure(source + ": a number is too large");
    }
    try {
        return readAll(JsonPlace(root, ""));
    } catch (const Failure& failure) {
        throw Failure(source + ": " + failure.what());
    }
}

} // namespace tarv_program
