// A host as it was compiled once. What inline functions of the headers do, how large objects are, where a
// virtual function stands in its table, what a default argument is and which number an enumerator has: all
// of that is in this program, and no later library changes it. Prints what does not hold.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "mero_2_16/assertion.h"
#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;
using tarv::variant_t;

namespace {

int failures = 0;
int checks = 0;

void expect(const char* what, bool holds) {
    ++checks;
    if (!holds) {
        std::printf("%s: does not hold\n", what);
        ++failures;
    }
}

void expect(const char* what, long actual, long expected) {
    ++checks;
    if (actual != expected) {
        std::printf("%s: %ld instead of %ld\n", what, actual, expected);
        ++failures;
    }
}

void expect(const char* what, const char* actual, const char* expected) {
    ++checks;
    if (actual == nullptr || std::strcmp(actual, expected) != 0) {
        std::printf("%s: '%s' instead of '%s'\n", what, actual != nullptr ? actual : "(null)", expected);
        ++failures;
    }
}

int blocks = 0;
int brokenAssertions = 0;

void* countAndAllocate(std::size_t bytes) {
    ++blocks;
    return std::malloc(bytes);
}

void countAndRelease(void* block) {
    --blocks;
    std::free(block);
}

void countAssertion(const char*, const char*, int) {
    ++brokenAssertions;
}

// An object of the host's size, between bytes that nobody may touch.
template <class T>
class Guarded {
public:
    template <class Make>
    explicit Guarded(Make make) {
        std::memset(m_bytes, 0x5a, sizeof m_bytes);
        m_object = new (m_bytes + margin) T(make());
    }
    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;
    ~Guarded() { m_object->~T(); }

    T& operator*() { return *m_object; }
    T* operator->() { return m_object; }

    bool isWhole() const {
        for (std::size_t i = 0; i < margin; ++i) {
            if (m_bytes[i] != 0x5a || m_bytes[margin + sizeof(T) + i] != 0x5a) {
                return false;
            }
        }
        return true;
    }

private:
    static constexpr std::size_t margin = 64;
    alignas(16) unsigned char m_bytes[margin + sizeof(T) + margin];
    T* m_object;
};

void useVariants() {
    expect("an empty variant is null", variant_t().type(), 17);
    expect("bool", variant_t(true).get<bool>());
    expect("int32", variant_t(-7).get<dovel2::int32_t>(), -7);
    expect("uint32", static_cast<long>(variant_t(7U).get<dovel2::uint32_t>()), 7);
    expect("int64", variant_t(-7L).get<dovel2::int64_t>(), -7);
    expect("uint64", static_cast<long>(variant_t(7UL).get<dovel2::uint64_t>()), 7);
    expect("long long", variant_t(-7LL).type(), 8);
    expect("unsigned long long", variant_t(7ULL).type(), 9);
    expect("double", variant_t(0.5).get<double>() == 0.5);
    expect("a bool is a bool", variant_t(false).can_get<bool>() && !variant_t(0).can_get<bool>());
    expect("kinds", variant_t(1).can_get<dovel2::int32_t>() && variant_t(1U).can_get<dovel2::uint32_t>() &&
                        variant_t(1L).can_get<dovel2::int64_t>() &&
                        variant_t(1UL).can_get<dovel2::uint64_t>() && variant_t(1.0).can_get<double>() &&
                        variant_t("").can_get<const char*>() && !variant_t().can_get<const char*>());
    {
        variant_t text("a text that several share");
        const int once = blocks;
        const variant_t copy(text);
        variant_t moved(std::move(text));
        variant_t assigned;
        assigned = copy;
        variant_t taken;
        taken = std::move(moved);
        expect("copies share", blocks, once);
        expect("a moved text is null", text.type(), 17);
        expect("a copy", copy.get<const char*>(), "a text that several share");
        expect("an assigned copy", assigned.get<const char*>(), "a text that several share");
        expect("a text that was taken", taken.get<const char*>(), "a text that several share");
        expect("equal", copy == assigned && !(copy != assigned) && copy != variant_t("other"));
    }
    expect("no text is left behind", blocks, 0);
    expect("order of texts", variant_t::string_compare("a", "b") < 0);
    volatile int counter = 1;
    expect("one up", dovel2::internal::sync_inc(&counter), 2);
    expect("one down", dovel2::internal::sync_dec(&counter), 1);
    expect("no assertion was broken", brokenAssertions, 0);
    expect("another kind", variant_t("x").get<dovel2::int32_t>(), 0);
    expect("an assertion was broken", brokenAssertions, 1);
}

void useValues() {
    const tarv::Value none;
    expect("no text", none.text == nullptr && none.as<const char*>() == nullptr);
    expect("no status", none.status, 1);
    expect("no position", none.position, 0x7fffffff);
    const tarv::Value found("7", variant_t(7), 3);
    const tarv::Value copy = found;
    expect("a text", copy.as<const char*>(), "7");
    expect("a status", copy.status, 0);
    expect("a position", copy.position, 3);
    expect("a value", copy.value == variant_t(7));
}

// Without a virtual destructor, and with one function that is not overridden.
class Handler final : public tarv::EventHandler {
public:
    bool onOptionParse(const char* name) override {
        events += std::string("option ") + name + ";";
        return true;
    }
    bool onValueParse(const char* name, const tarv::Value& value) override {
        events += std::string("value ") + name + "=" + value.text + ";";
        kinds += std::to_string(value.value.type()) + ";";
        if (std::strcmp(value.text, "9") == 0) {
            throw std::runtime_error("no");
        }
        return std::strcmp(value.text, "8") != 0;
    }

