#include <climits>
#include <memory>
#include <new>
#include <set>
#include <stdexcept>

#include "Input.h"
#include "MemoryFile.h"
#include "mero_2_16/assertion.h"
#include "oracles.h"
#include "recognition/IArgumentParser.h"

using namespace tarv_3_3;

namespace {

constexpr std::size_t parserCount = 3;
constexpr std::size_t resultCount = 4;
constexpr std::size_t handlerCount = 4;
constexpr int deepestParse = 3;
constexpr int mostCalls = 400;

/// Texts that were handed out by one owner, with what they said then.
class HandedOut {
public:
    void keep(const char* text) {
        if (text != nullptr && m_texts.size() < mostTexts) {
            m_texts.emplace_back(text, text);
        }
    }

    void requireUnchanged() const {
        for (const auto& [text, copy] : m_texts) {
            require(copy == text, "a text that was handed out has changed", copy + "\n" + text);
        }
    }

private:
    static constexpr std::size_t mostTexts = 2000;
    std::vector<std::pair<const char*, std::string>> m_texts;
};

class Script;

/// Reads on in the script in each event, which says what it does and what it answers.
struct ScriptedHandler final : EventHandler {
    explicit ScriptedHandler(Script& scriptToRead) : script(&scriptToRead) {}

    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    Script* script;
    /// With how many parsers it is registered.
    int registrations = 0;
};

struct ParserSlot {
    IParser* parser = nullptr;
    /// What was declared last, as long as it may be refined.
    IOption* last = nullptr;
    std::set<std::string> namesOfLast;
    std::set<ScriptedHandler*> handlers;
    HandedOut texts;
    int running = 0;
};

struct ResultSlot {
    IParseResult* result = nullptr;
    HandedOut texts;
    int running = 0;
};

/// Null for the word that stands for it.
const char* orNull(const std::string& text) {
    return text == "NULL" ? nullptr : text.c_str();
}

das_variant_type_t kindOf(unsigned char byte) {
    constexpr das_variant_type_t kinds[] = {vtBool,   vtInt32,  vtUInt32, vtInt64,
                                            vtUInt64, vtDouble, vtString, vtNull};
    // A kind that does not exist as well.
    return byte == '?' ? static_cast<das_variant_type_t>(3) : kinds[byte % 8];
}

/// Public calls in any order, one a line; the operations below say what stands in a line.
///
/// A line that begins with '>' belongs to an event: a handler takes those that come next, up to the first
/// that does not, before it answers. "|" stands between the lines of two events.
class Script {
public:
    Script(const std::uint8_t* bytes, std::size_t size) : m_input(bytes, size) {
        for (auto& handler : m_handlers) {
            handler = std::make_unique<ScriptedHandler>(*this);
        }
    }

    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    ~Script() {
        for (ParserSlot& slot : m_parsers) {
            destroyParser(slot);
        }
        for (ResultSlot& slot : m_results) {
            destroyResult(slot);
        }
    }

    void run() {
        while (!m_input.empty()) {
            const std::string line = nextLine();
            if (line[0] != '>') {
                call(line);
            }
        }
    }

    bool act();
    void keepFromEvent(const char* text);

private:
    std::string nextLine() {
        std::string line = m_input.until('\n').c_str();
        // Which files an input may name is not left to a fuzzer.
        for (char& byte : line) {
            byte = byte == '/' ? '_' : byte;
        }
        return line;
    }

    void call(const std::string& line);
    void callParser(char what, ParserSlot& slot, Input& fields);
    void callResult(char what, ResultSlot& slot, Input& fields);
    void refine(ParserSlot& slot, char builder, Input& fields);
    void declare(char what, ParserSlot& slot, Input& fields);
    void parse(char what, ParserSlot& slot, Input& fields);
    int parseAs(char what, IParser& parser, IParseResult* result, const std::vector<std::string>& arguments);
    void iterate(ResultSlot& slot, const char* name, int lo, int hi) const;
    static void askForHelp(ParserSlot& slot, Input& fields);
    void addOrRemove(char what, ParserSlot& slot, Input& fields);
    void replaceHandler(std::size_t index);
    static void destroyParser(ParserSlot& slot);
    static void destroyResult(ResultSlot& slot);

