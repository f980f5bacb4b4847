#include "recognition/ArgumentWindow.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

using Arguments = std::vector<std::string>;

TEST(ArgumentWindow, ShowsTheFrontArgumentAndTheOneBehindIt) {
    const struct {
        Arguments all;
        bool hasFront;
        Arguments shown;
    } rows[] = {
        {{}, false, {}},
        {{"a"}, true, {"a"}},
        {{"a", "b"}, true, {"a", "b"}},
        {{"a", "b", "c"}, true, {"a", "b"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.all.size());
        Arguments arguments = row.all;
        ArgumentWindow window(arguments);
        EXPECT_EQ(window.fill(), row.hasFront);
        EXPECT_EQ(window.arguments(), row.shown);
    }
}

TEST(ArgumentWindow, MovesOnBehindWhatIsRemoved) {
    Arguments all = {"a", "b", "c", "d"};
    ArgumentWindow window(all);
    window.fill();
    window.arguments().erase(window.arguments().begin());
    EXPECT_TRUE(window.fill());
    EXPECT_EQ(window.arguments(), (Arguments{"b", "c"}));
    window.arguments().clear();
    EXPECT_TRUE(window.fill());
    EXPECT_EQ(window.arguments(), (Arguments{"d"}));
    window.arguments().clear();
    EXPECT_FALSE(window.fill());
}

TEST(ArgumentWindow, TakesNoMoreWhereNothingIsRemoved) {
    Arguments all = {"a", "b", "c", "d"};
    ArgumentWindow window(all);
    window.fill();
    EXPECT_TRUE(window.fill());
    EXPECT_EQ(window.arguments(), (Arguments{"a", "b"}));
}

TEST(ArgumentWindow, ShowsAllThatIsLeftWhenAsked) {
    Arguments all = {"a", "b", "c", "d"};
    ArgumentWindow window(all);
    window.fill();
    window.arguments().erase(window.arguments().begin());
    window.fillWithRest();
    EXPECT_EQ(window.arguments(), (Arguments{"b", "c", "d"}));
    EXPECT_TRUE(window.fill());
    EXPECT_EQ(window.arguments(), (Arguments{"b", "c", "d"}));
}

TEST(ArgumentWindow, LeavesWhatWasNotRemovedInItsPlace) {
    const struct {
        std::size_t removed;
        Arguments left;
    } rows[] = {
        {0, {"a", "b", "c", "d"}},
        {1, {"b", "c", "d"}},
        {2, {"c", "d"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.removed);
        Arguments arguments = {"a", "b", "c", "d"};
        {
            ArgumentWindow window(arguments);
            window.fill();
            for (std::size_t i = 0; i < row.removed; ++i) {
                window.arguments().erase(window.arguments().begin());
            }
        }
        EXPECT_EQ(arguments, row.left);
    }
}

} // namespace
} // namespace tarv_3_3
