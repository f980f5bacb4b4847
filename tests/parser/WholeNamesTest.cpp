#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "support/roundsOf.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {
namespace {

std::vector<std::string> wordsOf(const std::string& name) {
    std::vector<std::string> words(1);
    for (const char byte : name) {
        if (byte == '-') {
            words.emplace_back();
        } else {
            words.back() += byte;
        }
    }
    return words;
}

/// 2 for every equal word, 1 for every word that is begun; 0 unless all of them are one or the other.
int scoreOf(const std::string& typed, const std::string& candidate) {
    const std::vector<std::string> words = wordsOf(typed);
    const std::vector<std::string> whole = wordsOf(candidate);
    if (words.size() != whole.size()) {
        return 0;
    }
    int score = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (whole[i].compare(0, words[i].size(), words[i]) != 0) {
            return 0;
        }
        score += whole[i] == words[i] ? 2 : 1;
    }
    return score;
}

struct Declared {
    std::vector<std::string> names;
    bool isSwitch;
};

/// What becomes of "--TYPED": "option=1", "option=0", "option=x" for one that needs a value, "ambiguous: "
/// with the candidates, or "unknown".
std::string expected(const std::string& typed, const std::vector<Declared>& table) {
    int best = 0;
    std::vector<std::string> candidates;
    const Declared* found = nullptr;
    const auto look = [&](const Declared& option, const std::string& candidate) {
        const int score = scoreOf(typed, candidate);
        if (score > best) {
            candidates.clear();
            best = score;
        }
        if (score > 0 && score == best) {
            candidates.push_back(candidate);
            found = &option;
        }
    };
    for (const Declared& option : table) {
        for (const std::string& name : option.names) {
            look(option, name);
            if (option.isSwitch) {
                look(option, "no-" + name);
            }
        }
    }
    if (candidates.empty()) {
        return "unknown";
    }
    if (candidates.size() > 1) {
        std::string line = "ambiguous:";
        for (const std::string& candidate : candidates) {
            line += " '" + candidate + "'";
        }
        return line;
    }
    const bool isOff = candidates.front().compare(0, 3, "no-") == 0;
    return found->names.front() + (!found->isSwitch ? "=x" : isOff ? "=0" : "=1");
}

/// Records what is taken. Between two events it may declare something.
class Recorder final : public EventHandler {
public:
    bool onOptionParse(const char* name) override {
        taken = name;
        return true;
    }
    bool onValueParse(const char*, const Value& value) override {
        taken += std::string("=") + value.text;
        return true;
    }
    std::string taken;
};

std::string withoutCommas(std::string list) {
    list.erase(std::remove(list.begin(), list.end(), ','), list.end());
    return list;
}

class WholeNames : public ::testing::Test {
protected:
    std::string random(std::size_t maxWords) {
        static const char* const words[] = {"no", "n", "a",    "ab",       "abc",
                                            "b",  "",  "\xE4", "\xE4\xF6", "feature"};
        std::string name = words[pick(10)];
        for (std::size_t i = pick(maxWords); i > 0; --i) {
            name += std::string("-") + words[pick(10)];
        }
        return name;
    }

    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine);
    }

    void declare(BasicParser& parser, std::vector<Declared>& table) {
        const std::string name = random(3);
        const bool isSwitch = pick(2) == 0;
        IOption& option = parser.option(name.c_str(), "", isSwitch ? vtBool : vtString, "");
        if (name.empty() || option.m_status != declarationStored) {
            return;
        }
        option.tokenize(0);
        table.push_back({{name}, isSwitch});
        for (std::size_t i = pick(3); i > 0; --i) {
            refine(option, table);
        }
    }

    void refine(IOption& last, std::vector<Declared>& table) {
        const std::string repeated = table[pick(table.size())].names.front();
        const std::string name = pick(3) == 0 ? repeated : random(3);
        last.synonym(name.c_str());
        table.back().names.push_back(name);
    }

    /// A name of the table as it is, negated, or cut short, or some other one.
    std::string typed(const std::vector<Declared>& table) {
        std::string name = pick(4) == 0 ? random(4) : table[pick(table.size())].names.front();
        if (pick(3) == 0) {
            name.insert(0, "no-");
        }
        if (pick(4) == 0) {
            name.resize(pick(name.size() + 1));
        }
        return name;
    }

    std::string taken(BasicParser& parser, Recorder& recorder, const std::string& name) {
        const std::string argument = "--" + name;
        const char* const arguments[] = {"program", argument.c_str(), "x"};
        recorder.taken.clear();
        const int status = parser.parseArgsVector(3, arguments, nullptr);
        if (status == parseOk) {
            return recorder.taken.empty() ? "unknown" : recorder.taken;
        }
        const std::string error = parser.getErrorDesc();
        const std::string lead = ", could be: ";
        return "ambiguous: " +
               withoutCommas(error.substr(std::min(error.find(lead) + lead.size(), error.size())));
    }

    std::mt19937 engine{20};
};