    Input m_input;
    ParserSlot m_parsers[parserCount];
    ResultSlot m_results[resultCount];
    std::unique_ptr<ScriptedHandler> m_handlers[handlerCount];
    std::vector<std::unique_ptr<MemoryFile>> m_files;
    int m_depth = 0;
    int m_calls = 0;
    bool m_mayWrap = false;
    bool m_mayRepeatNames = false;
};

std::size_t placeIn(Input& fields, std::size_t count) {
    return static_cast<unsigned char>(fields.byte() - '0') % count;
}

// `P` and `R` make a parser and a result, `#` moves the counter of positions near its end, `~` ends a
// handler's life. Any other line names a parser, or for the operations of results a result, behind the
// operation.
void Script::call(const std::string& line) {
    if (++m_calls > mostCalls) {
        return;
    }
    Input fields(reinterpret_cast<const std::uint8_t*>(line.data()), line.size());
    const char what = static_cast<char>(fields.byte());
    if (what == '#') {
        // Once: a second time it would hand out the same positions again.
        IArgumentParser::m_idx = m_mayWrap ? IArgumentParser::m_idx : INT_MAX - fields.byte();
        m_mayWrap = true;
    } else if (what == '~') {
        replaceHandler(placeIn(fields, handlerCount));
    } else if (std::string("RXg?lnN12").find(what) != std::string::npos) {
        callResult(what, m_results[placeIn(fields, resultCount)], fields);
    } else {
        callParser(what, m_parsers[placeIn(fields, parserCount)], fields);
    }
}

void Script::callParser(char what, ParserSlot& slot, Input& fields) {
    if (what == 'P') {
        if (slot.parser == nullptr) {
            // A letter for the flags: '@' for none, 'A' for the first of them, 'C' for the first two.
            require(createParser(&slot.parser, (fields.byte() & 0x1f) << 1) == parseOk, "createParser");
        }
        return;
    }
    if (slot.parser == nullptr) {
        return;
    }
    switch (what) {
    case 'o':
    case 'a':
    case 'm':
    case 'f':
        declare(what, slot, fields);
        break;
    case 's':
    case 't':
    case 'k':
    case 'p':
    case 'd':
    case 'v':
        if (slot.last != nullptr) {
            refine(slot, what, fields);
        }
        break;
    case 'c':
    case 'i':
    case 'F':
    case 'z':
        parse(what, slot, fields);
        break;
    case 'h':
        askForHelp(slot, fields);
        break;
    case '+':
    case '-':
        addOrRemove(what, slot, fields);
        break;
    case 'x':
        if (slot.running == 0) {
            destroyParser(slot);
        }
        break;
    default:
        break;
    }
}

// A byte for the kind, then names, topic, description and tags, separated by tabs.
void Script::declare(char what, ParserSlot& slot, Input& fields) {
    const das_variant_type_t kind = kindOf(fields.byte());
    const std::string names = fields.until('\t');
    const std::string topic = fields.until('\t');
    const std::string description = fields.until('\t');
    const std::string tags = fields.until('\t');
    IParser& parser = *slot.parser;
    if (what == 'f') {
        parser.addOptionFileOption(orNull(description), orNull(topic));
        slot.last = nullptr;
        return;
    }
    slot.last = what == 'o' ? &parser.option(orNull(names), orNull(description), kind, orNull(topic))
                : what == 'a'
                    ? &parser.action(orNull(names), orNull(description), kind, orNull(topic))
                    : &parser.modifier(orNull(names), orNull(tags), orNull(description), kind, orNull(topic));
    slot.namesOfLast.clear();
    for (Input each(reinterpret_cast<const std::uint8_t*>(names.data()), names.size()); !each.empty();) {
        m_mayRepeatNames = !slot.namesOfLast.insert(each.until(',')).second || m_mayRepeatNames;
    }
    require(slot.last->m_status == declarationStored || slot.last->m_status == declarationRefused,
            "status of IOption");
    const bool isOneName = !names.empty() && names.find(',') == std::string::npos && names != "NULL";
    require(!isOneName || slot.last->m_status == declarationRefused ||
                parser.isOptionDeclared(names.c_str(), what == 'a', nullptr),
            "declared, but not found", names);
}

// Of values, a byte for the kind, which need not be that of the option, then the text.
void Script::refine(ParserSlot& slot, char builder, Input& fields) {
    IOption& option = *slot.last;
    if (builder == 'd' || builder == 'v') {
        const das_variant_type_t kind = kindOf(fields.byte());
        const variant_t value = extracted(fields.rest(), kind);
        builder == 'd' ? option.defaultValue(value) : option.allowValue(value);
        return;
    }
    const std::string text = fields.rest();
    switch (builder) {
    case 's':
        m_mayRepeatNames = !slot.namesOfLast.insert(text).second || m_mayRepeatNames;
        option.synonym(orNull(text));
        break;
    case 't':
        option.tag(orNull(text));
        break;
    case 'k':
        option.tokenize(text.empty() ? '\0' : text.front());
        break;
    default:
        option.positional();
        break;
    }
}

// A byte for the result, '4' for none, then arguments, separated by tabs. `i` gives them as a stream, `F`
// in an option file, `z` as no arguments at all.
void Script::parse(char what, ParserSlot& slot, Input& fields) {
    if (m_depth == deepestParse) {
        return;
    }
    const std::size_t place = placeIn(fields, resultCount + 1);
    ResultSlot none;
    ResultSlot& into = place < resultCount ? m_results[place] : none;
    std::vector<std::string> arguments;
    while (!fields.empty()) {
        arguments.push_back(fields.until('\t'));
    }
    ++m_depth;
    ++slot.running;
    ++into.running;
    try {
        const int status = parseAs(what, *slot.parser, into.result, arguments);
        const char* const message = slot.parser->getErrorDesc();
        slot.texts.keep(message);
        require(status == parseOk || status == parseVetoed || status == parseException || *message != '\0',
                "a failure without a message", std::to_string(status));
        require(status >= parseOk && status <= parseFileUnreadable && status != 5, "a status of its own",
                std::to_string(status));
    } catch (int) {
        // What a handler throws that is no standard exception passes through.
    }
    --m_depth;
    --slot.running;
    --into.running;
    slot.texts.requireUnchanged();
    into.texts.requireUnchanged();
}

int Script::parseAs(char what, IParser& parser, IParseResult* result,
                    const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"fuzz"};
    std::string text;
    for (const std::string& argument : arguments) {
        argv.push_back(orNull(argument));
        text += argument + "\n";
    }
    if (what == 'i') {
        return parser.parseStream(orNull(text), result);
    }
    if (what == 'z') {
        return parser.parseArgsVector(-static_cast<int>(argv.size()), nullptr, result);
    }
    if (what == 'F') {
        m_files.push_back(std::make_unique<MemoryFile>(text));
        const std::string option = "--option-file=" + m_files.back()->path();
        const char* const named[] = {"fuzz", option.c_str()};
        return parser.parseArgsVector(2, named, result);
    }
    return parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
}

