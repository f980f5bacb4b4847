#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>

#include "reliability/Model.h"
#include "reliability/Session.h"
#include "support/roundsOf.h"

namespace {

using namespace tarv_3_3;

/// Notes events as the model does, positions counted from `first`.
struct NotingHandler : EventHandler {
    bool onOptionParse(const char* name) override {
        events.push_back(std::string("option ") + name);
        return true;
    }

    bool onValueParse(const char* name, const Value& value) override {
        events.push_back(std::string("value ") + name + "=" + value.text + "@" +
                         std::to_string(value.position - first));
        return std::string(value.text) != "vv";
    }

    bool onUknownArgument(const char* argument) override {
        events.push_back(std::string("unknown ") + argument);
        return std::string(argument).find("known") == std::string::npos;
    }

    int first = 0;
    std::vector<std::string> events;
};

/// The position that everything stored from now on comes behind.
int currentPosition() {
    Session session;
    open(session);
    session.parser->option("x", "", vtNull);
    parse(session, {"-x"});
    return session.result->get("x").position;
}

class Random {
public:
    explicit Random(unsigned int seed) : m_engine(seed) {}

    int below(int end) { return static_cast<int>(m_engine() % static_cast<unsigned int>(end)); }

    bool oneIn(int count) { return below(count) == 0; }

