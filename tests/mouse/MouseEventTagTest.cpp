#include "mouse/MouseEventTag.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

TEST(mouseEventTag, isReadableInASCII)
{
    const auto text = [](std::int64_t tag) {
        std::string result;
        for (int shift = 56; shift >= 0; shift -= 8)
            result += static_cast<char>((tag >> shift) & 0xFF);
        return result;
    };
    EXPECT_EQ(text(mouseEventTag::replay), "MOSEGSTR");
    EXPECT_EQ(text(mouseEventTag::scroll), "MOSESCRL");
}

} // namespace
} // namespace brindlex
