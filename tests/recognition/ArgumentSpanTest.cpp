#include "recognition/ArgumentSpan.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarv_3_3 {
namespace {

using Arguments = std::vector<std::string>;

TEST(ArgumentSpan, HasAFrontAndPerhapsANextArgument) {
    const Arguments arguments = {"a", "b"};
    const internal::ArgumentSpan two = {arguments.data(), arguments.data() + 2};
    EXPECT_EQ(two.front(), "a");
    EXPECT_EQ(two.next(), &arguments[1]);
    const internal::ArgumentSpan last = {arguments.data() + 1, arguments.data() + 2};
    EXPECT_EQ(last.front(), "b");
    EXPECT_EQ(last.next(), nullptr);
}

TEST(ConsumedArguments, RemovesWhatWasConsumedAtItsEnd) {
    const struct {
        std::size_t count;
        Arguments left;
    } rows[] = {
        {0, {"a", "b", "c"}},
        {1, {"b", "c"}},
        {3, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        Arguments arguments = {"a", "b", "c"};
        {
            internal::ConsumedArguments consumed(arguments);
            consumed.count = row.count;
            EXPECT_EQ(arguments.size(), 3U);
        }
        EXPECT_EQ(arguments, row.left);
    }
}

TEST(ConsumedArguments, ShowsWhatIsLeft) {
    Arguments arguments = {"a", "b", "c"};
    internal::ConsumedArguments consumed(arguments);
    EXPECT_EQ(consumed.left().first, arguments.data());
    consumed.count = 2;
    EXPECT_EQ(consumed.left().front(), "c");
    EXPECT_EQ(consumed.left().next(), nullptr);
    EXPECT_EQ(consumed.left().end, arguments.data() + 3);
}

// A parse may throw when memory is exhausted; what was bound by then stays consumed.
TEST(ConsumedArguments, RemovesWhatWasConsumedWhenSomethingIsThrown) {
    Arguments arguments = {"a", "b"};
    try {
        internal::ConsumedArguments consumed(arguments);
        consumed.count = 1;
        throw 0;
    } catch (int) {
        EXPECT_EQ(arguments, Arguments({"b"}));
    }
}

} // namespace
} // namespace tarv_3_3
