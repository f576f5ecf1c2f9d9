#include "inputmethod/SmartInputMethodConfigStore.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/UserDefaultsStorageBox.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const AppIdentifier storedApp{"org.example.editor", "Editor", {}};

/// A record with samples whose derived fields have not been brought up to date.
SmartInputMethodConfig unnormalized()
{
    SmartInputMethodConfig config;
    for (int sample = 0; sample < 10; ++sample)
        config.recordSample("ibus:libpinyin", storedApp, Date{double(sample)});
    config.appStats[0].isActive = false;
    config.appStats[0].recommendationPercent = 0;
    return config;
}

SmartInputMethodConfig normalized(SmartInputMethodConfig config)
{
    config.normalizeStats();
    return config;
}

PreferenceValue stored(const SmartInputMethodConfig& config)
{
    return UserDefaultsStorageBox<SmartInputMethodConfig>{config}.rawValue();
}

TEST(SmartInputMethodConfigStore, keepsTheRecordUnderItsKey)
{
    SimulatedUserDefaults defaults;
    SmartInputMethodConfigStore store(defaults);
    EXPECT_EQ(store.config().value(), SmartInputMethodConfig{});

    const auto config = normalized(unnormalized());
    store.setConfig(config);

    EXPECT_EQ(defaults.value("smartInputMethodConfig"), stored(config));
    EXPECT_EQ(SmartInputMethodConfigStore(defaults).config().value(), config);
}

TEST(SmartInputMethodConfigStore, normalizesWhatIsAssignedAndPublishesItOnceMore)
{
    SimulatedUserDefaults defaults;
    SmartInputMethodConfigStore store(defaults);
    std::vector<SmartInputMethodConfig> heard;
    std::vector<bool> isApplying;
    std::vector<std::size_t> writesBefore;
    const auto subscription = store.config().stream().withoutFirst().subscribe(
        [&](const SmartInputMethodConfig& config) {
            heard.push_back(config);
            isApplying.push_back(store.isApplyingLoadedConfig());
            writesBefore.push_back(defaults.writes().size());
        });

    store.setConfig(unnormalized());

    ASSERT_EQ(heard.size(), 2U);
    EXPECT_FALSE(heard[0].appStats[0].isActive);
    EXPECT_TRUE(heard[1].appStats[0].isActive);
    EXPECT_EQ(isApplying, (std::vector{false, true}));
    EXPECT_EQ(writesBefore, (std::vector<std::size_t>{0, 0}));
    EXPECT_EQ(defaults.writes(),
        std::vector{SimulatedUserDefaults::Write("smartInputMethodConfig", stored(heard[1]))});
    EXPECT_FALSE(store.isApplyingLoadedConfig());
}

TEST(SmartInputMethodConfigStore, publishesANormalizedRecordOnce)
{
    SimulatedUserDefaults defaults;
    SmartInputMethodConfigStore store(defaults);
    int times = 0;
    const auto subscription
        = store.config().stream().withoutFirst().subscribe([&](const auto&) { ++times; });
    store.setConfig(normalized(unnormalized()));
    EXPECT_EQ(times, 1);
}

TEST(SmartInputMethodConfigStore, writesOnceForEachAssignmentAndOnceForEachPersist)
{
    SimulatedUserDefaults defaults;
    SmartInputMethodConfigStore store(defaults);
    const auto config = normalized(unnormalized());
    store.setConfig(config);
    store.persist();
    store.setConfig(config);
    store.persist();

    const SimulatedUserDefaults::Write write("smartInputMethodConfig", stored(config));
    EXPECT_EQ(defaults.writes(), (std::vector{write, write, write, write}));
}

TEST(SmartInputMethodConfigStore, doesNotPersistWhatIsAppliedAsLoaded)
{
    SimulatedUserDefaults defaults;
    SmartInputMethodConfigStore store(defaults);
    store.applyLoadedConfig(unnormalized());
    EXPECT_FALSE(store.config().value().appStats[0].isActive);
    EXPECT_TRUE(defaults.writes().empty());
}

TEST(SmartInputMethodConfigStore, fallsBackToTheDefaultForAnUnknownEnumerationValue)
{
    SimulatedUserDefaults defaults;
    defaults.set("smartInputMethodConfig", R"({"enabled":true,"windowSize":11})");
    EXPECT_EQ(SmartInputMethodConfigStore(defaults).config().value(), SmartInputMethodConfig{});
}

} // namespace
} // namespace brindlex
