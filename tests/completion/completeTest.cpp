#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {
namespace {

/// The candidates, each behind a blank, and the word "files".
std::string offered(BasicParser& parser, const std::vector<const char*>& words) {
    const Completion* const completion = complete(&parser, static_cast<int>(words.size()), words.data());
    std::string list = completion->files == completeFiles ? " files" : "";
    for (unsigned i = 0; i < completion->candidateCount; ++i) {
        list.append(" ").append(completion->candidates[i].text);
    }
    release(completion);
    return list;
}

TEST(Complete, OffersNoNamesWhereTheRestIsPositional) {
    BasicParser parser(flagPositionalTakesRest);
    parser.option("verbose", "", vtNull, "");
    parser.option("file", "", vtString, "").positional();
    const struct {
        std::vector<const char*> words;
        const char* offered;
    } rows[] = {
        {{"tool", "--v"}, " --verbose"},
        {{"tool", "a.txt", "--v"}, " files"},
        {{"tool", "a.txt", "--"}, " files"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.words));
        EXPECT_EQ(offered(parser, row.words), row.offered);
    }
}

// What is behind the "=" would be a value, of this option or of another one.
TEST(Complete, OffersNoNameThatCannotBeTyped) {
    BasicParser other(0);
    other.option("list=all", "", vtNull, "");
    other.option("list", "", vtString, "");
    EXPECT_EQ(offered(other, {"tool", "--li"}), " --list=");
    BasicParser same(0);
    same.option("list=all,list", "", vtString, "");
    EXPECT_EQ(offered(same, {"tool", "--li"}), " --list=");
}

} // namespace
} // namespace tarv_3_3
