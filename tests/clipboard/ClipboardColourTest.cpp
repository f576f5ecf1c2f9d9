#include "clipboard/ClipboardColour.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace brindlex {
namespace {

/// The colour of each text is the same one.
void expectColour(const ClipboardColour& colour, const std::vector<std::string>& texts)
{
    for (const auto& text : texts)
        EXPECT_EQ(clipboardColour(text), colour) << text;
}

TEST(ClipboardColour, isReadOfDigits)
{
    expectColour({0x11, 0xAA, 0xFF}, {"#1af", "#1AF", "#1aff", "#11aaff", "#11AAffFF"});
    expectColour({0x12, 0x34, 0x56, 0x78}, {"#12345678"});
    expectColour({0xFF, 0xEE, 0xDD, 0xCC}, {"#fedc"});
}

TEST(ClipboardColour, isReadOfRedGreenAndBlue)
{
    expectColour({255, 0, 51},
        {"rgb(255,0,51)", "RGB( 255 , 0 , 51 )", "rgb(255 0 51)", "rgba(255, 0, 51)",
            "rgb(100%, 0%, 20%)", "rgb(100% 0% 20%)", "rgb(255 0% 51)", "rgb(300 -5 51)",
            "rgb(255 none 51)", "rgb(\n255\t0\r\n51\f)", "rgb(255.4, 0.4, 50.5)"});
}

TEST(ClipboardColour, isReadWithAnAlpha)
{
    expectColour({1, 2, 3, 128},
        {"rgba(1,2,3,.5)", "rgba(1, 2, 3, 50%)", "rgb(1 2 3 / 0.5)", "rgb(1 2 3/50%)",
            "rgba(1 2 3 / 5e-1)", "rgb(1,2,3,0.5)"});
    expectColour({1, 2, 3, 0}, {"rgba(1,2,3,0)", "rgb(1 2 3 / -1)", "rgb(1 2 3 / none)"});
    expectColour({1, 2, 3, 255}, {"rgba(1,2,3,1)", "rgb(1 2 3 / 900%)"});
}

TEST(ClipboardColour, isReadOfHueSaturationAndLightness)
{
    expectColour({255, 0, 0},
        {"hsl(0, 100%, 50%)", "hsl(0deg 100% 50%)", "hsl(360 100 50)", "hsl(-360,100%,50%)",
            "hsl(1turn 100% 50%)", "hsl(400grad 100% 50%)", "hsl(none 100% 50%)",
            "hsla(720 150% 50% / 1)"});
    expectColour({0, 255, 0},
        {"hsl(120, 100%, 50%)", "hsl(-240deg, 100%, 50%)", "hsl(2.0943951rad 100% 50%)"});
    expectColour({64, 64, 191, 51}, {"hsla(240, 50%, 50%, 0.2)", "hsl(240 50% 50% / 20%)"});
    expectColour({255, 255, 255}, {"hsl(77, 3%, 100%)", "hsl(77 100% 200%)"});
    expectColour({0, 0, 0}, {"hsl(77, 3%, 0%)", "hsl(77 100% -5%)"});
    expectColour({128, 128, 128}, {"hsl(200, 0%, 50%)", "hsl(200 -20% 50%)"});
}

TEST(ClipboardColour, mayHaveWhiteSpaceAroundIt)
{
    expectColour({0x11, 0x22, 0x33}, {"  #123\n", "\t#123", "\u00A0#123\u2003"});
    expectColour({1, 2, 3}, {"\r\n rgb(1,2,3) \n"});
}

TEST(ClipboardColour, isNotReadOfAnythingElse)
{
    for (const auto* text : {"", " ", "#", "#1", "#12", "#12345", "#1234567", "#123456789", "#12g",
             "#12 3", "# 123", "##123", "123", "0x123", "red", "rgb", "rgb(", "rgb()", "rgb)",
             "rgb(1,2,3", "rgb 1,2,3)", "rgb (1,2,3)", "rgb(1,2)", "rgb(1,2,3,4,5)", "rgb(1 2 3 4)",
             "rgb(1,2,3/4)", "rgb(1%,2,3)", "rgb(1deg,2,3)", "rgb(1,2,3,4deg)", "rgb(none,2,3)",
             "rgb(1,2,3);", "rgb(1,2,3) rgb(1,2,3)", "rgb((1,2,3))", "argb(1,2,3)", "hsv(1,2%,3%)",
             "hsl(1,2,3)", "hsl(1, 2%, 3)", "hsl(1%, 2%, 3%)", "hsl(1 2deg 3%)", "hsl(1em 2% 3%)",
             "hsl(1e308turn 1% 1%)", "color: #123", "#123 is a colour", "＃123", "#１２３"})
        EXPECT_EQ(clipboardColour(text), std::nullopt) << text;
}

TEST(ClipboardColour, isNotLookedForInALongText)
{
    EXPECT_EQ(clipboardColour("#123" + std::string(125, ' ')), std::nullopt);
    EXPECT_EQ(clipboardColour("#123" + std::string(124, ' ')), (ClipboardColour{0x11, 0x22, 0x33}));
}

TEST(ClipboardColour, isSafeFromAnyText)
{
    std::mt19937 random(7);
    const std::string_view letters = "rgbahsl(),/% .-+e019#none\t\xC3\xFF";
    int found = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::string text = round % 2 == 0 ? "rgb(" : "#";
        for (auto length = random() % 12; length > 0; --length)
            text += letters[random() % letters.size()];
        found += clipboardColour(text + (round % 2 == 0 ? ")" : "")) ? 1 : 0;
    }
    EXPECT_GT(found, 0);
}

} // namespace
} // namespace brindlex