// A byte for the form, another for hidden, then a name.
void Script::askForHelp(ParserSlot& slot, Input& fields) {
    const std::size_t form = placeIn(fields, 6);
    const bool hidden = fields.byte() % 2 != 0;
    const std::string name = fields.rest();
    IParser& parser = *slot.parser;
    switch (form) {
    case 0:
        slot.texts.keep(parser.getDescription(hidden));
        break;
    case 1:
        slot.texts.keep(parser.getDescription(orNull(name), hidden));
        break;
    case 2:
        slot.texts.keep(parser.getActionModifiersDescription(orNull(name), hidden));
        break;
    case 3:
        slot.texts.keep(parser.getGlobalModifiersDescription(hidden));
        break;
    case 4:
        require(!parser.isOptionDeclared(nullptr, hidden, nullptr), "a null name is declared");
        parser.isOptionDeclared(orNull(name), hidden, "topic");
        break;
    default:
        ++slot.running;
        try {
            parser.onUknownArgument(name.c_str());
        } catch (...) {
            // An event that no parse sends: a handler's exception reaches whoever called.
        }
        --slot.running;
        break;
    }
}

void Script::addOrRemove(char what, ParserSlot& slot, Input& fields) {
    const std::size_t place = placeIn(fields, handlerCount + 1);
    ScriptedHandler* const handler = place < handlerCount ? m_handlers[place].get() : nullptr;
    const bool isKnown = slot.handlers.count(handler) != 0;
    if (what == '+') {
        require(slot.parser->addHandler(handler) != isKnown, "addHandler");
        slot.handlers.insert(handler);
    } else {
        require(slot.parser->removeHandler(handler) == isKnown, "removeHandler");
        slot.handlers.erase(handler);
    }
    if (handler != nullptr && isKnown == (what == '-')) {
        handler->registrations += what == '+' ? 1 : -1;
    }
}

