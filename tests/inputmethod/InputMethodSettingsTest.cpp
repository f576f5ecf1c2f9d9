#include "inputmethod/InputMethodSettings.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class InputMethodSettingsTest : public testing::Test {
protected:
    InputMethodSettingsTest()
    {
        computer.bundles.install(
            "/apps/editor", {.identifier = "org.example.Editor", .displayName = "Editor"});
    }

    void installSources()
    {
        computer.inputSources.install(SimulatedInputSources::keyboard("xkb:us::eng", "U.S."));
        computer.inputSources.install(SimulatedInputSources::keyboard("xkb:de::deu", "German"));
        settings.refreshSources();
    }

    InputMethodConfig stored()
    {
        return InputMethodConfigStore(computer.defaults).config().value();
    }

    static SmartInputMethodAppStats statsOf(const std::string& bundleID)
    {
        return {.id = Uuid::random(), .app = {bundleID, bundleID, {}}};
    }

    using Lines = std::vector<std::string>;

    RecordedLog log;
    SimulatedComputer computer;
    AppIdentifierLoader loader{computer.bundles, computer.icons, computer.container};
    TextInputSourceService sources{computer.inputSources};
    InputMethodConfigStore store{computer.defaults};
    SmartInputMethodConfigStore smartStore{computer.defaults};
    SwitchReasons reasons;
    InputMethodSettings settings{store, smartStore, reasons, sources, loader, computer.clock};
};

TEST_F(InputMethodSettingsTest, addsARuleWithTheSelectedSource)
{
    installSources();
    computer.inputSources.userSelects("xkb:de::deu");

    const auto id = settings.addAppRule("/apps/editor");

    ASSERT_TRUE(id);
    EXPECT_EQ(stored().rules,
        (std::vector<InputMethodRule>{{*id, {"org.example.Editor", "Editor", {}}, "xkb:de::deu"}}));
}

