#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"
#include "support/roundsOf.h"
#include "tarv_3_3/tarv.h"

namespace {

namespace typed = tarv_3_3::typed;
using namespace tarv_3_3;

using Texts = std::vector<std::string>;

enum class Kind { flag, number, text, list };

struct Option {
    std::string names;
    std::string primary;
    Kind kind;
};

/// The same declarations twice: for the plain interface, and for the typed face.
class Twins {
public:
    explicit Twins(std::mt19937& random) {
        createParser(&m_parser, flagRejectUnknown | flagDashIsNotPositional | flagPlainArePositional);
        for (const char* names :
             {"max-count,n", "max-depth", "color,c", "level", "list-of-names,l", "text", "m"}) {
            if (random() % 4 != 0) {
                declare(names, static_cast<Kind>(random() % 4));
            }
        }
        m_parser->option("file", "", vtString).tokenize(0).positional();
        m_files = m_program.positional<Texts>("file", "");
    }
    Twins(const Twins&) = delete;
    Twins& operator=(const Twins&) = delete;
    ~Twins() { m_parser->destroy(); }

    /// What a command line leaves, or "refused".
    std::string plain(const Texts& line) {
        std::vector<const char*> argv = {"p"};
        for (const std::string& argument : line) {
            argv.push_back(argument.c_str());
        }
        IParseResult* result = nullptr;
        m_parser->createResult(&result);
        const int status = m_parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
        std::string found = status == parseOk ? "" : "refused";
        for (const Option& option : m_options) {
            found += status == parseOk ? plainValue(*result, option) : "";
        }
        found += status == parseOk ? " file" + allOf(*result, "file") : "";
        result->destroy();
        return found;
    }

    std::string typedOf(const Texts& line) {
        const std::string outcome = parseLine(m_program, line);
        if (outcome != "ok") {
            return "refused";
        }
        std::string found;
        for (std::size_t i = 0; i < m_options.size(); ++i) {
            found += typedValue(i);
        }
        return found + " file" + joined(*m_files);
    }

private:
    void declare(const std::string& names, Kind kind) {
        const std::string primary = names.substr(0, names.find(','));
        m_options.push_back({names, primary, kind});
        static const das_variant_type_t kinds[] = {vtBool, vtInt64, vtString, vtString};
        m_parser->option(names.c_str(), "", kinds[static_cast<int>(kind)])
            .tokenize(kind == Kind::list ? ',' : '\0');
        m_flags.emplace_back();
        m_numbers.emplace_back();
        m_texts.emplace_back();
        m_lists.emplace_back();
        switch (kind) {
        case Kind::flag:
            m_flags.back() = m_program.flag(names.c_str(), "");
            break;
        case Kind::number:
            m_numbers.back() = m_program.option<long long>(names.c_str(), "");
            break;
        case Kind::text:
            m_texts.back() = m_program.option<std::string>(names.c_str(), "");
            break;
        default:
            m_lists.back() = m_program.option<Texts>(names.c_str(), "");
            break;
        }
    }

    static std::string joined(const Texts& texts) {
        std::string list;
        for (const std::string& text : texts) {
            list += "|" + text;
        }
        return list;
    }

    static std::string allOf(IParseResult& result, const char* name) {
        std::string list;
        for (Value value = result.get(name); value.status == valueFound; value = result.next(name)) {
            list += std::string("|") + value.text;
        }
        return list;
    }

    static std::string plainValue(IParseResult& result, const Option& option) {
        const Value last = getLastValue(&result, option.primary.c_str());
        const std::string begin = " " + option.primary;
        if (last.status != valueFound) {
            return begin + "?";
        }
        switch (option.kind) {
        case Kind::flag:
            return begin + (last.value.get<bool>() ? "=1" : "=0");
        case Kind::number:
            return begin + "=" + std::to_string(last.value.get<dovel2::int64_t>());
        case Kind::text:
            return begin + "=" + last.text;
        default:
            return begin + allOf(result, option.primary.c_str());
        }
    }

    std::string typedValue(std::size_t i) {
        const Option& option = m_options[i];
        const std::string begin = " " + option.primary;
        switch (option.kind) {
        case Kind::flag:
            return begin + (!m_flags[i].given() ? "?" : *m_flags[i] ? "=1" : "=0");
        case Kind::number:
            return begin + (!m_numbers[i].given() ? "?" : "=" + std::to_string(*m_numbers[i]));
        case Kind::text:
            return begin + (!m_texts[i].given() ? "?" : "=" + *m_texts[i]);
        default:
            return begin + (!m_lists[i].given() ? "?" : joined(*m_lists[i]));
        }
    }

    IParser* m_parser = nullptr;
    typed::Program m_program{"p"};
    std::vector<Option> m_options;
    std::vector<typed::Handle<bool>> m_flags;
    std::vector<typed::Handle<long long>> m_numbers;
    std::vector<typed::Handle<std::string>> m_texts;
    std::vector<typed::Handle<Texts>> m_lists;
    typed::Handle<Texts> m_files;
};

template <std::size_t count>
std::string oneOf(const char* const (&texts)[count], std::mt19937& random) {
    return texts[random() % count];
}

/// Nothing that the typed face mends on purpose.
Texts randomLine(std::mt19937& random) {
    static const char* const names[] = {
        "max-count", "max-c", "m-c", "m-d",      "max-depth", "n",     "no-n", "color", "col", "no-c",
        "n-col",     "level", "lev", "no-level", "list-of-n", "l-o-n", "l",    "text",  "te",  "m",
        "m-",        "xyz",   "q-r", "no-te",    "c",         "max",   "list", "-l"};
    static const char* const values[] = {"5",   "12", "0", "x", "a,b", ",a", "007", "99999999999999999999",
                                         "a=b", "1,2"};
    Texts line;
    for (auto left = random() % 5; left != 0; --left) {
        const std::string dashes = random() % 3 == 0 ? "-" : "--";
        switch (random() % 5) {
        case 0:
            line.push_back(oneOf(values, random));
            break;
        case 1:
            line.push_back(dashes + oneOf(names, random) + "=" + oneOf(values, random));
            break;
        case 2:
            line.push_back(dashes + oneOf(names, random) + " " + oneOf(values, random));
            break;
        case 3:
            line.push_back(random() % 6 == 0 ? "--" : dashes + oneOf(names, random));
            break;
        default:
            line.push_back(dashes + oneOf(names, random));
            line.push_back(oneOf(values, random));
            break;
        }
    }
    return line;
}

std::string shown(const Texts& line) {
    std::string text;
    for (const std::string& argument : line) {
        text += "[" + argument + "]";
    }
    return text;
}

TEST(TypedAgreesWithPlain, OnRandomProgramsAndLines) {
    std::mt19937 random(7);
    unsigned accepted = 0;
    unsigned refused = 0;
    const unsigned rounds = roundsOf(400);
    for (unsigned i = 0; i < rounds; ++i) {
        Twins twins(random);
        for (int j = 0; j < 50; ++j) {
            const Texts line = randomLine(random);
            const std::string expected = twins.plain(line);
            ++(expected == "refused" ? refused : accepted);
            ASSERT_EQ(twins.typedOf(line), expected) << shown(line);
        }
    }
    EXPECT_GT(accepted, rounds * 10);
    EXPECT_GT(refused, rounds * 10);
}

} // namespace
