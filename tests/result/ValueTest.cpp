#include "tarv_3_3/Value.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

TEST(Value, IsEmptyByDefault) {
    const Value value;
    EXPECT_EQ(value.text, nullptr);
    EXPECT_EQ(value.status, 1);
    EXPECT_EQ(value.position, 2147483647);
    EXPECT_EQ(value.value.type(), vtNull);
    EXPECT_EQ(value.as<const char*>(), nullptr);
}

TEST(Value, StoresItsTextAsThePointerGivenAndSharesTheVariant) {
    const char text[] = "5";
    const variant_t number("five");
    const Value value(text, number, 3);
    EXPECT_EQ(value.text, text);
    EXPECT_EQ(value.status, 0);
    EXPECT_EQ(value.position, 3);
    EXPECT_EQ(value.value.get<const char*>(), number.get<const char*>());
    EXPECT_EQ(value.as<const char*>(), text);
}

TEST(Value, IsCopiedWhole) {
    const char text[] = "5";
    const Value source(text, variant_t(5), 3);
    const Value copy(source);
    Value assigned;
    assigned = source;
    for (const Value& value : {copy, assigned}) {
        EXPECT_EQ(value.text, text);
        EXPECT_EQ(value.status, 0);
        EXPECT_EQ(value.position, 3);
        EXPECT_EQ(value.value, variant_t(5));
    }
}

TEST(Value, HasNoTextAsACStringUnlessItWasFound) {
    Value value("5", variant_t(5), 3);
    for (const int status : {1, 3, -1}) {
        value.status = status;
        EXPECT_EQ(value.as<const char*>(), nullptr);
    }
}

} // namespace
} // namespace tarv_3_3
