#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "options/RegisteredOptionStorage.h"
#include "options/WantedNames.h"
#include "options/findOption.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

class RegisteredOptionsFind : public testing::Test {
protected:
    RegisteredOptionsFind() { registry.m_garbage = &garbage; }

    IOption& declare(const char* names, das_variant_type_t type = vtInt32) {
        return registry.option(names, nullptr, "", false, type, "");
    }

    /// The place of the record that is found, -1 for none.
    int place(const char* name) {
        constexpr unsigned long untouched = 77;
        unsigned long index = untouched;
        const int status = registry.find(name, index);
        EXPECT_EQ(status, index == untouched ? 1 : 0);
        return index == untouched ? -1 : static_cast<int>(index);
    }

    Garbage garbage;
    RegisteredOptionStorage registry;
};

TEST_F(RegisteredOptionsFind, FindsNothingInAnEmptyTable) {
    EXPECT_EQ(place("name"), -1);
    EXPECT_EQ(place("no-name"), -1);
    EXPECT_EQ(place(""), -1);
}

TEST_F(RegisteredOptionsFind, FindsWholeNamesAndTheNegatedOnesOfSwitches) {
    declare("verbose,v,ld");
    declare("color,c", vtBool);
    declare("Color", vtNull);
    declare("no-log", vtBool);
    for (const WantedName& row : wantedNames) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(place(row.name), row.place);
    }
}

TEST_F(RegisteredOptionsFind, FindsTheFirstOfANameAndTheNegatedOneOfASwitch) {
    declare("no-color");
    declare("color", vtBool);
    declare("log", vtBool).synonym("other");
    declare("last").synonym("no-other");
    EXPECT_EQ(place("no-color"), 0);
    EXPECT_EQ(place("no-no-color"), -1);
    EXPECT_EQ(place("no-other"), 2);
}

TEST_F(RegisteredOptionsFind, FindsASynonymThatCameAfterTheFirstLook) {
    declare("first");
    IOption& last = declare("last", vtBool);
    EXPECT_EQ(place("late"), -1);
    last.synonym("late");
    EXPECT_EQ(place("late"), 1);
    EXPECT_EQ(place("no-late"), 1);
    last.synonym("later");
    declare("behind");
    EXPECT_EQ(place("later"), 1);
    EXPECT_EQ(place("behind"), 2);
}

TEST_F(RegisteredOptionsFind, FindsASynonymOfARecordWithFewerNamesThanTheOneBefore) {
    declare("first,one,x");
    declare("second").synonym("two");
    EXPECT_EQ(place("two"), 1);
    EXPECT_EQ(declare("two").m_status, 1);
}

TEST_F(RegisteredOptionsFind, FindsEvenASynonymThatCameBehindTheNextDeclaration) {
    IOption& first = declare("first", vtBool);
    declare("second");
    first.synonym("late");
    EXPECT_EQ(place("late"), 0);
    EXPECT_EQ(place("no-late"), 0);
    EXPECT_EQ(place("later"), -1);
}

TEST_F(RegisteredOptionsFind, FindsTheFirstRecordOfANameThatSynonymsRepeat) {
    declare("number").synonym("x");
    declare("switch", vtBool).synonym("x");
    declare("again", vtBool).synonym("number");
    EXPECT_EQ(place("x"), 0);
    EXPECT_EQ(place("no-x"), 1);
    EXPECT_EQ(place("number"), 0);
    EXPECT_EQ(place("no-number"), 2);
    EXPECT_EQ(declare("no-x").m_status, 1);
    EXPECT_EQ(declare("x").m_status, 1);
    EXPECT_EQ(declare("y,number").m_status, 1);
    EXPECT_EQ(declare("y").m_status, 0);
    EXPECT_EQ(place("y"), 3);
}

TEST_F(RegisteredOptionsFind, RefusesTheNegatedNameOfASwitchWhoseSynonymAnotherRecordRepeats) {
    declare("switch", vtBool).synonym("x");
    declare("number").synonym("x");
    EXPECT_EQ(place("no-x"), 0);
    EXPECT_EQ(declare("no-x").m_status, 1);
}