TEST_F(InputMethodSettingsTest, leavesOneRuleForAnApplicationThatIsAddedTwice)
{
    installSources();
    settings.addAppRule("/apps/editor");

    EXPECT_EQ(settings.addAppRule("/apps/editor"), std::nullopt);

    EXPECT_EQ(stored().rules.size(), 1U);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(InputMethodSettingsTest, logsWhyAnApplicationHasNoRule)
{
    EXPECT_EQ(settings.addAppRule("/apps/editor"), std::nullopt);
    EXPECT_EQ(settings.addAppRule("/apps/missing"), std::nullopt);
    computer.bundles.install("/apps/nameless", {.displayName = "Nameless"});
    EXPECT_EQ(settings.addAppRule("/apps/nameless"), std::nullopt);

    EXPECT_EQ(log.lines(),
        (Lines{"WARN [input-method] No input source available for new rule",
            "ERROR [input-method] Failed to load app: unreadableBundle",
            "ERROR [input-method] Failed to load app: missingBundleIdentifier"}));
    EXPECT_EQ(settings.config().rules, std::vector<InputMethodRule>{});
}

TEST_F(InputMethodSettingsTest, addsTheDomainOfWhatWasTyped)
{
    installSources();

    const auto id = settings.addDomainRule(" https://www.GitHub.com:443/some/page?x ");

    ASSERT_TRUE(id);
    EXPECT_EQ(stored().domainRules,
        (std::vector<DomainInputMethodRule>{{*id, "github.com", "xkb:us::eng"}}));
    EXPECT_EQ(settings.addDomainRule("github.com"), std::nullopt);
    EXPECT_EQ(settings.addDomainRule("no domain"), std::nullopt);
    EXPECT_EQ(settings.addDomainRule(""), std::nullopt);
    EXPECT_EQ(settings.addDomainRule(std::string(1'000'000, 'x') + ".com"), std::nullopt);
    EXPECT_EQ(stored().domainRules.size(), 1U);
}

TEST_F(InputMethodSettingsTest, takesASecondWwwOffANewDomain)
{
    installSources();

    settings.addDomainRule("www.www.example.com");

    EXPECT_EQ(stored().domainRules.at(0).domainSuffix, "example.com");
}

TEST_F(InputMethodSettingsTest, addsNoWebsiteWithoutASource)
{
    EXPECT_EQ(settings.addDomainRule("github.com"), std::nullopt);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(InputMethodSettingsTest, changesAndRemovesRulesByTheirIdentity)
{
    installSources();
    const auto app = settings.addAppRule("/apps/editor");
    const auto site = settings.addDomainRule("github.com");
    ASSERT_TRUE(app && site);

    settings.setAppRuleSource(*app, "xkb:de::deu");
    settings.setDomainRuleSource(*site, "xkb:de::deu");
    EXPECT_EQ(stored().rules.at(0).inputSourceID, "xkb:de::deu");
    EXPECT_EQ(stored().domainRules.at(0).inputSourceID, "xkb:de::deu");
    settings.removeAppRule(*site);
    EXPECT_EQ(stored().rules.size(), 1U);
    settings.removeAppRule(*app);
    settings.removeDomainRule(*site);

    EXPECT_EQ(stored(), InputMethodConfig{});
}

TEST_F(InputMethodSettingsTest, knowsTheSourcesThatAreNotThere)
{
    installSources();

    EXPECT_FALSE(settings.isMissing("xkb:de::deu"));
    EXPECT_FALSE(settings.isMissing("xkb:de::ger")) << "Another spelling of the same";
    EXPECT_TRUE(settings.isMissing("ibus:libpinyin"));
}

TEST_F(InputMethodSettingsTest, showsTheStatisticsWithinTheLimit)
{
    SmartInputMethodConfig config;
    config.appLimit = SmartInputMethodAppLimit::top10;
    for (int number = 0; number < 12; ++number) {
        const auto bundleID = "app" + std::to_string(10 + number);
        config.appStats.push_back(statsOf(bundleID));
        config.appActivations[bundleID]
            = std::vector<Date>(static_cast<std::size_t>(number + 1), computer.clock.now());
    }
    smartStore.setConfig(config);

    const auto shown = settings.displayedStats();

    ASSERT_EQ(shown.size(), 10U);
    EXPECT_EQ(shown.front().app.bundleID, "app12") << "In list order";
    EXPECT_EQ(shown.back().app.bundleID, "app21");
    settings.changeSmart([](SmartInputMethodConfig& changed) {
        changed.appLimit = SmartInputMethodAppLimit::unlimited;
    });
    EXPECT_EQ(settings.displayedStats().size(), 12U);
}

TEST_F(InputMethodSettingsTest, namesWhatARowOfTheStatisticsSays)
{
    SmartInputMethodAppStats stats;
    stats.recommendationPercent = 83;
    EXPECT_EQ(matchText(stats), "83%");
    EXPECT_EQ(statusOf(stats), SmartInputMethodStatus::learning);
    stats.isDisabled = true;
    EXPECT_EQ(statusOf(stats), SmartInputMethodStatus::disabled);
    stats.isActive = true;
    EXPECT_EQ(statusOf(stats), SmartInputMethodStatus::active);
}

TEST_F(InputMethodSettingsTest, switchesOffClearsAndDeletesWhatWasLearned)
{
    SmartInputMethodConfig config;
    config.appStats = {statsOf("one"), statsOf("two")};
    config.appStats[0].samples.resize(1);
    config.appActivations["one"] = {computer.clock.now()};
    smartStore.setConfig(config);
    const auto id = config.appStats[0].id;

    settings.setDisabled("one", true);
    EXPECT_TRUE(settings.smartConfig().appStats[0].isDisabled);
    settings.clearStats(id);
    EXPECT_EQ(settings.smartConfig().appStats[0].samples, std::vector<SmartInputMethodSample>{});
    EXPECT_TRUE(settings.smartConfig().appActivations.empty());
    settings.deleteStats(id);

    ASSERT_EQ(settings.smartConfig().appStats.size(), 1U);
    EXPECT_EQ(settings.smartConfig().appStats[0].app.bundleID, "two");
}

TEST_F(InputMethodSettingsTest, bringsDeletedStatisticsBackToTheirPlace)
{
    settings.changeSmart([](SmartInputMethodConfig& config) {
        for (const auto* const app : {"one", "two"}) {
            config.recordSample("xkb:de::deu", {app, app, {}}, Date{1});
            config.recordActivation(app, Date{1});
        }
    });
    const auto before = settings.smartConfig();
    const auto bringBack = settings.deleteStats(before.appStats[0].id);
    ASSERT_EQ(settings.smartConfig().appStats.size(), 1U);
    ASSERT_EQ(settings.smartConfig().appActivations.count("one"), 0U);

    bringBack();

    EXPECT_EQ(settings.smartConfig(), before);
}

TEST_F(InputMethodSettingsTest, bringsNoStatisticsBackOverWhatWasLearnedSince)
{
    const auto learn = [](SmartInputMethodConfig& config) {
        config.recordSample("xkb:de::deu", {"one", "one", {}}, Date{1});
        config.recordActivation("one", Date{1});
    };
    settings.changeSmart(learn);
    const auto bringBack = settings.deleteStats(settings.smartConfig().appStats[0].id);
    settings.changeSmart(learn);
    const auto learned = settings.smartConfig();

    bringBack();

    EXPECT_EQ(settings.smartConfig(), learned);
}

} // namespace
} // namespace brindlex