// The handler may be the one that is acting: its object goes in the middle of its event.
void Script::replaceHandler(std::size_t index) {
    ScriptedHandler* const handler = m_handlers[index].get();
    for (ParserSlot& slot : m_parsers) {
        if (slot.handlers.erase(handler) != 0) {
            require(slot.parser->removeHandler(handler), "removeHandler");
        }
    }
    m_handlers[index] = std::make_unique<ScriptedHandler>(*this);
}

void Script::callResult(char what, ResultSlot& slot, Input& fields) {
    if (what == 'R') {
        ParserSlot& maker = m_parsers[placeIn(fields, parserCount)];
        if (slot.result == nullptr && maker.parser != nullptr) {
            require(maker.parser->createResult(&slot.result) == 0, "createResult");
        }
        return;
    }
    if (slot.result == nullptr) {
        return;
    }
    IParseResult& result = *slot.result;
    const char* text = nullptr;
    switch (what) {
    case 'X':
        if (slot.running == 0) {
            destroyResult(slot);
        }
        break;
    case 'n':
        slot.texts.keep(result.next(nullptr).text);
        break;
    case 'N':
        result.nextPosition();
        break;
    case '1':
        require(result.getFirstArgument(&text) == (text != nullptr ? 0 : 1), "getFirstArgument");
        slot.texts.keep(text);
        break;
    case '2':
        require(result.getNextArgument(&text) == (text != nullptr ? 0 : 1), "getNextArgument");
        slot.texts.keep(text);
        break;
    default: {
        // A byte for each bound, '0' for none; then the name.
        const int lo = fields.byte() - '0';
        const int hi = fields.byte() - '0';
        const std::string name = fields.rest();
        if (what == '?') {
            result.present(orNull(name), lo, hi > 0 ? hi : noPosition);
        } else if (what == 'l') {
            slot.texts.keep(getLastValue(&result, orNull(name), lo, hi > 0 ? hi : noPosition).text);
        } else {
            iterate(slot, orNull(name), lo, hi > 0 ? hi : noPosition);
        }
        break;
    }
    }
}

void Script::iterate(ResultSlot& slot, const char* name, int lo, int hi) const {
    IParseResult& result = *slot.result;
    Value last;
    for (Value value = result.get(name, lo, hi); value.status == valueFound; value = result.next(name)) {
        require(value.as<const char*>() == value.text, "Value::as");
        slot.texts.keep(value.text);
        last = value;
    }
    const Value asked = getLastValue(&result, name, lo, hi);
    require(asked.status == last.status && asked.position == last.position && asked.value == last.value,
            "getLastValue is not the last of the iteration");
    const bool isPresent = result.present(name);
    require(m_mayWrap || isPresent == (result.get(name).status == valueFound), "present is not get");
    std::set<int> positions;
    for (int position = result.nextPosition(); position != noPosition; position = result.nextPosition()) {
        // A name that an option has twice is stored twice.
        require(positions.insert(position).second || m_mayRepeatNames, "a position came twice",
                std::to_string(position));
    }
}

