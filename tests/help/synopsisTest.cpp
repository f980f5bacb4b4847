#include "help/synopsis.h"

#include <gtest/gtest.h>

#include "options/RegisteredOptionStorage.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

/// A registry that holds one declaration.
class Declaration {
public:
    Declaration(const char* names, das_variant_type_t type) {
        m_registry.m_garbage = &m_garbage;
        m_registry.option(names, nullptr, "What it is for.", false, type, "");
    }

    IOption& refine() { return m_registry.m_options.front(); }

    std::string synopsis() const { return makeSynopsis(m_registry.m_options.front()); }

private:
    Garbage m_garbage;
    RegisteredOptionStorage m_registry;
};

TEST(Synopsis, HasTheSynonymsInReverseOrderInFrontOfTheName) {
    const struct {
        const char* names;
        const char* synopsis;
    } rows[] = {
        {"a", "-a"}, {"a,b", "-b, -a"}, {"a,b,c", "-c, -b, -a"}, {"output-file,o", "-o, -output-file"},
        {"", "-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.names);
        EXPECT_EQ(Declaration(row.names, vtNull).synopsis(), row.synopsis);
    }
}

TEST(Synopsis, HasSynonymsThatWereAddedLater) {
    Declaration declaration("a,b", vtNull);
    declaration.refine().synonym("third").synonym("fourth");
    EXPECT_EQ(declaration.synopsis(), "-fourth, -third, -b, -a");
}

TEST(Synopsis, NegatesTheNameOfASwitchOnly) {
    EXPECT_EQ(Declaration("color", vtBool).synopsis(), "-color | -no-color");
    EXPECT_EQ(Declaration("color,colour,c", vtBool).synopsis(), "-c, -colour, -color | -no-color");
}

TEST(Synopsis, MarksTheFormThatIsTheDefaultOfASwitch) {
    const struct {
        bool value;
        const char* synopsis;
    } rows[] = {
        {true, "-c, -color (default) | -no-color"},
        {false, "-c, -color | -no-color (default)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        Declaration declaration("color,c", vtBool);
        declaration.refine().defaultValue(row.value);
        EXPECT_EQ(declaration.synopsis(), row.synopsis);
    }
}

TEST(Synopsis, HasNoAllowedValuesForASwitch) {
    Declaration declaration("color", vtBool);
    declaration.refine().allowValue(true).defaultValue(true);
    EXPECT_EQ(declaration.synopsis(), "-color (default) | -no-color");
}

TEST(Synopsis, HasNothingButNamesForAnOptionWithoutValue) {
    Declaration declaration("help,h", vtNull);
    declaration.refine().allowValue("a").defaultValue("a");
    EXPECT_EQ(declaration.synopsis(), "-h, -help");
}

TEST(Synopsis, NamesTheKindOfAValue) {
    const struct {
        das_variant_type_t type;
        const char* synopsis;
    } rows[] = {
        {vtInt32, "-x=<integer>"},        {vtUInt32, "-x=<unsigned integer>"},
        {vtInt64, "-x=<64 bit integer>"}, {vtUInt64, "-x=<unsigned 64 bit or hex>"},
        {vtDouble, "-x=<double>"},        {vtString, "-x=<string>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.synopsis);
        EXPECT_EQ(Declaration("x", row.type).synopsis(), row.synopsis);
    }
}

TEST(Synopsis, ShowsTheDefaultBehindTheKind) {
    const struct {
        das_variant_type_t type;
        variant_t value;
        const char* synopsis;
    } rows[] = {
        {vtInt32, -5, "-x=<integer> (-5)"},
        {vtInt32, 0, "-x=<integer> (0)"},
        {vtUInt32, 7U, "-x=<unsigned integer> (7)"},
        {vtInt64, std::int64_t{-5000000000}, "-x=<64 bit integer> (-5000000000)"},
        {vtUInt64, std::uint64_t{255}, "-x=<unsigned 64 bit or hex> (255)"},
        {vtDouble, 0.1, "-x=<double> (0.1)"},
        {vtDouble, 1e20, "-x=<double> (1e+20)"},
        {vtString, "a b", "-x=<string> (a b)"},
        {vtString, "", "-x=<string>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.synopsis);
        Declaration declaration("x", row.type);
        declaration.refine().defaultValue(row.value);
        EXPECT_EQ(declaration.synopsis(), row.synopsis);
    }
}

// A host can only make such a kind with a cast; it has neither a name nor a text.
TEST(Synopsis, HasEmptyPlacesForAKindThatDoesNotExist) {
    Declaration declaration("x", static_cast<das_variant_type_t>(5));
    declaration.refine().defaultValue(7);
    EXPECT_EQ(declaration.synopsis(), "-x=<>");
    declaration.refine().allowValue(7).allowValue(8);
    EXPECT_EQ(declaration.synopsis(), "-x= | ");
}

TEST(Synopsis, ListsAllowedValuesInTheOrderDeclaredInsteadOfTheKind) {
    Declaration numbers("level", vtInt32);
    numbers.refine().allowValue(3).allowValue(1).allowValue(2);
    EXPECT_EQ(numbers.synopsis(), "-level=3 | 1 | 2");

    Declaration texts("when,w", vtString);
    texts.refine().allowValue("never");
    EXPECT_EQ(texts.synopsis(), "-w, -when=never");
}

TEST(Synopsis, ShowsTheDefaultBehindTheAllowedValues) {
    Declaration numbers("level", vtInt32);
    numbers.refine().allowValue(1).allowValue(2).allowValue(3).defaultValue(2);
    EXPECT_EQ(numbers.synopsis(), "-level=1 | 2 | 3 (2)");

    Declaration texts("when", vtString);
    texts.refine().allowValue("always").allowValue("never").defaultValue("");
    EXPECT_EQ(texts.synopsis(), "-when=always | never");
}

} // namespace
} // namespace tarv_3_3