    template <class T>
    const T& of(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    std::mt19937 m_engine;
};

const std::vector<std::string> words = {"output", "out",    "o",   "file", "f",       "form",
                                        "format", "no",     "ver", "v",    "verbose", "version",
                                        "color",  "colour", "",    "x"};
const std::vector<std::string> tags = {"build", "test", "free"};
const std::vector<das_variant_type_t> kinds = {vtBool,   vtBool,   vtInt32,  vtUInt32, vtInt64,
                                               vtUInt64, vtDouble, vtString, vtString, vtNull};
const std::vector<std::string> values = {
    "1",     "2",      "3",       "-1",   "0",   "12",   "alpha", "al",
    "alp",   "b",      "beta",    "1,2",  ",,",  "a,,b", ",1",    "1:2",
    "vv",    "1,vv,3", "-x",      "0x1F", "1Fh", "0xg",  "1.5",   " 4 ",
    "4x",    "1e3",    "\u2013x", "a=b",  "a b", "",     ":",     "99999999999999999999",
    "known", "3,2,x"};
const std::vector<std::string> dashes = {"-",   "-",      "--",      "--",     "--",
                                         "---", "\u2013", "-\u2014", "\u2053", ""};

std::string randomName(Random& random) {
    std::string name = random.of(words);
    while (random.oneIn(3)) {
        name += "-" + random.of(words);
    }
    return name;
}

void randomValues(Random& random, model::Option& option) {
    const bool areNumbers = option.kind == vtInt32 || option.kind == vtDouble;
    const std::vector<std::string> choices =
        areNumbers ? std::vector<std::string>{"1", "2", "12"}
                   : std::vector<std::string>{"alpha", "alps", "al", "beta", "1"};
    if (!areNumbers && option.kind != vtString) {
        // The default of an option that takes no value counts for nothing.
        const bool mayHaveOne = option.kind == vtBool || option.kind == vtNull;
        option.defaultText = mayHaveOne && random.oneIn(4) ? "1" : "";
        return;
    }
    if (random.oneIn(3)) {
        for (const std::string& choice : choices) {
            if (random.oneIn(2)) {
                option.allowed.push_back(choice);
            }
        }
    }
    if (random.oneIn(4)) {
        option.defaultText = random.of(choices);
    }
}

variant_t valueOf(const std::string& text, das_variant_type_t kind) {
    switch (kind) {
    case vtBool:
        return variant_t(text == "1");
    case vtInt32:
        return variant_t(std::atoi(text.c_str()));
    case vtDouble:
        return variant_t(std::atof(text.c_str()));
    default:
        return variant_t(text.c_str());
    }
}

/// A random declaration, made in the parser and, unless it is to be refused, in the table.
void declare(Random& random, IParser& parser, int flags, std::vector<model::Option>& table) {
    model::Option option;
    option.kind = random.of(kinds);
    option.isAction = random.oneIn(8);
    for (int i = random.below(3); i >= 0; --i) {
        // A list that ends in an empty name would not be cut where it was joined.
        std::string name = randomName(random);
        option.names.push_back(name.empty() ? "y" : name);
    }
    if (option.names.size() == 3) {
        option.names[2] = option.names[2].substr(0, 2);
    }
    std::string joined = option.names[0];
    for (std::size_t i = 1; i < option.names.size(); ++i) {
        joined += "," + option.names[i];
    }
    std::string joinedTags;
    if (option.isAction) {
        option.tags = {option.names.begin(), option.names.end()};
    } else if (random.oneIn(4)) {
        joinedTags = table.empty() || random.oneIn(3) ? random.of(tags) : random.of(table).names[0];
        option.tags = {joinedTags};
    }
    IOption& declared = option.isAction ? parser.action(joined.c_str(), "", option.kind)
                        : joinedTags.empty()
                            ? parser.option(joined.c_str(), "", option.kind)
                            : parser.modifier(joined.c_str(), joinedTags.c_str(), "", option.kind);
    const bool isFree = model::mayDeclare(table, option.names);
    ASSERT_EQ(declared.m_status, isFree ? declarationStored : declarationRefused) << joined;
    if (!isFree) {
        return;
    }
    option.separator = (flags & flagNoLists) != 0 ? '\0' : ',';
    if (random.oneIn(6)) {
        option.names.push_back(randomName(random));
        declared.synonym(option.names.back().c_str());
    }
    randomValues(random, option);
    for (const std::string& text : option.allowed) {
        declared.allowValue(valueOf(text, option.kind));
        option.separator = option.separator == '\0' ? ',' : option.separator;
    }
    if (random.oneIn(4)) {
        option.separator = random.oneIn(2) ? ':' : '\0';
        declared.tokenize(option.separator);
    }
    if (!option.defaultText.empty()) {
        declared.defaultValue(valueOf(option.defaultText, option.kind));
    }
    if (random.oneIn(6)) {
        option.positional = true;
        declared.positional();
    }
    table.push_back(option);
}

/// A declared name with its words cut, or with something done to it.
std::string randomArgument(Random& random, const std::vector<model::Option>& table) {
    if (random.oneIn(12)) {
        return "--";
    }
    if (table.empty() || random.oneIn(4)) {
        return random.of(values);
    }
    const std::string name = (random.oneIn(5) ? "no-" : "") + random.of(random.of(table).names);
    std::string typed;
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find('-', start), name.size());
        const int length = static_cast<int>(end - start);
        const int kept = random.oneIn(2) ? length : random.below(length + 1);
        typed += name.substr(start, static_cast<std::size_t>(kept));
        typed += end < name.size() ? "-" : "";
        start = end + 1;
    }
    typed += random.oneIn(15) ? "-x" : "";
    const int form = random.below(5);
    const std::string value = form < 2 ? "=" + random.of(values) : form == 2 ? "  " + random.of(values) : "";
    return random.of(dashes) + typed + value;
}

std::string askLibrary(IParseResult& result, const std::string& name, int lo, int hi, int first) {
    const char* const key = name.c_str();
    Value value = result.get(key, lo + first, hi == noPosition ? hi : hi + first);
    if (value.status != valueFound) {
        // Asked for its values alone, an option that has some may yield none in the range.
        const bool isPresent = result.present(key, lo + first, hi == noPosition ? hi : hi + first);
        return isPresent ? "given" : "absent";
    }
    const Value last = getLastValue(&result, key, lo + first, hi == noPosition ? hi : hi + first);
    value = result.get(key, lo + first, hi == noPosition ? hi : hi + first);
    const bool isDefault = result.nextPosition() == noPosition && value.text != nullptr;
    value = result.get(key, lo + first, hi == noPosition ? hi : hi + first);
    std::string line = isDefault ? "default" : "given";
    Value before;
    for (; value.status == valueFound; value = result.next(key)) {
        line += " " + std::string(value.text != nullptr ? value.text : "") + "@" +
                std::to_string(value.position - first);
        before = value;
    }
    if (last.position != before.position || last.value != before.value) {
        line += " but the last value is another";
    }
    return line;
}

