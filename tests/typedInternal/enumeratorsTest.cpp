#include "typed/enumerators.h"

#include <gtest/gtest.h>

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
}

} // namespace