void Script::destroyParser(ParserSlot& slot) {
    if (slot.parser == nullptr) {
        return;
    }
    slot.texts.requireUnchanged();
    for (ScriptedHandler* const handler : slot.handlers) {
        if (handler != nullptr) {
            --handler->registrations;
        }
    }
    slot.parser->destroy();
    slot = ParserSlot();
}

void Script::destroyResult(ResultSlot& slot) {
    if (slot.result == nullptr) {
        return;
    }
    slot.texts.requireUnchanged();
    slot.result->destroy();
    slot = ResultSlot();
}

// The parser that sent the event keeps its texts: the only one that runs. Where several do, nobody says
// which it is.
void Script::keepFromEvent(const char* text) {
    ParserSlot* sender = nullptr;
    for (ParserSlot& slot : m_parsers) {
        if (slot.running > 0) {
            if (sender != nullptr) {
                return;
            }
            sender = &slot;
        }
    }
    require(sender != nullptr, "an event that no parser sends");
    sender->texts.keep(text);
}

// What the lines of this event say, and its answer: true, unless there is a line ">.". ">!" throws.
bool Script::act() {
    bool answer = true;
    while (!m_input.empty() && m_input.front() == '>') {
        const std::string line = nextLine().substr(1);
        if (line == ".") {
            answer = false;
        } else if (line == "!") {
            throw std::runtime_error("handler");
        } else if (line == "!m") {
            throw std::bad_alloc();
        } else if (line == "!i") {
            throw 5;
        } else if (!line.empty()) {
            call(line);
        }
    }
    if (!m_input.empty() && m_input.front() == '|') {
        nextLine();
    }
    return answer;
}

// The handler itself may be gone when `act` returns.
bool ScriptedHandler::onOptionParse(const char* name) {
    Script& running = *script;
    require(registrations > 0, "an event for a handler that was removed");
    const std::string copy = name;
    running.keepFromEvent(name);
    const bool answer = running.act();
    require(copy == name, "the name of an event changed during it", copy);
    return answer;
}

bool ScriptedHandler::onValueParse(const char* name, const Value& value) {
    Script& running = *script;
    require(registrations > 0, "an event for a handler that was removed");
    running.keepFromEvent(name);
    const std::string text = value.text;
    const variant_t copy = value.value;
    const bool answer = running.act();
    require(text == value.text && value.value == copy && value.status == valueFound,
            "the value of an event changed during it", text);
    return answer;
}

bool ScriptedHandler::onUknownArgument(const char* argument) {
    Script& running = *script;
    require(registrations > 0, "an event for a handler that was removed");
    const std::string copy = argument;
    running.keepFromEvent(argument);
    const bool answer = running.act();
    require(copy == argument, "the argument of an event changed during it", copy);
    return answer;
}

void goOn(const char*, const char*, int) {}

} // namespace

/// A script of public calls. Beside it stands a parser with a result that no call touches: what these say
/// must stay as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    silenceTrace();
    MERO_2_16::set_assertion_handler(goOn);
    IArgumentParser::m_idx = 1;
    Parse witness(0);
    witness.parser->option("name,n", "A name.", vtString).defaultValue("nobody");
    witness.parser->option("level,l", "How much.", vtInt32).allowValue(1).allowValue(2);
    require(witness.arguments({"--name=Ann,Bo", "-l=2", "--", "plain"}) == parseOk, "the witness");
    const std::vector<std::string> names = {"name", "n", "level", "l"};
    const std::string before = witness.dump(names) + witness.parser->getDescription();
    {
        Script script(bytes, size);
        script.run();
    }
    require(before == witness.dump(names) + witness.parser->getDescription(), "a stranger's result changed",
            before);
    return 0;
}
