#include "typed/enumerators.h"

#include <gtest/gtest.h>

#include "tarv_3_3/typed.h"

namespace {

using namespace tarv_3_3::typed::engine;

using Names = std::vector<std::string>;

TEST(Enumerators, AreNamedFromTheSpellingOfBothCompilers) {
    EXPECT_EQ(
        enumeratorNames("constexpr const char* spelled() [with E = {anonymous}::X<int, 3>::I; E ...tarvValues"
                        " = {<unnamed>::X<int, 3>::I::first, <unnamed>::X<int, 3>::I::us_letter}]"),
        (Names{"first", "us-letter"}));
    EXPECT_EQ(enumeratorNames("const char *spelled() [E = (anonymous namespace)::Paper, tarvValues = "
                              "<(anonymous namespace)::Paper::a4, (anonymous namespace)::Paper::default_>]"),
              (Names{"a4", "default"}));
    EXPECT_EQ(enumeratorNames("[with E = E; E ...tarvValues = {one}]"), (Names{"one"}));
    EXPECT_EQ(enumeratorNames("[with E = E; E ...tarvValues = {one, TWO$3, größe, azAZ09}]"),
              (Names{"one", "TWO$3", "größe", "azAZ09"}));
}

TEST(Enumerators, ASpellingWithoutBlanksOrCutShortIsReadAsFarAsItGoes) {
    EXPECT_EQ(enumeratorNames("tarvValues = {one,two}"), (Names{"one", "two"}));
    EXPECT_EQ(enumeratorNames("tarvValues = {one, two"), (Names{"one"}));
    EXPECT_EQ(enumeratorNames("tarvValues = "), Names());
}

enum class Two { a, b };
enum Letters : unsigned char { x, yy, zzz };
enum class Last { last = 127 };
enum class Gap { zero, one, three = 3 };
enum class Negative { minus = -1, zero = 0 };
enum class Nothing {};
enum class Ascii { azAZ09_ };
enum class Accented { größe };
template <class T, T... values>
struct Holder {
    enum class Held { in, out };
};

template <class E>
constexpr tarv_3_3::typed::values::Spelled spelledUpFrom0() {
    namespace values = tarv_3_3::typed::values;
    return values::scan(values::spelling<E, 0>(values::FirstValues<128>()));
}
template <class E>
constexpr int countNegative() {
    namespace values = tarv_3_3::typed::values;
    return values::scan(values::spelling<E, -128>(values::FirstValues<128>())).named;
}

TEST(Enumerators, TheCompilerSaysWhichValuesHaveNames) {
    const struct {
        const char* title;
        tarv_3_3::typed::values::Spelled found;
        int named;
        int lastNamed;
        int longest;
    } cases[] = {
        {"Two", spelledUpFrom0<Two>(), 2, 1, 1},
        {"Letters", spelledUpFrom0<Letters>(), 3, 2, 3},
        {"Last", spelledUpFrom0<Last>(), 1, 127, 4},
        {"Gap", spelledUpFrom0<Gap>(), 3, 3, 5},
        {"Negative", spelledUpFrom0<Negative>(), 1, 0, 4},
        {"Nothing", spelledUpFrom0<Nothing>(), 0, -1, 0},
        {"Ascii", spelledUpFrom0<Ascii>(), 1, 0, 7},
        {"Accented", spelledUpFrom0<Accented>(), 1, 0, 7},
#if !defined(__clang__)
        // Clang gives the values of a nested enumeration of a template no names.
        {"Held", spelledUpFrom0<Holder<int, 3, 4>::Held>(), 2, 1, 3},
#endif
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.title);
        EXPECT_EQ(each.named, each.found.named);
        EXPECT_EQ(each.lastNamed, each.found.lastNamed);
        EXPECT_EQ(each.longest, each.found.longest);
    }
    EXPECT_EQ(1, countNegative<Negative>());
    EXPECT_EQ(0, countNegative<Two>());
}

} // namespace
