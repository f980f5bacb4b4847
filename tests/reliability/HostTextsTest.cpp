#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <stdexcept>

#include "reliability/ReusedMemory.h"
#include "reliability/Session.h"

// What a host hands over is read up to its terminating zero, no byte further, and copied: the host may
// do with it what it likes as soon as the call has returned.

namespace {

using namespace tarv_3_3;

/// A text whose terminating zero is the last byte of a page, and nothing may be read behind it.
class TextAtAnEnd {
public:
    explicit TextAtAnEnd(const std::string& text) : m_page(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))) {
        m_memory = mmap(nullptr, 2 * m_page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (m_memory == MAP_FAILED || mprotect(end(), m_page, PROT_NONE) != 0 || text.size() >= m_page) {
            throw std::runtime_error("no memory with an end");
        }
        m_text = end() - text.size() - 1;
        std::memcpy(m_text, text.c_str(), text.size() + 1);
    }

    TextAtAnEnd(const TextAtAnEnd&) = delete;
    TextAtAnEnd& operator=(const TextAtAnEnd&) = delete;

    ~TextAtAnEnd() { munmap(m_memory, 2 * m_page); }

    operator const char*() const { return m_text; }

private:
    char* end() const { return static_cast<char*>(m_memory) + m_page; }

    std::size_t m_page;
    void* m_memory;
    char* m_text;
};

/// A text that is overwritten and freed at the end of the statement that it is handed over in.
class TextForOneCall {
public:
    explicit TextForOneCall(const std::string& text)
        : m_size(text.size() + 1), m_text(std::make_unique<char[]>(m_size)) {
        std::memcpy(m_text.get(), text.c_str(), m_size);
    }

    TextForOneCall(const TextForOneCall&) = delete;
    TextForOneCall& operator=(const TextForOneCall&) = delete;

    ~TextForOneCall() { std::memset(m_text.get(), '#', m_size - 1); }

    operator const char*() const { return m_text.get(); }

private:
    std::size_t m_size;
    std::unique_ptr<char[]> m_text;
};

/// Hands over a text everywhere, and shows what comes back.
template <class Text>
void handOverEverything() {
    Session session;
    open(session, flagRejectUnknown);
    IParser& parser = *session.parser;
    parser.option(Text("level,l"), Text("How much."), vtInt32, Text("general:General"));
    parser.option(Text("shape"), Text("Which form."), vtString, Text("general"))
        .allowValue(variant_t(Text("round")))
        .allowValue(variant_t(Text("a square that is long enough")))
        .synonym(Text("form-of-it"))
        .tag(Text("draw,paint"))
        .defaultValue(variant_t(Text("round")));
    parser.action(Text("draw"), Text("Draws."), vtNull, Text("verbs"));
    parser.modifier(Text("width"), Text("draw,write"), Text("How wide."), vtDouble, Text("general"));
    parser.addOptionFileOption(Text("Reads more."), Text("files"));
    EXPECT_EQ(parser.option(Text("level"), Text(""), vtInt32, Text("")).m_status, declarationRefused);
    {
        const Text arguments[] = {Text("--draw"), Text("--lev=3,4"), Text("--f-o-i=a sq"), Text("--width"),
                                  Text("0.5"),    Text("--"),        Text("plain")};
        const char* const argv[] = {"host",       arguments[0], arguments[1], arguments[2],
                                    arguments[3], arguments[4], arguments[5], arguments[6]};
        ASSERT_EQ(parser.parseArgsVector(8, argv, session.result), parseOk) << parser.getErrorDesc();
    }
    ASSERT_EQ(parser.parseStream(Text("--level=5\n; comment\n--draw"), session.result), parseOk);
    const ReusedMemory memory;
    EXPECT_EQ(stored(session, {"level", "l", "shape", "width", "draw"}),
              "level=3,4,5 l=3,4,5 shape=a square that is long enough width=0.5 draw -- plain");
    EXPECT_EQ(getLastValue(session.result, Text("l")).value, variant_t(5));
    EXPECT_TRUE(session.result->present(Text("form-of-it")));
    EXPECT_FALSE(session.result->present(Text("form")));
    EXPECT_STREQ(session.result->get(Text("form-of-it")).text, "a square that is long enough");
    EXPECT_TRUE(parser.isOptionDeclared(Text("draw"), true, Text("verbs")));
    EXPECT_FALSE(parser.isOptionDeclared(Text("draw"), true, Text("general")));
    // Every topic has its heading.
    EXPECT_STREQ(parser.getDescription(Text("level")),
                 "general\n General\n\n-l, -level=<integer>          How much.\n\nverbs\n\nfiles\n\n\n");
    EXPECT_STREQ(parser.getActionModifiersDescription(Text("nothing")),
                 "Help for nothing not available.Please use one of the following topics:\n    draw\n");
    EXPECT_EQ(parser.parseStream(Text("--draw\n--level=x"), session.result), parseFailed);
    EXPECT_STREQ(parser.getErrorDesc(),
                 "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, "
                 "requires a type 'integer' here.");
}

TEST(TextsOfTheHost, AreNotReadBehindTheirEnds) {
    handOverEverything<TextAtAnEnd>();
}

TEST(TextsOfTheHost, AreNotNeededBehindTheCall) {
    handOverEverything<TextForOneCall>();
}

TEST(TextsOfTheHost, AreReadUpToTheirEndsByVariantsOfAnyLength) {
    for (std::size_t length = 0; length < 40; ++length) {
        SCOPED_TRACE(length);
        const std::string text(length, 'x');
        const TextAtAnEnd atAnEnd(text);
        const variant_t made(static_cast<const char*>(atAnEnd));
        EXPECT_EQ(std::string(made.get<const char*>()), text);
        EXPECT_EQ(variant_t::string_compare(atAnEnd, atAnEnd), 0);
        EXPECT_TRUE(made == variant_t(text.c_str()));
    }
}

TEST(TextsOfTheHost, AreReadUpToTheirEndsByNamesAndValuesOfAnyLength) {
    for (std::size_t length = 1; length < 40; ++length) {
        SCOPED_TRACE(length);
        const std::string name(length, 'n');
        const std::string value(length, 'v');
        Session session;
        open(session);
        session.parser->option(TextAtAnEnd(name), TextAtAnEnd(""), vtString, TextAtAnEnd(name));
        const TextAtAnEnd argument("--" + name + "=" + value);
        const char* const argv[] = {"host", argument};
        ASSERT_EQ(session.parser->parseArgsVector(2, argv, session.result), parseOk);
        EXPECT_EQ(std::string(session.result->get(TextAtAnEnd(name)).text), value);
        EXPECT_FALSE(session.result->present(TextAtAnEnd(value)));
    }
}

} // namespace
