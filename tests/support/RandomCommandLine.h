#pragma once

#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "parser/BasicParser.h"

/// Random declarations and command lines out of few words, so that names are cut short, repeated and
/// ambiguous often. The same seed gives the same ones.
class RandomCommandLine {
public:
    explicit RandomCommandLine(unsigned seed)
        : m_draw([engine = std::mt19937(seed)]() mutable { return static_cast<unsigned>(engine()); }) {}

    /// Decides by what `draw` returns.
    explicit RandomCommandLine(std::function<unsigned()> draw) : m_draw(std::move(draw)) {}

    unsigned below(unsigned limit) { return m_draw() % limit; }
    bool once(unsigned times) { return below(times) == 0; }

    std::string oneOf(std::initializer_list<const char*> texts) {
        return *(texts.begin() + below(static_cast<unsigned>(texts.size())));
    }

    std::string word() { return oneOf({"a", "ab", "abc", "b", "no", "n", "max", "mode", "m", "x"}); }

    std::string name() {
        std::string text = once(40) ? oneOf({"", "-a", "a--b", "a=b", "b-"}) : word();
        while (once(2)) {
            text += "-" + word();
        }
        return text;
    }

    int flags() {
        int flags = 0;
        for (const int flag : {tarv_3_3::flagRejectUnknown, tarv_3_3::flagPlainArePositional,
                               tarv_3_3::flagDashIsNotPositional, tarv_3_3::flagPositionalTakesRest}) {
            flags |= once(2) ? flag : 0;
        }
        return flags;
    }

    /// Texts and numbers more often than other kinds.
    tarv_3_3::das_variant_type_t kind() {
        using namespace tarv_3_3;
        const das_variant_type_t kinds[] = {vtBool,   vtBool,  vtNull,   vtString,
                                            vtString, vtInt32, vtUInt64, vtDouble};
        return kinds[below(8)];
    }

    /// With `repeats`, synonyms may repeat names.
    void declare(tarv_3_3::BasicParser& parser, bool withActions, bool repeats = true) {
        const unsigned count = below(9);
        for (unsigned i = 0; i < count; ++i) {
            const std::string topic = once(5) ? "tarv_hidden" : "";
            const std::string tags = withActions ? oneOf({"", "a", "b", "b,max", "mode"}) : "";
            const std::string names = once(3) ? name() + "," + name() : name();
            const tarv_3_3::das_variant_type_t type = kind();
            tarv_3_3::IOption& option =
                withActions && once(3)
                    ? parser.action(names.c_str(), "", type, topic.c_str())
                    : parser.modifier(names.c_str(), tags.c_str(), "", type, topic.c_str());
            const std::string synonym = name();
            if (once(5) && (repeats || !isDeclared(parser, synonym))) {
                option.synonym(synonym.c_str());
            }
            refine(option, type);
        }
    }

    /// An argument that begins like a name, or a value, or anything.
    std::string argument() {
        switch (below(8)) {
        case 0:
            return oneOf({"", "-", "--", "x", "-3", "---a", "tarvoption=tarvlogenable=1", "\xE2\x80\x93m"});
        case 1:
            return value();
        default: {
            std::string text = oneOf({"-", "--", "--", "\xE2\x80\x94"}) + cutShort(name());
            if (once(4)) {
                text += oneOf({"=", " ", "  "}) + value();
            }
            return text;
        }
        }
    }

    std::vector<std::string> arguments(unsigned most) {
        std::vector<std::string> all(below(most + 1));
        for (std::string& text : all) {
            text = argument();
        }
        return all;
    }

    std::string value() {
        return oneOf({"", "1", "2", "12", "1,2", ",1,,2,", ",", "red", "re", "green", "x y"});
    }

    /// Some letters off the end of words.
    std::string cutShort(const std::string& name) {
        std::string text;
        for (const char byte : name) {
            if (byte == '-' || text.empty() || text.back() == '-' || !once(3)) {
                text += byte;
            }
        }
        return text;
    }

private:
    // Also as what would be the "no-" form of another.
    static bool isDeclared(const tarv_3_3::BasicParser& parser, const std::string& name) {
        for (const tarv_3_3::OptionDescription& option : parser.registry().m_options) {
            for (const std::string& known : option.m_names) {
                if (known == name || "no-" + known == name || known == "no-" + name) {
                    return true;
                }
            }
        }
        return false;
    }

    void refine(tarv_3_3::IOption& option, tarv_3_3::das_variant_type_t type) {
        if (once(6)) {
            option.positional();
        }
        if (once(2)) {
            option.tokenize('\0');
        }
        if (type == tarv_3_3::vtString && once(2)) {
            option.allowValue("red").allowValue("redder").allowValue("green").allowValue("x y").allowValue(
                "1,2");
        }
        if (type == tarv_3_3::vtInt32 && once(2)) {
            option.allowValue(1).allowValue(12).allowValue(-3);
        }
    }

    std::function<unsigned()> m_draw;
};
