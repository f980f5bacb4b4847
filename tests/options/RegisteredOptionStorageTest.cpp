#include "options/RegisteredOptionStorage.h"

#include <gtest/gtest.h>

#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "options/findOption.h"
#include "support/CapturedLog.h"
#include "support/printVariant.h"
#include "support/virtualSlot.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

using Words = Names;
using Tags = std::set<std::string>;
using Topics = std::vector<Topic>;

const std::string zeroByte(1, '\0');

class RegisteredOptions : public testing::Test {
protected:
    RegisteredOptions() { registry.m_garbage = &garbage; }

    IOption& declare(const char* names, das_variant_type_t type = vtInt32, const char* topic = "") {
        return registry.option(names, nullptr, "", false, type, topic);
    }

    /// The first names of all records, as "a b c".
    std::string declared() const {
        std::string names;
        for (const OptionDescription& option : registry.m_options) {
            names += (names.empty() ? "" : " ") + option.primaryName();
        }
        return names;
    }

    int place(const std::string& name) const {
        unsigned long index = 0;
        return findOption(name, index, registry.m_options) == 0 ? static_cast<int>(index) : -1;
    }

    Garbage garbage;
    RegisteredOptionStorage registry;
};

TEST_F(RegisteredOptions, BeginWithNothing) {
    const RegisteredOptionStorage fresh;
    EXPECT_EQ(fresh.m_defaultTokenizer, ',');
    EXPECT_EQ(fresh.m_options.size(), 0U);
    EXPECT_EQ(fresh.m_topics.size(), 0U);
    EXPECT_EQ(fresh.m_garbage, nullptr);
    EXPECT_EQ(fresh.m_invalidOption.m_kind, Invalid);
    EXPECT_EQ(fresh.m_invalidOption.m_names, Words());
}

TEST_F(RegisteredOptions, RecordWhatIsDeclared) {
    IOption& returned = registry.option("level,l", "one,two", "How much.", false, vtUInt64, "out:Output");
    ASSERT_EQ(registry.m_options.size(), 1U);
    const OptionDescription& option = registry.m_options[0];
    EXPECT_EQ(&returned, &option);
    EXPECT_EQ(option.m_status, 0);
    EXPECT_EQ(option.m_names, (Words{"level", "l"}));
    EXPECT_EQ(option.m_tags, (Tags{"one", "two"}));
    EXPECT_EQ(option.m_topic, Topic("out", "Output"));
    EXPECT_EQ(option.m_description, "How much.");
    EXPECT_FALSE(option.m_positional);
    EXPECT_FALSE(option.m_hasDefault);
    EXPECT_EQ(option.m_kind, Option);
    EXPECT_EQ(option.m_tokenizer, ',');
    EXPECT_EQ(option.m_type, vtUInt64);
    EXPECT_EQ(option.m_default, variant_t());
    EXPECT_EQ(option.m_allowedValues.size(), 0U);
    EXPECT_EQ(option.m_garbage, &garbage);
}

TEST_F(RegisteredOptions, TagAnActionWithItsNames) {
    registry.action("build,b", "Builds.", vtNull, "");
    EXPECT_EQ(registry.m_options[0].m_kind, Action);
    EXPECT_EQ(registry.m_options[0].m_tags, (Tags{"b", "build"}));
    EXPECT_EQ(registry.m_options[0].m_description, "Builds.");
    EXPECT_EQ(registry.m_options[0].m_type, vtNull);
    registry.option("test,t", "slow,test", "", true, vtNull, "");
    EXPECT_EQ(registry.m_options[1].m_tags, (Tags{"slow", "t", "test"}));
    registry.action("end,", "", vtNull, "");
    EXPECT_EQ(registry.m_options[2].m_tags, (Tags{zeroByte, "end"}));
}

TEST_F(RegisteredOptions, TagAModifierWithItsActions) {
    registry.modifier("jobs,j", "build,test", "How many.", vtInt32, "net:Network");
    EXPECT_EQ(registry.m_options[0].m_kind, Option);
    EXPECT_EQ(registry.m_options[0].m_tags, (Tags{"build", "test"}));
    EXPECT_EQ(registry.m_options[0].m_description, "How many.");
    EXPECT_EQ(registry.m_options[0].m_type, vtInt32);
    EXPECT_EQ(registry.m_options[0].m_topic, Topic("net", "Network"));
    registry.modifier("free", nullptr, "", vtInt32, "");
    EXPECT_EQ(registry.m_options[1].m_tags, Tags());
}

TEST_F(RegisteredOptions, GiveEveryNewRecordTheDefaultTokenizer) {
    declare("a");
    registry.m_defaultTokenizer = 0;
    declare("b");
    registry.m_defaultTokenizer = ';';
    registry.action("c", "", vtNull, "");
    EXPECT_EQ(registry.m_options[0].m_tokenizer, ',');
    EXPECT_EQ(registry.m_options[1].m_tokenizer, 0);
    EXPECT_EQ(registry.m_options[2].m_tokenizer, ';');
}

