#include "platform/linux/appearance/KdeAppearance.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(kdeAppearance, isThatOfColoursFontAndAnimations)
{
    EXPECT_EQ(kdeAppearance("[Colors:Selection]\nBackgroundNormal=1,2,3\n\n"
                            "[Colors:Window]\nBackgroundNormal=42,46,50\n\n"
                            "[General]\nAccentColor=61,174,233\n"
                            "font=Noto Sans,10,-1,5,50,0,0,0,0,0\n\n"
                            "[KDE]\nAnimationDurationFactor=0\n"),
        (StatedAppearance{.isDark = true,
            .accent = 0x3daee9,
            .reducesMotion = true,
            .font = DesktopFont{"Noto Sans", 10}}));
    EXPECT_EQ(kdeAppearance("[Colors:Window]\nBackgroundNormal=#eff0f1\n"
                            "[KDE]\nAnimationDurationFactor=0.5\n"),
        (StatedAppearance{.isDark = false, .reducesMotion = false}));
}

TEST(kdeAppearance, hasTheAccentOfWhatIsSelectedWithoutAnother)
{
    EXPECT_EQ(kdeAppearance("[Colors:Selection]\nBackgroundNormal=61,174,233,128\n"),
        (StatedAppearance{.accent = 0x3daee9}));
}

TEST(kdeAppearance, isDarkByWhatTheEyeSees)
{
    const auto isDark = [](const std::string& colour) {
        return kdeAppearance("[Colors:Window]\nBackgroundNormal=" + colour).isDark;
    };
    EXPECT_EQ(isDark("0,0,255"), true);
    EXPECT_EQ(isDark("0,255,0"), false);
    EXPECT_EQ(isDark("127,127,127"), true);
    EXPECT_EQ(isDark("129,129,129"), false);
}

TEST(kdeAppearance, isNothingForGarbage)
{
    for (const std::string colour : {"", "1,2", "1,2,3,4,5", "256,0,0", "-1,0,0", "a,b,c", "1,,3",
             "#12345", "#1234567", "#gggggg", "99999999999,0,0", "\xFF,\xFE,0"})
        EXPECT_EQ(kdeAppearance("[Colors:Window]\nBackgroundNormal=" + colour
                      + "\n[General]\nAccentColor=" + colour),
            StatedAppearance{})
            << colour;
    EXPECT_EQ(kdeAppearance("[General]\nfont=Sans\n[KDE]\nAnimationDurationFactor=none\n"),
        StatedAppearance{});
}

} // namespace
} // namespace brindlex
