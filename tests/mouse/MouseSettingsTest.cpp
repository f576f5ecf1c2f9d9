#include "mouse/MouseSettings.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class MouseSettingsTest : public testing::Test {
protected:
    MouseConfig stored() { return MouseConfigStore(computer.defaults).config().value(); }

    RecordedLog log;
    SimulatedComputer computer;
    AppIdentifierLoader loader{computer.bundles, computer.icons, computer.container};
    MouseConfigStore store{computer.defaults};
    MouseSettings settings{store, loader};
};

TEST_F(MouseSettingsTest, appendsAClickBindingAndStoresIt)
{
    const auto before = settings.config();
    const auto first = settings.addClickBinding();
    const auto second = settings.addClickBinding();

    auto expected = before;
    for (const auto& id : {first, second})
        expected.click.bindings.push_back({id, MouseButton::button4, {}, MouseAction::Plain::back});
    EXPECT_EQ(settings.config(), expected);
    EXPECT_EQ(stored(), expected);
    EXPECT_NE(first, second);
}

TEST_F(MouseSettingsTest, appendsAGestureBinding)
{
    auto expected = settings.config();
    const auto id = settings.addGestureBinding();

    expected.gesture.bindings.push_back(
        {id, MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward});
    EXPECT_EQ(stored(), expected);
}

TEST_F(MouseSettingsTest, replacesAndRemovesABindingByItsIdentity)
{
    const auto first = settings.addClickBinding();
    const auto second = settings.addClickBinding();
    const MouseClickBinding changed{
        second, MouseButton::button3, ModifierSet::shift, MouseAction::Plain::missionControl};

    settings.replaceClickBinding(changed);
    settings.removeClickBinding(first);

    ASSERT_FALSE(settings.config().click.bindings.empty());
    EXPECT_EQ(stored().click.bindings.back(), changed);
    settings.removeClickBinding(Uuid::random());
    EXPECT_EQ(stored().click.bindings.back(), changed);

    const auto gesture = settings.addGestureBinding();
    const MouseGestureBinding drag{
        gesture, MouseButton::right, {}, MouseDirection::up, MouseAction::RunShellCommand{"true"}};
    settings.replaceGestureBinding(drag);
    EXPECT_EQ(stored().gesture.bindings.back(), drag);
    const auto count = stored().gesture.bindings.size();
    settings.removeGestureBinding(gesture);
    EXPECT_EQ(stored().gesture.bindings.size(), count - 1);
}

TEST_F(MouseSettingsTest, storesTheValueOfAStep)
{
    settings.setDurationStep(9);
    settings.setSpeedStep(1);
    settings.setAccelerationStep(8);

    EXPECT_EQ(stored().scroll.smoothDuration, 0.4);
    EXPECT_EQ(stored().scroll.speedMultiplier, 0.75);
    EXPECT_EQ(stored().scroll.acceleration, 0.85);
}

TEST_F(MouseSettingsTest, leavesTheWheelAloneInAnApplicationThatCanBeRead)
{
    computer.bundles.install(
        "/apps/editor", {.identifier = "org.example.Editor", .displayName = "Editor"});

    settings.addDisabledApp("/apps/editor");
    settings.addDisabledApp("/apps/editor");
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
    settings.addDisabledApp("/apps/missing");

    EXPECT_EQ(stored().scroll.disabledApps,
        (std::vector<AppIdentifier>{{"org.example.Editor", "Editor", {}}}));
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"ERROR [mouse] Failed to load app: unreadableBundle"});
    settings.removeDisabledApp("org.example.Editor");
    EXPECT_EQ(stored().scroll.disabledApps, std::vector<AppIdentifier>{});
}

} // namespace
} // namespace brindlex