TEST_F(RegisteredOptions, StayInDeclarationOrderAsTheTableGrows) {
    for (int i = 0; i < 200; ++i) {
        const std::string name = "name" + std::to_string(i);
        declare(name.c_str(), vtString, name.c_str()).allowValue(name.c_str()).defaultValue(i).tag("tag");
    }
    ASSERT_EQ(registry.m_options.size(), 200U);
    for (int i = 0; i < 200; ++i) {
        const std::string name = "name" + std::to_string(i);
        SCOPED_TRACE(name);
        const OptionDescription& option = registry.m_options[static_cast<std::size_t>(i)];
        EXPECT_EQ(option.m_names, Words{name});
        EXPECT_EQ(option.m_topic, Topic(name, ""));
        EXPECT_EQ(option.m_default, variant_t(i));
        EXPECT_EQ(option.m_allowedValues, std::vector<variant_t>{name.c_str()});
        EXPECT_EQ(option.m_tags, Tags{"tag"});
        EXPECT_EQ(option.m_status, 0);
        EXPECT_EQ(place(name), i);
    }
}

TEST_F(RegisteredOptions, RefuseTooManyNamesAndALongThirdOneWithoutAMessage) {
    const struct {
        const char* names;
        int status;
    } rows[] = {
        {"a1,b1,c1", 0},  {"a2,b2,c22", 1}, {"a3,b3,c3,d3", 1}, {"abcdef,x", 0},     {"a4,b4,", 0},
        {"a5,b5,c5,", 1}, {"a6,,b6", 0},    {"a7,b7,,c7", 1},   {"a8,b8,\u00E4", 0}, {"--a9,-b,", 0},
        {",a10", 0},      {"a b", 0},       {"a,,,b,c11", 1},   {"a12,,", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.names);
        const CapturedLog log;
        RegisteredOptionStorage fresh;
        IOption& option = fresh.option(row.names, nullptr, "", false, vtInt32, "");
        EXPECT_EQ(option.m_status, row.status);
        EXPECT_EQ(fresh.m_options.size(), row.status == 0 ? 1U : 0U);
        EXPECT_EQ(&option == &fresh.m_invalidOption, row.status == 1);
        EXPECT_EQ(log.text(), "");
    }
}

TEST_F(RegisteredOptions, MayHaveNoNames) {
    EXPECT_EQ(declare("").m_status, 0);
    EXPECT_EQ(declare("").m_status, 0);
    ASSERT_EQ(registry.m_options.size(), 2U);
    EXPECT_EQ(registry.m_options[0].m_names, Words());
}

TEST_F(RegisteredOptions, RefuseANameThatIsTakenAndTraceIt) {
    declare("verbose,v");
    const char* const duplicates[] = {"v", "verbose", "new,v", "v,new", "new,other,v"};
    for (const char* const names : duplicates) {
        SCOPED_TRACE(names);
        const CapturedLog log;
        IOption& option = declare(names);
        EXPECT_EQ(&option, &registry.m_invalidOption);
        EXPECT_EQ(option.m_status, 1);
        EXPECT_EQ(log.text(),
                  std::string("Tried to register an option with a name, which is alread registered: ") +
                      names + "\n");
    }
    EXPECT_EQ(declared(), "verbose");
    EXPECT_EQ(declare("new").m_status, 0);
    EXPECT_EQ(declare("Verbose,V").m_status, 0);
}

TEST_F(RegisteredOptions, RefuseDuplicatesAcrossActionsModifiersAndOptions) {
    registry.action("build,b", "", vtNull, "");
    EXPECT_EQ(declare("build").m_status, 1);
    EXPECT_EQ(registry.modifier("b", "build", "", vtNull, "").m_status, 1);
    EXPECT_EQ(registry.modifier("jobs", "build", "", vtInt32, "").m_status, 0);
    EXPECT_EQ(registry.action("jobs", "", vtNull, "").m_status, 1);
}

TEST_F(RegisteredOptions, RefuseANameThatASynonymTook) {
    declare("one").synonym("two");
    EXPECT_EQ(declare("two").m_status, 1);
    declare("a").synonym("b,c");
    EXPECT_EQ(declare("b").m_status, 0);
    EXPECT_EQ(declare("c").m_status, 0);
}

TEST_F(RegisteredOptions, MayRepeatANameOfTheirOwn) {
    EXPECT_EQ(declare("same,same").m_status, 0);
    EXPECT_EQ(registry.m_options[0].m_names, (Words{"same", "same"}));
}

