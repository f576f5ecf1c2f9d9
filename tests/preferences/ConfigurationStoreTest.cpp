#include "preferences/ConfigurationStore.h"

#include "mouse/MouseConfig.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/UserDefaultsStorageBox.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

using Store = ConfigurationStore<MouseScrollConfig>;

const PreferenceKey<MouseScrollConfig> scrollKey{{}, "scroll"};

MouseScrollConfig withDuration(double duration)
{
    MouseScrollConfig config;
    config.smoothDuration = duration;
    return config;
}

PreferenceValue stored(const MouseScrollConfig& config)
{
    return UserDefaultsStorageBox<MouseScrollConfig>{config}.rawValue();
}

TEST(ConfigurationStore, beginsWithTheStoredRecordAndWritesNothing)
{
    SimulatedUserDefaults defaults;
    defaults.set("scroll", stored(withDuration(0.3)));

    const Store store(defaults, scrollKey);

    EXPECT_EQ(store.config().value(), withDuration(0.3));
    EXPECT_EQ(defaults.writes().size(), 1U);
    EXPECT_FALSE(store.isApplyingLoadedConfig());
}

TEST(ConfigurationStore, tellsASubscriberTheLoadedRecordOnceWithoutWriting)
{
    SimulatedUserDefaults defaults;
    defaults.set("scroll", stored(withDuration(0.3)));
    const Store store(defaults, scrollKey);

    std::vector<MouseScrollConfig> heard;
    const auto subscription
        = store.config().subscribe([&](const auto& config) { heard.push_back(config); });

    EXPECT_EQ(heard, std::vector{withDuration(0.3)});
    EXPECT_EQ(defaults.writes().size(), 1U);
}

TEST(ConfigurationStore, beginsWithTheDefaultForMalformedTextWhichStaysUntilTheNextWrite)
{
    SimulatedUserDefaults defaults;
    defaults.set("scroll", "{\"smoothDuration\":");

    Store store(defaults, scrollKey);
    EXPECT_EQ(store.config().value(), MouseScrollConfig{});
    EXPECT_EQ(defaults.value("scroll"), PreferenceValue("{\"smoothDuration\":"));

    store.setConfig(withDuration(0.25));
    EXPECT_EQ(defaults.value("scroll"), stored(withDuration(0.25)));
}

TEST(ConfigurationStore, publishesBeforeItWrites)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    std::vector<std::optional<PreferenceValue>> seen;
    const auto subscription
        = store.config().subscribe([&](const auto&) { seen.push_back(defaults.value("scroll")); });

    store.setConfig(withDuration(0.25));
    store.setConfig(withDuration(0.5));

    EXPECT_EQ(seen,
        (std::vector<std::optional<PreferenceValue>>{
            std::nullopt, std::nullopt, stored(withDuration(0.25))}));
    EXPECT_EQ(defaults.value("scroll"), stored(withDuration(0.5)));
}

TEST(ConfigurationStore, writesEveryAssignmentAlsoOfAnEqualRecord)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    store.setConfig({});
    store.setConfig({});
    store.setConfig(withDuration(0.25));
    store.setConfig({});

    const SimulatedUserDefaults::Write theDefault{"scroll", stored({})};
    EXPECT_EQ(defaults.writes(),
        (std::vector{theDefault, theDefault,
            SimulatedUserDefaults::Write{"scroll", stored(withDuration(0.25))}, theDefault}));
}

TEST(ConfigurationStore, writesARecordThatIsEqualAndReadsDifferently)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    store.setConfig(withDuration(0.0));
    store.setConfig(withDuration(-0.0));
    EXPECT_EQ(defaults.value("scroll"), stored(withDuration(-0.0)));
    EXPECT_NE(stored(withDuration(-0.0)), stored(withDuration(0.0)));
}

TEST(ConfigurationStore, writesAnewOverWhatAnotherHasStored)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    store.setConfig(withDuration(0.25));
    defaults.set("scroll", "something else");
    store.setConfig(withDuration(0.25));
    EXPECT_EQ(defaults.value("scroll"), stored(withDuration(0.25)));
}

TEST(ConfigurationStore, writesTheEmptyTextForARecordThatCannotBeEncoded)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    store.setConfig(withDuration(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(defaults.value("scroll"), PreferenceValue(""));
}

TEST(ConfigurationStore, publishesALoadedRecordAndLeavesThePreferences)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    std::vector<bool> guards;
    const auto subscription = store.config().subscribe(
        [&](const auto&) { guards.push_back(store.isApplyingLoadedConfig()); });

    store.applyLoadedConfig(withDuration(0.25));

    EXPECT_EQ(store.config().value(), withDuration(0.25));
    EXPECT_EQ(guards, (std::vector{false, true}));
    EXPECT_FALSE(store.isApplyingLoadedConfig());
    EXPECT_EQ(defaults.writes().size(), 0U);
}

TEST(ConfigurationStore, keepsAndStoresWhatASubscriberAssignsMeanwhile)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    const auto subscription = store.config().subscribe([&](const MouseScrollConfig& config) {
        if (config.smoothDuration > 1)
            store.setConfig(withDuration(1));
    });

    store.setConfig(withDuration(5));

    EXPECT_EQ(store.config().value(), withDuration(1));
    EXPECT_EQ(defaults.value("scroll"), stored(withDuration(1)));
}

TEST(ConfigurationStore, takesOverWhatAnotherHasStored)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    std::vector<MouseScrollConfig> heard;
    const auto subscription = store.config().stream().withoutFirst().subscribe(
        [&](const auto& config) { heard.push_back(config); });
    defaults.set("scroll", stored(withDuration(0.25)));

    store.reload();
    store.reload();

    EXPECT_EQ(heard, std::vector{withDuration(0.25)});
    EXPECT_EQ(defaults.writes().size(), 1U);
}

TEST(ConfigurationStore, hearsNothingNewInItsOwnWrites)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    store.setConfig(withDuration(0.25));
    int heard = 0;
    const auto subscription
        = store.config().stream().withoutFirst().subscribe([&](const auto&) { ++heard; });

    store.reload();

    EXPECT_EQ(heard, 0);
}

TEST(ConfigurationStore, fallsBackToTheDefaultWhenAnotherRemovesTheRecord)
{
    SimulatedUserDefaults defaults;
    defaults.set("scroll", stored(withDuration(0.25)));
    Store store(defaults, scrollKey);
    defaults.set("scroll", {});

    store.reload();

    EXPECT_EQ(store.config().value(), MouseScrollConfig{});
}

TEST(ConfigurationStore, takesOverARecordThatAPersonHasWrittenAsPlainJson)
{
    SimulatedUserDefaults defaults;
    Store store(defaults, scrollKey);
    defaults.set("scroll", PreferenceJson{R"({"smoothDuration":0.25})"});

    store.reload();

    EXPECT_EQ(store.config().value(), withDuration(0.25));
}

TEST(ConfigurationStore, keepsThePresentRecordWhileTheStoredOneCannotBeRead)
{
    RecordedLog log;
    SimulatedUserDefaults defaults;
    defaults.set("scroll", stored(withDuration(0.25)));
    Store store(defaults, scrollKey);
    defaults.set("scroll", "{\"smoothDuration\":");

    store.reload();
    store.reload();

    EXPECT_EQ(store.config().value(), withDuration(0.25));
    EXPECT_EQ(defaults.value("scroll"), PreferenceValue("{\"smoothDuration\":"));
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{
            "WARN [lifecycle] The preference \"scroll\" cannot be read; the present one stays"});
}

} // namespace
} // namespace brindlex
