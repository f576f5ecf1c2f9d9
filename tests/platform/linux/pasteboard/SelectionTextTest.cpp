#include "platform/linux/pasteboard/SelectionText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string every(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

TEST(SelectionText, isUtf8WhereItSaysSo)
{
    EXPECT_EQ(textOfSelection("UTF8_STRING", "é漢🎛\n"), "é漢🎛\n");
    EXPECT_EQ(textOfSelection("UTF8_STRING", "a\xFFz"), "a\uFFFDz");
    EXPECT_EQ(textOfSelection("text/plain;charset=UTF-8", "a\xFFz"), "a\uFFFDz");
}

TEST(SelectionText, isLatin1WhereItIsNoUtf8AndDoesNotSaySo)
{
    EXPECT_EQ(textOfSelection("STRING", "caf\xE9"), "café");
    EXPECT_EQ(textOfSelection("text/plain", "caf\xE9 \x80\xBF\xC0\xFF"), "café \u0080¿Àÿ");
    EXPECT_EQ(textOfSelection("STRING", "café"), "café");
}

TEST(SelectionText, hasNoZeroAtItsEnd)
{
    EXPECT_EQ(textOfSelection("UTF8_STRING", std::string("text\0", 5)), "text");
    EXPECT_EQ(textOfSelection("STRING", std::string("\0\0", 2)), "");
    EXPECT_EQ(textOfSelection("UTF8_STRING", std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(textOfSelection("UTF8_STRING", ""), "");
}

TEST(SelectionText, isWrittenInLatin1WhereThatHasAllCharacters)
{
    const auto all = every(1, 0xFF);
    EXPECT_EQ(latin1(textOfSelection("STRING", all)), all);
    EXPECT_EQ(latin1("café"), "caf\xE9");
    EXPECT_EQ(latin1(""), "");
    EXPECT_EQ(latin1("Ā"), std::nullopt);
    EXPECT_EQ(latin1("漢"), std::nullopt);
    EXPECT_EQ(latin1("🎛"), std::nullopt);
}

} // namespace
} // namespace brindlex