TEST_F(RegisteredOptionsFind, FindsTheFirstRecordOfARepeatedNameBehindSynonymsOfTheirOwn) {
    declare("number").synonym("x");
    declare("switch", vtBool).synonym("x").synonym("own");
    declare("last").synonym("another");
    EXPECT_EQ(place("x"), 0);
    EXPECT_EQ(place("no-x"), 1);
    EXPECT_EQ(declare("no-x").m_status, 1);
}

TEST_F(RegisteredOptionsFind, FindsNoNameOfARefusedDeclarationUntilItIsDeclared) {
    declare("taken");
    EXPECT_EQ(declare("free,taken", vtBool).m_status, 1);
    EXPECT_EQ(place("free"), -1);
    EXPECT_EQ(place("no-free"), -1);
    EXPECT_EQ(declare("free", vtBool).m_status, 0);
    EXPECT_EQ(place("free"), 1);
    EXPECT_EQ(place("no-free"), 1);
}

// Names of three letters and their negations, so that every second one is repeated.
TEST_F(RegisteredOptionsFind, FindsWhatAWalkOverTheTableFinds) {
    std::mt19937 random(1);
    const auto anyName = [&] {
        std::string name = random() % 3 == 0 ? "no-" : "";
        for (auto letters = random() % 3; letters != 0; --letters) {
            name += static_cast<char>('a' + random() % 3);
        }
        return name;
    };
    for (int table = 0; table < 200; ++table) {
        RegisteredOptionStorage some;
        some.m_garbage = &garbage;
        for (int i = 0; i < 12; ++i) {
            const std::string name = anyName();
            unsigned long index = 77;
            const bool isTaken = findOption(name, index, some.m_options) == 0;
            IOption& declared =
                some.option(name.c_str(), nullptr, "", false, random() % 2 == 0 ? vtBool : vtInt32, "");
            // A text without a name is never taken.
            ASSERT_EQ(declared.m_status, isTaken && !name.empty() ? 1 : 0) << name;
            for (auto synonyms = random() % 3; synonyms != 0; --synonyms) {
                declared.synonym(anyName().c_str());
            }
            for (int look = 0; look < 20; ++look) {
                const std::string wanted = anyName();
                unsigned long found = 77;
                unsigned long expected = 77;
                const int status = some.find(wanted, found);
                ASSERT_EQ(status, findOption(wanted, expected, some.m_options)) << wanted;
                ASSERT_EQ(found, expected) << wanted;
                std::size_t first = 0;
                const auto hasName = [&](const OptionDescription& option) {
                    return std::count(option.m_names.begin(), option.m_names.end(), wanted) != 0;
                };
                while (first < some.m_options.size() && !hasName(some.m_options[first])) {
                    ++first;
                }
                ASSERT_EQ(some.indexOfExactName(wanted), first) << wanted;
            }
        }
    }
}

TEST_F(RegisteredOptionsFind, FindsAnExactNameAlsoWhereTheIndexLacksIt) {
    IOption& early = declare("early", vtBool);
    early.synonym("known");
    declare("late");
    early.synonym("unknown");
    EXPECT_EQ(registry.indexOfExactName("known"), 0U);
    EXPECT_EQ(registry.indexOfExactName("late"), 1U);
    EXPECT_EQ(registry.indexOfExactName("unknown"), 0U);
    EXPECT_EQ(registry.indexOfExactName("no-early"), 2U);
    EXPECT_EQ(registry.indexOfExactName("lat"), 2U);
    EXPECT_EQ(registry.indexOfExactName(""), 2U);
}

TEST_F(RegisteredOptionsFind, RefusesTheNegationOfASwitchWithAnEmptyName) {
    declare(",x", vtBool);
    EXPECT_EQ(place(""), 0);
    EXPECT_EQ(place("no-"), 0);
    EXPECT_EQ(place("no"), -1);
    EXPECT_EQ(declare("no-").m_status, 1);
    EXPECT_EQ(declare("no").m_status, 0);
}

TEST_F(RegisteredOptionsFind, FindsTheSynonymsOfARecordWithoutNames) {
    IOption& nameless = declare("");
    EXPECT_EQ(place("named"), -1);
    nameless.synonym("named");
    EXPECT_EQ(place("named"), 0);
    EXPECT_EQ(declare("named").m_status, 1);
}

} // namespace
} // namespace tarv_3_3