TEST_F(RegisteredOptions, RefuseTheNegatedNamesOfASwitch) {
    declare("color,c", vtBool);
    for (const char* const names : {"no-color", "no-c", "other,no-color"}) {
        SCOPED_TRACE(names);
        const CapturedLog log;
        EXPECT_EQ(declare(names).m_status, 1);
        EXPECT_EQ(log.text(),
                  std::string("Tried to register an option with a name, which is alread registered: ") +
                      names + "\n");
    }
    EXPECT_EQ(declare("no-no-color").m_status, 0);
}

TEST_F(RegisteredOptions, TakeANegatedNameOfWhatIsNoSwitch) {
    declare("color", vtInt32);
    declare("plain", vtNull);
    EXPECT_EQ(declare("no-color").m_status, 0);
    EXPECT_EQ(declare("no-plain").m_status, 0);
}

TEST_F(RegisteredOptions, TakeASwitchWhoseNegatedNameWasThereBefore) {
    EXPECT_EQ(declare("no-color", vtInt32).m_status, 0);
    EXPECT_EQ(declare("color", vtBool).m_status, 0);
    EXPECT_EQ(place("no-color"), 0);
    EXPECT_EQ(place("color"), 1);

    EXPECT_EQ(declare("no-log", vtBool).m_status, 0);
    EXPECT_EQ(declare("log", vtBool).m_status, 0);
    EXPECT_EQ(place("no-log"), 2);
}

TEST_F(RegisteredOptions, TraceNothingWhileTheTraceIsOff) {
    std::ostringstream output;
    std::streambuf* const original = std::cout.rdbuf(output.rdbuf());
    declare("name");
    EXPECT_EQ(declare("name").m_status, 1);
    std::cout.rdbuf(original);
    EXPECT_EQ(output.str(), "");
}

