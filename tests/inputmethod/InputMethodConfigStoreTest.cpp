#include "inputmethod/InputMethodConfigStore.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/UserDefaultsStorageBox.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(InputMethodConfigStore, keepsTheRulesUnderItsKey)
{
    SimulatedUserDefaults defaults;
    InputMethodConfigStore store(defaults);
    EXPECT_EQ(store.config().value(), InputMethodConfig{});

    auto config = store.config().value();
    config.rules = {{Uuid::random(), {"org.example.editor", "Editor", {}}, "xkb:us::eng"}};
    store.setConfig(config);

    EXPECT_EQ(defaults.value("inputMethodConfig"),
        PreferenceValue(UserDefaultsStorageBox<InputMethodConfig>{config}.rawValue()));
    EXPECT_EQ(InputMethodConfigStore(defaults).config().value(), config);
}

TEST(InputMethodConfigStore, readsAnOlderRecordWithTheDefaultsOfWhatItLacks)
{
    SimulatedUserDefaults defaults;
    defaults.set("inputMethodConfig", R"({"rules":[]})");
    const auto config = InputMethodConfigStore(defaults).config().value();
    EXPECT_TRUE(config.enabled);
    EXPECT_FALSE(config.domainRulesEnabled);
    EXPECT_TRUE(config.showHUD);
}

TEST(InputMethodConfigStore, fallsBackToTheDefaultForARuleWithoutARequiredKey)
{
    SimulatedUserDefaults defaults;
    defaults.set("inputMethodConfig",
        R"({"enabled":false,"rules":[{"id":"00000000-0000-0000-0000-000000000001",)"
        R"("app":{"bundleID":"a","displayName":"A"}}]})");
    EXPECT_EQ(InputMethodConfigStore(defaults).config().value(), InputMethodConfig{});
}

} // namespace
} // namespace brindlex
