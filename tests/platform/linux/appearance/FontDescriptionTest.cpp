#include "platform/linux/appearance/FontDescription.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

using Font = std::optional<DesktopFont>;

TEST(pangoFont, hasAFamilyStylesAndASize)
{
    EXPECT_EQ(pangoFont("Noto Sans 10"), Font({"Noto Sans", 10}));
    EXPECT_EQ(pangoFont("Cantarell Bold 11"), Font({"Cantarell", 11, 700}));
    EXPECT_EQ(pangoFont("Sans Italic 10.5"), Font({"Sans", 10.5, 400, true}));
    EXPECT_EQ(pangoFont("Ubuntu Semi-Bold Oblique 9"), Font({"Ubuntu", 9, 600, true}));
    EXPECT_EQ(pangoFont("DejaVu Sans Condensed 9"), Font({"DejaVu Sans Condensed", 9}));
    EXPECT_EQ(pangoFont("Noto Sans, Bold 10"), Font({"Noto Sans", 10, 700}));
    EXPECT_EQ(pangoFont("Arial Black, 10"), Font({"Arial Black", 10}));
    EXPECT_EQ(pangoFont("Inter,Noto Sans,sans-serif Medium 10"), Font({"Inter", 10, 500}));
    EXPECT_EQ(pangoFont("Inter 12 @wght=200,wdth=5"), Font({"Inter", 12}));
    EXPECT_EQ(pangoFont("  Inter   16px "), Font({"Inter", 12}));
}

TEST(pangoFont, isTheUsualOneInWhatIsNotSaid)
{
    EXPECT_EQ(pangoFont("Cantarell"), Font(DesktopFont{"Cantarell"}));
    EXPECT_EQ(pangoFont("14"), Font({"", 14}));
    EXPECT_EQ(pangoFont("Bold"), Font({"", 0, 700}));
    EXPECT_EQ(pangoFont("Source Code Pro Regular 10"), Font({"Source Code Pro", 10}));
}

TEST(pangoFont, isOfASizeThatWindowsAreMadeFor)
{
    EXPECT_EQ(pangoFont("Sans 1"), Font({"Sans", 6}));
    EXPECT_EQ(pangoFont("Sans 0.0001px"), Font({"Sans", 6}));
    EXPECT_EQ(pangoFont("Sans 72"), Font({"Sans", 32}));
    EXPECT_EQ(pangoFont("Sans 1e300"), Font({"Sans", 32}));
}

TEST(pangoFont, isNothingForGarbage)
{
    for (const auto* text : {"", " ", ",", " , ", "@", "#", "Normal", "\xFF\xFE 10"})
        EXPECT_EQ(pangoFont(text), Font()) << text;
    EXPECT_EQ(pangoFont(std::string(513, 'x')), Font());
    for (const auto* number : {"-10", "0", "nan", "inf", "10pt", "0x10", "1e999"})
        EXPECT_EQ(pangoFont(std::string("Sans ") + number),
            Font(DesktopFont{std::string("Sans ") + number}))
            << "what is no size belongs to the family";
}

TEST(qtFont, isReadAsQt5AndQt6WriteIt)
{
    EXPECT_EQ(qtFont("Noto Sans,10,-1,5,50,0,0,0,0,0"), Font({"Noto Sans", 10}));
    EXPECT_EQ(qtFont("Noto Sans,10.5,-1,5,75,1,0,0,0,0"), Font({"Noto Sans", 10.5, 700, true}));
    EXPECT_EQ(qtFont("Noto Sans,10,-1,5,50,0,0,0,0,0,Regular"), Font({"Noto Sans", 10}));
    EXPECT_EQ(qtFont("Inter,11,-1,5,600,0,0,0,0,0,0,0,0,0,0,1"), Font({"Inter", 11, 600}));
    EXPECT_EQ(
        qtFont("Inter,11,-1,5,400,1,0,0,0,0,0,0,0,0,0,1,Italic"), Font({"Inter", 11, 400, true}));
    EXPECT_EQ(qtFont("Inter,-1,16,5,50,0,0,0,0,0"), Font({"Inter", 12}));
    EXPECT_EQ(qtFont("Inter,9"), Font({"Inter", 9}));
}

TEST(qtFont, isOfAnOrdinaryWeightAndSizeWhateverIsSaid)
{
    EXPECT_EQ(qtFont("A,200,-1,5,99999999999,0,0,0,0,0"), Font({"A", 32, 900}));
    EXPECT_EQ(qtFont("A,1,-1,5,1,0,0,0,0,0,0,0,0,0,0,1"), Font({"A", 6, 100}));
    EXPECT_EQ(qtFont("A,10,-1,5,bold,italic"), Font({"A", 10}));
}

TEST(qtFont, isNothingForGarbage)
{
    for (const auto* text :
        {"", ",", ",,", "Sans", "Sans,", "Sans,large", "Sans,-1,-1", "Sans,nan", "\xFF,10"})
        EXPECT_EQ(qtFont(text), Font()) << text;
    EXPECT_EQ(qtFont(std::string(513, ',')), Font());
}

} // namespace
} // namespace brindlex