// An empty name, or one that begins with a dash, is refused whatever it fits.
TEST_F(WholeNames, AreTakenAsTheWalkOverTheTableTakesThem) {
    const unsigned rounds = roundsOf(1500);
    for (unsigned round = 0; round < rounds; ++round) {
        BasicParser parser(0);
        Recorder recorder;
        parser.addHandler(&recorder);
        std::vector<Declared> table;
        for (std::size_t i = 1 + pick(8); i > 0; --i) {
            declare(parser, table);
        }
        for (int i = 0; i < 20 && !table.empty(); ++i) {
            const std::string name = typed(table);
            if (!name.empty() && name.front() != '-') {
                ASSERT_EQ(taken(parser, recorder, name), expected(name, table)) << round << " " << name;
            }
        }
    }
}

/// Declares, or adds a synonym, when it is told of the option "first".
class DeclaringRecorder final : public EventHandler {
public:
    bool onOptionParse(const char* name) override {
        taken.emplace_back(name);
        if (taken.size() == 1) {
            declare();
        }
        return true;
    }
    bool onValueParse(const char*, const Value& value) override {
        taken.back() += std::string("=") + value.text;
        return true;
    }
    void (*m_declare)(BasicParser& parser, IOption& last) = nullptr;
    BasicParser* parser = nullptr;
    IOption* last = nullptr;
    std::vector<std::string> taken;

private:
    void declare() { m_declare(*parser, *last); }
};

TEST(WholeNamesInTheMiddleOfAParse, AreThoseThatAreDeclaredThen) {
    const struct {
        const char* change;
        void (*declare)(BasicParser& parser, IOption& last);
        const char* argument;
        int status;
        const char* taken;
    } rows[] = {
        {"nothing", [](BasicParser&, IOption&) {}, "--no-last", 0, "last=0"},
        {"a new name", [](BasicParser& parser, IOption&) { parser.option("later", "", vtBool, ""); },
         "--later", 0, "later=1"},
        {"a new switch", [](BasicParser& parser, IOption&) { parser.option("later", "", vtBool, ""); },
         "--no-later", 0, "later=0"},
        {"the same name", [](BasicParser&, IOption& last) { last.synonym("last"); }, "--last", 2, ""},
        {"the name of another", [](BasicParser&, IOption& last) { last.synonym("first"); }, "--first", 2, ""},
        {"the negated name", [](BasicParser&, IOption& last) { last.synonym("no-last"); }, "--no-last", 2,
         ""},
        {"one more name", [](BasicParser&, IOption& last) { last.synonym("more"); }, "--no-more", 0,
         "last=0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.change);
        BasicParser parser(0);
        DeclaringRecorder recorder;
        parser.addHandler(&recorder);
        parser.option("first", "", vtBool, "");
        recorder.last = &parser.option("last", "", vtBool, "");
        recorder.parser = &parser;
        recorder.m_declare = row.declare;
        const char* const arguments[] = {"program", "--first", row.argument};
        EXPECT_EQ(parser.parseArgsVector(3, arguments, nullptr), row.status);
        ASSERT_GE(recorder.taken.size(), 1U);
        EXPECT_EQ(recorder.taken.size() > 1 ? recorder.taken[1] : "", row.taken);
    }
}

} // namespace
} // namespace tarv_3_3
