#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <memory>
#include <string>

#include "parser/BasicParser.h"
#include "tarv_3_3/description.h"

using namespace tarv_3_3;

namespace {

/// The tools whose option names are listed beside the benchmark, which made the words as well.
std::map<std::string, std::unique_ptr<BasicParser>> declareTools() {
    std::map<std::string, std::unique_ptr<BasicParser>> tools;
    std::ifstream file(TARV_SUGGESTION_NAMES);
    for (std::string tool, name; file >> tool >> name;) {
        std::unique_ptr<BasicParser>& parser = tools[tool];
        if (!parser) {
            parser = std::make_unique<BasicParser>(0);
        }
        parser->option(name.c_str(), "", vtNull, "");
    }
    return tools;
}

struct Counts {
    int all = 0;
    /// Words whose meant name was among those shown.
    int right = 0;
    /// Words for which only other names were shown.
    int wrong = 0;
};

std::map<std::string, Counts> countSuggestions() {
    const auto tools = declareTools();
    std::map<std::string, Counts> counts;
    std::ifstream file("description/misspelt.txt");
    for (std::string row, tool, typed, meant; file >> row >> tool >> typed >> meant;) {
        const char* const sentence = suggest(tools.at(tool).get(), ("--" + typed).c_str());
        const bool isShown = sentence != nullptr;
        const bool isRight = isShown && std::string(sentence).find("'--" + meant + "'") != std::string::npos;
        Counts& count = counts[row];
        ++count.all;
        count.right += isRight ? 1 : 0;
        count.wrong += isShown && !isRight ? 1 : 0;
    }
    return counts;
}

TEST(SuggestionsOfTools, AreRightAsOftenAsUsersMayExpect) {
    const struct {
        const char* row;
        double leastRight;
        double mostWrong;
    } bars[] = {{"one-edit", 0.97, 0.005},
                {"cut-and-one-edit", 0.93, 0.005},
                {"word-left-out", 0.70, 0.10},
                {"nonsense", 0, 0.015}};
    const std::map<std::string, Counts> counts = countSuggestions();
    ASSERT_EQ(counts.size(), 4U);
    for (const auto& bar : bars) {
        SCOPED_TRACE(bar.row);
        const Counts& count = counts.at(bar.row);
        EXPECT_EQ(count.all, 400);
        EXPECT_GE(count.right, bar.leastRight * count.all);
        EXPECT_LE(count.wrong, bar.mostWrong * count.all);
    }
}

} // namespace
