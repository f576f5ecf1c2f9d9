#include "mouse/MouseConfigStore.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/UserDefaultsStorageBox.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(MouseConfigStore, keepsTheConfigurationUnderItsKey)
{
    SimulatedUserDefaults defaults;
    MouseConfigStore store(defaults);
    EXPECT_EQ(store.config().value(), MouseConfig{});

    auto config = store.config().value();
    config.gesture.distanceThreshold = 45;
    store.setConfig(config);

    EXPECT_EQ(defaults.value("mouseConfig"),
        PreferenceValue(UserDefaultsStorageBox<MouseConfig>{config}.rawValue()));
    EXPECT_EQ(MouseConfigStore(defaults).config().value(), config);
}

TEST(MouseConfigStore, writesTheNewNameOfARetiredAction)
{
    const std::string id = "00000000-0000-0000-0000-000000000001";
    const std::string before = R"({"click":{"enabled":true,"bindings":[{"id":")" + id
        + R"(","button":2,"modifiers":0,"action":{"launchpad":{}}}]},)"
          R"("gesture":{"enabled":true,"bindings":[],"distanceThreshold":30},"scroll":{}})";
    SimulatedUserDefaults defaults;
    defaults.set("mouseConfig", before);

    MouseConfigStore store(defaults);
    EXPECT_EQ(defaults.value("mouseConfig"), PreferenceValue(before));
    store.setConfig(store.config().value());

    const auto after = std::get<std::string>(*defaults.value("mouseConfig"));
    EXPECT_NE(after.find(R"("action":{"missionControl":{}})"), std::string::npos) << after;
}

TEST(MouseConfigStore, fallsBackToTheDefaultForOneBadAction)
{
    SimulatedUserDefaults defaults;
    defaults.set("mouseConfig",
        R"({"click":{"enabled":false,"bindings":[{"id":"00000000-0000-0000-0000-000000000001",)"
        R"("button":2,"modifiers":0,"action":{"fly":{}}}]},)"
        R"("gesture":{"enabled":false,"bindings":[],"distanceThreshold":1},"scroll":{}})");
    EXPECT_EQ(MouseConfigStore(defaults).config().value(), MouseConfig{});
}

} // namespace
} // namespace brindlex