std::string shown(const std::vector<std::string>& texts) {
    std::string line;
    for (const std::string& text : texts) {
        line += "[" + text + "]";
    }
    return line;
}

std::string plainArguments(IParseResult& result) {
    std::vector<std::string> texts;
    const char* text = nullptr;
    for (int status = result.getFirstArgument(&text); status == valueFound;
         status = result.getNextArgument(&text)) {
        texts.push_back(text);
    }
    return shown(texts);
}

unsigned int numberFrom(const char* variable, unsigned int otherwise) {
    const char* const text = std::getenv(variable);
    return text != nullptr ? static_cast<unsigned int>(std::strtoul(text, nullptr, 10)) : otherwise;
}

/// How often which status was seen: a comparison of nothing but refusals would prove little.
using Statuses = std::vector<int>;

void compareOneLine(Random& random, Session& session, int flags, const std::vector<model::Option>& table,
                    NotingHandler& handler, Statuses& statuses) {
    std::vector<std::string> arguments;
    for (int i = random.below(6); i > 0; --i) {
        arguments.push_back(randomArgument(random, table));
    }
    SCOPED_TRACE("arguments " + shown(arguments));
    session.result->destroy();
    session.parser->createResult(&session.result);
    handler.first = currentPosition();
    handler.events.clear();
    const int status = parse(session, arguments);
    const model::Outcome expected = model::parse(table, flags, arguments);
    ASSERT_EQ(status, expected.status) << expected.message << "\n" << session.parser->getErrorDesc();
    if (status != parseOk) {
        ASSERT_EQ(session.parser->getErrorDesc(), expected.message);
    }
    ASSERT_EQ(shown(handler.events), shown(expected.events));
    ASSERT_EQ(plainArguments(*session.result), shown(expected.plain));
    for (const model::Option& option : table) {
        for (const std::string& name : option.names) {
            const int lo = random.below(8);
            const int hi = lo + random.below(8);
            SCOPED_TRACE(name + " in [" + std::to_string(lo) + ", " + std::to_string(hi) + ")");
            ASSERT_EQ(askLibrary(*session.result, name, 0, noPosition, handler.first),
                      model::query(expected, name, 0, noPosition));
            ASSERT_EQ(askLibrary(*session.result, name, lo, hi, handler.first),
                      model::query(expected, name, lo, hi));
        }
    }
    ++statuses[static_cast<std::size_t>(status)];
}

void compareLines(unsigned int seed, int lines, Statuses& statuses) {
    Random random(seed);
    Session session;
    const int flags = random.below(32) * 2;
    open(session, flags);
    NotingHandler handler;
    session.parser->addHandler(&handler);
    std::vector<model::Option> table;
    for (int i = 1 + random.below(6); i > 0; --i) {
        declare(random, *session.parser, flags, table);
    }
    SCOPED_TRACE("seed " + std::to_string(seed) + ", flags " + std::to_string(flags));
    for (int i = 0; i < lines && !testing::Test::HasFailure(); ++i) {
        compareOneLine(random, session, flags, table, handler, statuses);
    }
}

TEST(Model, AgreesWithTheLibraryOnRandomCommandLines) {
    const unsigned int seed = numberFrom("TARV_MODEL_SEED", 1);
    const unsigned int lines = numberFrom("TARV_MODEL_LINES", roundsOf(100000));
    constexpr int linesPerTable = 50;
    std::cout << "TARV_MODEL_SEED=" << seed << " TARV_MODEL_LINES=" << lines << std::endl;
    Statuses statuses(7);
    for (unsigned int done = 0; done < lines && !HasFailure(); done += linesPerTable) {
        compareLines(seed + done, linesPerTable, statuses);
    }
    for (const int status : {parseOk, parseVetoed, parseFailed}) {
        const int seen = statuses[static_cast<std::size_t>(status)];
        std::cout << "status " << status << ": " << seen << " lines" << std::endl;
        EXPECT_GT(seen, static_cast<int>(lines) / 1000);
    }
}

} // namespace
