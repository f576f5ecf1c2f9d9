#include "platform/linux/appearance/PortalAppearance.h"

#include "platform/linux/appearance/FakePortal.h"
#include "platform/linux/system/SessionBus.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");

class PortalAppearanceTest : public testing::Test {
protected:
    bool becomes(const PortalAppearance& portal, const StatedAppearance& expected)
    {
        return loop.runUntil([&] { return portal.current().value() == expected; });
    }

    QtLoop loop;
    PrivateBus bus;
    SessionBus session{bus.address()};
    FakePortal portal{bus.address()};
};

TEST_F(PortalAppearanceTest, isWhatThePortalHasAlready)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.settings[appearance]["accent-color"] = QVariant::fromValue(PortalColour{0.2, 0.4, 1.0});
    portal.settings[gnome]["enable-animations"] = false;
    portal.settings[gnome]["font-name"] = QStringLiteral("Cantarell Bold 11");
    portal.settings[gnome]["text-scaling-factor"] = 1.25;
    portal.start();

    const PortalAppearance read(session.connection());

    EXPECT_TRUE(becomes(read, {true, 0x3366ff, true, DesktopFont{"Cantarell", 11, 700}, 1.25}));
}

TEST_F(PortalAppearanceTest, saysNothingWithoutAPortalAndFollowsOneThatStartsLate)
{
    const PortalAppearance read(session.connection());
    EXPECT_EQ(read.current().value(), StatedAppearance{});

    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();

    EXPECT_TRUE(becomes(read, {.isDark = true}));
}

TEST_F(PortalAppearanceTest, followsChanges)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();
    const PortalAppearance read(session.connection());
    ASSERT_TRUE(becomes(read, {.isDark = true}));

    portal.change(appearance, "color-scheme", 2U);
    EXPECT_TRUE(becomes(read, {.isDark = false}));
    portal.change(appearance, "color-scheme", 0U);
    EXPECT_TRUE(becomes(read, {})) << "no preference";
}

TEST_F(PortalAppearanceTest, hasNoAccentOutsideOfTheColours)
{
    portal.settings[appearance]["accent-color"] = QVariant::fromValue(PortalColour{-1, -1, -1});
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.start();
    const PortalAppearance read(session.connection());
    EXPECT_TRUE(becomes(read, {.isDark = true}));

    portal.change(appearance, "accent-color", QStringLiteral("blue"));
    portal.change(appearance, "color-scheme", 0U);

    EXPECT_TRUE(becomes(read, {}));
}

TEST_F(PortalAppearanceTest, saysNothingWithWhatEveryDesktopHas)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.settings[gnome]["enable-animations"] = true;
    portal.start();
    const PortalAppearance read(session.connection());
    EXPECT_TRUE(becomes(read, {.isDark = true}));
}

TEST_F(PortalAppearanceTest, takesNoFontOrScaleThatIsNone)
{
    portal.settings[appearance]["color-scheme"] = 1U;
    portal.settings[gnome]["font-name"] = 11;
    portal.settings[gnome]["text-scaling-factor"] = QStringLiteral("large");
    portal.start();
    const PortalAppearance read(session.connection());
    EXPECT_TRUE(becomes(read, {.isDark = true, .font = DesktopFont{"", 11}}));

    portal.change(gnome, "font-name", QStringLiteral(" "));
    portal.change(gnome, "text-scaling-factor", 1000.0);
    EXPECT_TRUE(becomes(read, {.isDark = true, .textScale = 3}));
    portal.change(gnome, "text-scaling-factor", -1.0);
    EXPECT_TRUE(becomes(read, {.isDark = true}));
}

} // namespace
} // namespace brindlex
