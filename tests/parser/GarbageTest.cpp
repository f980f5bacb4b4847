#include "tarv_3_3/internal/Garbage.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "support/virtualSlot.h"

namespace tarv_3_3 {
namespace {

TEST(Garbage, SharesOneCopyOfEqualTexts) {
    Garbage garbage;
    const char first[] = "text";
    const char second[] = "text";
    const char* const kept = garbage.init(first);
    EXPECT_EQ(garbage.init(second), kept);
    EXPECT_EQ(garbage.init(kept), kept);
    EXPECT_STREQ(kept, "text");
}

TEST(Garbage, KeepsACopy) {
    Garbage garbage;
    char source[] = "text";
    const char* const kept = garbage.init(source);
    EXPECT_NE(kept, source);
    source[0] = 'n';
    EXPECT_STREQ(kept, "text");
    EXPECT_STREQ(garbage.init(source), "next");
}

TEST(Garbage, TellsTextsApartByEveryByte) {
    Garbage garbage;
    const std::vector<std::string> texts = {"", " ", "a", "A", "ab", "a ", "\xFF", "\xC3\xA4"};
    std::vector<const char*> kept;
    for (const std::string& text : texts) {
        kept.push_back(garbage.init(text.c_str()));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(texts[i]);
        EXPECT_EQ(kept[i], texts[i]);
        EXPECT_EQ(garbage.init(texts[i].c_str()), kept[i]);
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_NE(kept[i], kept[other]);
        }
    }
}

TEST(Garbage, YieldsAStaticEmptyTextForNull) {
    Garbage garbage;
    Garbage other;
    EXPECT_STREQ(garbage.init(nullptr), "");
    EXPECT_EQ(garbage.init(nullptr), other.init(nullptr));
}

TEST(Garbage, KeepsEveryPointerValidAsItGrows) {
    Garbage garbage;
    std::vector<const char*> kept;
    for (int i = 0; i < 5000; ++i) {
        kept.push_back(
            garbage.init((std::to_string(i) + std::string(static_cast<std::size_t>(i % 40), 'x')).c_str()));
    }
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(kept[static_cast<std::size_t>(i)],
                  std::to_string(i) + std::string(static_cast<std::size_t>(i % 40), 'x'));
    }
}

TEST(Garbage, KeepsLongTextsWhole) {
    Garbage garbage;
    const std::string text(1000000, 'x');
    EXPECT_TRUE(garbage.init(text.c_str()) == text);
}

TEST(Garbage, HasOneVirtualOperation) {
    EXPECT_EQ(virtualSlot(&Garbage::init), 0U);
    EXPECT_TRUE(std::is_polymorphic_v<Garbage>);
    EXPECT_FALSE(std::has_virtual_destructor_v<Garbage>);
}

} // namespace
} // namespace tarv_3_3