    std::string events;
    std::string kinds;
};

class UnknownHandler final : public tarv::EventHandler {
public:
    bool onUknownArgument(const char* argument) override {
        events += std::string("unknown ") + argument + ";";
        return std::strcmp(argument, "known") != 0;
    }

    std::string events;
};

int parse(tarv::IParser& parser, tarv::IParseResult* result, const char* first,
          const char* second = "--level=1") {
    const char* const argv[] = {"host", first, second};
    return parser.parseArgsVector(3, argv, result);
}

void declare(tarv::IParser& parser) {
    tarv::IOption& level = parser.option("level,l", "How much.", tarv::vtInt32);
    level.synonym("amount").allowValue(1).allowValue(2).allowValue(8).allowValue(9).defaultValue(2);
    expect("a declaration", level.m_status, 0);
    expect("a taken name", parser.option("l", "", tarv::vtInt32, "topic").m_status, 1);
    parser.option("list", "Several.", tarv::vtString).tokenize(';').positional();
    parser.option("secret", "For some.", tarv::vtBool, "tarv_hidden");
    parser.action("build,b", "Builds.", tarv::vtNull);
    parser.modifier("jobs", "build", "How many.", tarv::vtUInt32).tag("test");
    expect("an action", parser.isOptionDeclared("build", true, nullptr));
    expect("no option", !parser.isOptionDeclared("build", false, nullptr));
    expect("a topic", parser.isOptionDeclared("secret", false, "tarv_hidden"));
    expect("the empty topic by default", parser.isOptionDeclared("jobs", false, ""));
    expect("option files", parser.addOptionFileOption("Reads more."));
}

void query(tarv::IParseResult& result) {
    expect("present", result.present("level") && result.present("amount") && !result.present("jobs"));
    Guarded<tarv::Value> level([&] { return result.get("level"); });
    expect("a value between guards", level.isWhole());
    expect("its text", level->text, "1");
    expect("its value", level->value == variant_t(1));
    expect("its status", level->status, 0);
    Guarded<tarv::Value> nothing([&] { return result.next("level"); });
    expect("nothing between guards", nothing.isWhole() && nothing->status == 1);
    result.get("list");
    const int position = result.nextPosition();
    expect("a position of the list", position > level->position && position < 0x7fffffff);
    expect("no further one", result.nextPosition(), 0x7fffffff);
    expect("nothing in front of it", result.get("list", 0, position).status, 1);
    expect("a range", result.present("list", position));
    Guarded<tarv::Value> last([&] { return tarv::getLastValue(&result, "list"); });
    expect("the last one between guards", last.isWhole());
    expect("the last one", last->as<const char*>(), "b,c");
    const char* plain = nullptr;
    expect("a plain argument", result.getFirstArgument(&plain), 0);
    expect("its text", plain, "plain");
    expect("no further one", result.getNextArgument(&plain), 1);
}

void describe(tarv::IParser& parser) {
    expect("actions", parser.getDescription(), "    build\n");
    expect("what is hidden", std::strstr(parser.getDescription(true), "For some.") != nullptr);
    expect("no topic", parser.getDescription(nullptr, true), parser.getDescription(true));
    expect("an option", std::strstr(parser.getDescription("level"), "How much.") != nullptr);
    expect("an option that is not hidden",
           std::strstr(parser.getDescription("level", true), "How much.") == nullptr);
    expect("modifiers", std::strstr(parser.getActionModifiersDescription("build"), "How many.") != nullptr);
    expect("global modifiers", std::strstr(parser.getGlobalModifiersDescription(), "How much.") != nullptr);
    expect("hidden ones", std::strstr(parser.getGlobalModifiersDescription(true), "For some.") != nullptr);
}

void useParser() {
    tarv::IParser* parser = nullptr;
    tarv::IParseResult* result = nullptr;
    expect("a parser", tarv::createParser(&parser), 0);
    declare(*parser);
    expect("a result", parser->createResult(&result), 0);
    Handler handler;
    UnknownHandler other;
    expect("a handler", parser->addHandler(&handler) && !parser->addHandler(&handler));
    expect("a parse", parser->parseStream("--level=1\n--build\na;b,c\n--\nplain", result), 0);
    expect("events", handler.events.c_str(),
           "option level;value level=1;option build;option level;value list=a;value list=b,c;");
    expect("kinds", handler.kinds.c_str(), "6;12;12;");
    query(*result);
    expect("a veto", parse(*parser, result, "--build", "--level=8"), 1);
    expect("its message", parser->getErrorDesc(),
           "Value '8' is not valid for option 'level' in argument '--level=8'");
    expect("an exception", parse(*parser, result, "--build", "--level=9"), 4);
    expect("a wrong value", parse(*parser, nullptr, "--build", "--level=7"), 2);
    expect("no arguments", parser->parseArgsVector(0, nullptr, nullptr), 0);
    expect("a null argument", parse(*parser, nullptr, nullptr), 3);
    expect("no such file", parse(*parser, result, "--build", "--option-file=/nonexistent"), 6);
    expect("removed", parser->removeHandler(&handler) && !parser->removeHandler(&handler));
    describe(*parser);
    parser->destroy();
    expect("a result without its parser", result->get("level").text, "1");
    result->destroy();

    expect("a strict parser", tarv::createParser(&parser, tarv::flagRejectUnknown), 0);
    parser->createResult(&result);
    parser->option("level", "", tarv::vtInt32).defaultValue(5);
    parser->addHandler(&other);
    expect("an unknown argument", parse(*parser, result, "x"), 2);
    expect("a known one", parse(*parser, result, "known"), 0);
    expect("both were told", other.events.c_str(), "unknown x;unknown known;");
    expect("an event", parser->onUknownArgument("known"), false);
    parser->destroy();
    result->destroy();
    expect("no text is left behind by parsers", blocks, 0);
}

} // namespace

int main() {
    variant_t::m_mem = {countAndAllocate, countAndRelease};
    MERO_2_16::set_assertion_handler(countAssertion);
    useVariants();
    useValues();
    useParser();
    expect("the handler that was installed", MERO_2_16::set_assertion_handler(nullptr) == countAssertion);
    std::printf("%d of %d contracts hold\n", checks - failures, checks);
    return failures == 0 ? 0 : 1;
}
