#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {
namespace {

TEST(Complete, OffersNoNamesWhereTheRestIsPositional) {
    BasicParser parser(flagPositionalTakesRest);
    parser.option("verbose", "", vtNull, "");
    parser.option("file", "", vtString, "").positional();
    const struct {
        std::vector<const char*> words;
        std::string offered;
    } rows[] = {
        {{"tool", "--v"}, "--verbose"},
        {{"tool", "a.txt", "--v"}, "files"},
        {{"tool", "a.txt", "--"}, "files"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.words));
        const Completion* const completion =
            complete(&parser, static_cast<int>(row.words.size()), row.words.data());
        std::string offered = completion->files == completeFiles ? "files" : "";
        for (unsigned i = 0; i < completion->candidateCount; ++i) {
            offered += completion->candidates[i].text;
        }
        EXPECT_EQ(offered, row.offered);
        release(completion);
    }
}

} // namespace
} // namespace tarv_3_3