TEST_F(RegisteredOptions, CutATopicAtItsFirstColon) {
    const struct {
        const char* text;
        Topic topic;
    } rows[] = {
        {"net", {"net", ""}},
        {"net:Network", {"net", "Network"}},
        {"a:b:c", {"a", "b:c"}},
        {"net:", {"net", ""}},
        {":Title", {"", "Title"}},
        {":", {"", ""}},
        {"", {"", ""}},
        {" net : Network ", {" net ", " Network "}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        RegisteredOptionStorage fresh;
        fresh.option("name", nullptr, "", false, vtInt32, row.text);
        EXPECT_EQ(fresh.m_topics, Topics{row.topic});
        EXPECT_EQ(fresh.m_options[0].m_topic, row.topic);
    }
}

TEST_F(RegisteredOptions, KeepTheFirstTitleOfATopic) {
    declare("a", vtInt32, "net:Network");
    declare("b", vtInt32, "net:Other");
    declare("c", vtInt32, "net");
    declare("d", vtInt32, "Net:Capital");
    declare("e", vtInt32, "");
    declare("f", vtInt32, "bare");
    declare("g", vtInt32, "bare:Too late");
    declare("h", vtInt32, "net:Network");
    EXPECT_EQ(registry.m_topics, (Topics{{"net", "Network"}, {"Net", "Capital"}, {"", ""}, {"bare", ""}}));
    for (const std::size_t i : {0U, 1U, 2U, 7U}) {
        EXPECT_EQ(registry.m_options[i].m_topic, Topic("net", "Network"));
    }
    EXPECT_EQ(registry.m_options[3].m_topic, Topic("Net", "Capital"));
    EXPECT_EQ(registry.m_options[6].m_topic, Topic("bare", ""));
}

TEST_F(RegisteredOptions, RegisterTheTopicOfARefusedDeclarationToo) {
    declare("taken");
    declare("a,b,cde", vtInt32, "net:Network");
    declare("taken", vtInt32, "file:Files");
    registry.action("a,b,c,d", "", vtNull, "act:Actions");
    registry.modifier("taken", "x", "", vtNull, "mod:Modifiers");
    EXPECT_EQ(
        registry.m_topics,
        (Topics{{"", ""}, {"net", "Network"}, {"file", "Files"}, {"act", "Actions"}, {"mod", "Modifiers"}}));
    EXPECT_EQ(declared(), "taken");
    declare("later", vtInt32, "net:Other");
    EXPECT_EQ(registry.m_options[1].m_topic, Topic("net", "Network"));
}

TEST_F(RegisteredOptions, MarkThePlaceholderAtEveryDeclaration) {
    declare("name");
    EXPECT_EQ(registry.m_invalidOption.m_status, 3);
    declare("name");
    EXPECT_EQ(registry.m_invalidOption.m_status, 1);
    declare("other");
    EXPECT_EQ(registry.m_invalidOption.m_status, 3);
    declare("a,b,c,d");
    EXPECT_EQ(registry.m_invalidOption.m_status, 1);
}

TEST_F(RegisteredOptions, KeepWhatIsBuiltOnThePlaceholderApart) {
    declare("name");
    declare("name").synonym("lost").defaultValue(5).allowValue(5).positional().tag("tag").tokenize(';');
    EXPECT_EQ(declared(), "name");
    EXPECT_EQ(registry.m_options[0].m_names, Words{"name"});
    EXPECT_EQ(place("lost"), -1);
    EXPECT_EQ(declare("lost").m_status, 0);
    EXPECT_FALSE(registry.m_options[1].m_hasDefault);
    EXPECT_EQ(registry.m_options[1].m_tags, Tags());

    IOption& again = declare("name");
    const OptionDescription& placeholder = registry.m_invalidOption;
    EXPECT_EQ(&again, &placeholder);
    EXPECT_EQ(placeholder.m_kind, Invalid);
    EXPECT_EQ(placeholder.m_names, Words{"lost"});
    EXPECT_EQ(placeholder.m_default, variant_t(5));
    EXPECT_EQ(placeholder.m_tokenizer, ';');
    EXPECT_TRUE(placeholder.m_positional);
}

TEST_F(RegisteredOptions, RefuseNullNames) {
    const CapturedLog log;
    EXPECT_EQ(registry.option(nullptr, nullptr, "", false, vtInt32, "net").m_status, 1);
    EXPECT_EQ(declared(), "");
    EXPECT_EQ(registry.m_topics, (Topics{{"net", ""}}));
    EXPECT_EQ(log.text(), "");
}

TEST_F(RegisteredOptions, TakeANullDescriptionAndTopicForEmptyOnes) {
    EXPECT_EQ(registry.option("name", nullptr, nullptr, false, vtInt32, nullptr).m_status, 0);
    EXPECT_EQ(registry.m_options[0].m_description, "");
    EXPECT_EQ(registry.m_options[0].m_topic, Topic("", ""));
}

TEST_F(RegisteredOptions, AreCopiedOutOfTheMemoryOfTheRegistry) {
    declare("level,l");
    const OptionDescription& declaredOne = registry.m_options.front();
    OptionDescription assigned;
    assigned = declaredOne;
    for (const OptionDescription& copy : {OptionDescription(declaredOne), assigned}) {
        EXPECT_EQ(copy.m_names, (Words{"level", "l"}));
        EXPECT_EQ(copy.m_names.get_allocator().arena(), nullptr);
        EXPECT_EQ(copy.m_description.get_allocator().arena(), nullptr);
    }
}

TEST_F(RegisteredOptions, DeclareActionsAndModifiersThroughTheVirtualOption) {
    class Recording : public RegisteredOptionStorage {
    public:
        IOption& option(const char* names, const char* tags, const char* description, bool isAction,
                        das_variant_type_t type, const char* topic) override {
            calls += std::string(names) + " tags " + (tags != nullptr ? tags : "null") + " " + description +
                     (isAction ? " action " : " option ") + std::to_string(type) + " " + topic + "; ";
            return m_invalidOption;
        }

        std::string calls;
    };
    Recording recording;
    EXPECT_EQ(&recording.action("names", "description", vtInt64, "topic"), &recording.m_invalidOption);
    EXPECT_EQ(&recording.modifier("names", "tags", "description", vtDouble, "topic"),
              &recording.m_invalidOption);
    EXPECT_EQ(recording.calls, "names tags null description action 8 topic; "
                               "names tags tags description option 11 topic; ");
    EXPECT_EQ(recording.m_topics, Topics());
}

TEST_F(RegisteredOptions, HaveTheirOperationsInTheSlotsOfTheBinaryInterface) {
    EXPECT_EQ(virtualSlot(&RegisteredOptionStorage::option), 0U);
    EXPECT_EQ(virtualSlot(&RegisteredOptionStorage::action), 1U);
    EXPECT_EQ(virtualSlot(&RegisteredOptionStorage::modifier), 2U);
}

TEST(ValidateName, LimitsTheNumberOfNamesAndTheLengthOfTheThird) {
    const struct {
        Words names;
        int status;
    } rows[] = {
        {{}, 0},
        {{""}, 0},
        {{"a"}, 0},
        {{"-odd name", "x"}, 0},
        {{"long", "longer"}, 0},
        {{"a", "b", ""}, 0},
        {{"a", "b", "c"}, 0},
        {{"a", "b", "cc"}, 0},
        {{"a", "b", "ccc"}, 1},
        {{"a", "b", "\u2013"}, 1},
        {{"a", "a", "a"}, 0},
        {{"a", "b", "c", "d"}, 1},
        {{"a", "b", "c", "d", "e"}, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.names));
        EXPECT_EQ(validateName(row.names), row.status);
    }
}

} // namespace
} // namespace tarv_3_3
