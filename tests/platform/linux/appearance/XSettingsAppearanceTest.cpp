#include "platform/linux/appearance/XSettingsAppearance.h"

#include "support/basics/TemporaryFolder.h"
#include "support/loops/LoopUntil.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/SettingsManager.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <optional>

namespace brindlex {
namespace {

const ManagedSettings darkTheme{{"Net/ThemeName", "Arc-Dark"}};
const ManagedSettings lightTheme{{"Net/ThemeName", "Arc"}};

const StatedAppearance dark{.isDark = true};
const StatedAppearance light{.isDark = false};

class XSettingsAppearanceTest : public testing::Test {
protected:
    bool becomes(const StatedAppearance& expected)
    {
        return loopUntil([&] { return appearance.current().value() == expected; });
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    std::optional<SettingsManager> manager;
    X11Connection connection;
    XSettingsAppearance appearance{connection};
};

TEST_F(XSettingsAppearanceTest, isWhatAManagerHasSetAlready)
{
    const SettingsManager early(darkTheme);
    const XSettingsAppearance late(connection);
    EXPECT_EQ(late.current().value(), dark);
}

TEST_F(XSettingsAppearanceTest, followsWhatTheManagerSets)
{
    EXPECT_EQ(appearance.current().value(), StatedAppearance{});
    manager.emplace(darkTheme);
    EXPECT_TRUE(becomes(dark));
    manager->set(lightTheme);
    EXPECT_TRUE(becomes(light));
    manager->clear();
    EXPECT_TRUE(becomes({}));
}

TEST_F(XSettingsAppearanceTest, followsManagersThatComeAndGo)
{
    manager.emplace(darkTheme);
    ASSERT_TRUE(becomes(dark));
    manager.reset();
    EXPECT_TRUE(becomes({}));
    manager.emplace(lightTheme);
    EXPECT_TRUE(becomes(light));
    SettingsManager other(darkTheme);
    EXPECT_TRUE(becomes(dark)) << "the selection has another owner";
    manager->set({});
    other.set(lightTheme);
    EXPECT_TRUE(becomes(light));
}

TEST_F(XSettingsAppearanceTest, outlivesWhatIsNoSettings)
{
    manager.emplace(darkTheme);
    ASSERT_TRUE(becomes(dark));
    manager->setContent(std::string(200'000, '\xFF'));
    EXPECT_TRUE(becomes({}));
    manager->setContent(settingsContent(darkTheme) + std::string(70'000, 'x'));
    EXPECT_TRUE(becomes(dark));
}

/// With a manager that people without a large desktop use.
TEST_F(XSettingsAppearanceTest, followsARealManager)
{
    const auto configuration = desktop.home() / "settings";
    const ChildProcess::Start daemon{.command = {"xsettingsd", "--config", configuration.string()}};
    {
        write(configuration, "Net/ThemeName \"Arc-Dark\"\nGtk/FontName \"Noto Sans Bold 12\"\n");
        const ChildProcess first(daemon);
        EXPECT_TRUE(becomes({.isDark = true, .font = DesktopFont{"Noto Sans", 12, 700}}));
    }
    EXPECT_TRUE(becomes({}));
    write(configuration, "Net/ThemeName \"Arc\"\nGtk/EnableAnimations 0\nXft/DPI 98304\n");
    const ChildProcess second(daemon);
    EXPECT_TRUE(becomes({.isDark = false, .reducesMotion = true, .textScale = 1}));
}

} // namespace
} // namespace brindlex
