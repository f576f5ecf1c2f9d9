#include "inputmethod/SwitchReasons.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Source = InputMethodSwitchDecisionSource;

constexpr auto german = "xkb:de::deu";
constexpr auto us = "xkb:us::eng";

InputMethodSwitchDecision decisionFor(const std::string& bundleID, Source source)
{
    return {bundleID, {}, german, source};
}

/// The reasons, and the state of the machine that they follow.
class SwitchReasonsTest : public testing::Test {
protected:
    void switchFor(const std::string& bundleID, Date now, Source source = Source::manualAppRule)
    {
        const auto decision = decisionFor(bundleID, source);
        const auto context = autoSwitchContext(decision);
        state.override = {context, context, german};
        state.standing.isChosenSinceSwitch = false;
        state.lastInputSourceID = german;
        reasons.noteSwitch(decision, smartConfig, now);
        reasons.noteEvent(SwitchEvent::AppActivated{bundleID}, state, now);
    }
    void userSelects(const std::string& source, Date now)
    {
        state.standing.isChosenSinceSwitch = true;
        state.lastInputSourceID = source;
        reasons.noteEvent(SwitchEvent::InputSourceChanged{}, state, now);
    }
    std::optional<Date> overriddenAt(const std::string& bundleID)
    {
        return reasons.reason(bundleID).value().overriddenAt;
    }

    SwitchState state;
    SmartInputMethodConfig smartConfig;
    SwitchReasons reasons;
};

TEST_F(SwitchReasonsTest, hasNoneForAnApplicationThatWasNotSwitchedFor)
{
    EXPECT_EQ(reasons.reason("editor"), std::nullopt);
}

TEST_F(SwitchReasonsTest, keepsTheLastDecisionForEachApplication)
{
    switchFor("editor", Date{1}, Source::smartAppRule);
    switchFor("mail", Date{2});
    switchFor("editor", Date{3});

    EXPECT_EQ(reasons.byApplication().value(),
        (SwitchReasons::ByApplication{
            {"editor", {decisionFor("editor", Source::manualAppRule), Date{3}, 0, {}}},
            {"mail", {decisionFor("mail", Source::manualAppRule), Date{2}, 0, {}}}}));
}

TEST_F(SwitchReasonsTest, keepsADecisionForWhatIsSelectedAlreadyBesideAnOverride)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});

    reasons.noteAgreement({"mail", {}, us, Source::manualAppRule}, smartConfig, Date{3});
    reasons.noteEvent(SwitchEvent::AppActivated{"mail"}, state, Date{3});

    EXPECT_EQ(reasons.reason("mail"),
        (SwitchReason{{"mail", {}, us, Source::manualAppRule}, Date{3}, 0, {}}));
    EXPECT_EQ(overriddenAt("editor"), Date{2});
}

TEST_F(SwitchReasonsTest, saysHowManyChangesALearnedRuleWasMadeFrom)
{
    smartConfig.enabled = true;
    for (int change = 0; change < 12; ++change)
        smartConfig.recordSample(german, {"editor", "Editor", {}}, Date{});

    switchFor("editor", Date{1}, Source::smartAppRule);
    switchFor("mail", Date{2});

    EXPECT_EQ(reasons.reason("editor")->changes, 10U) << "the window has ten";
    EXPECT_EQ(reasons.reason("mail")->changes, 0U);
}

TEST_F(SwitchReasonsTest, saysWhenTheUserLastChangedWhatTheRuleHadSelected)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});
    EXPECT_EQ(overriddenAt("editor"), Date{2});

    userSelects("xkb:fr::fra", Date{3});

    EXPECT_EQ(overriddenAt("editor"), Date{3});
    EXPECT_EQ(reasons.reason("editor")->usedAt, Date{1});
}

TEST_F(SwitchReasonsTest, takesTheOverrideBackWithTheChange)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});

    userSelects(german, Date{3});

    EXPECT_EQ(overriddenAt("editor"), std::nullopt);
}

TEST_F(SwitchReasonsTest, countsTheEchoOfASwitchForNoOverride)
{
    switchFor("editor", Date{1});

    reasons.noteEvent(SwitchEvent::InputSourceChanged{}, state, Date{2});

    EXPECT_EQ(overriddenAt("editor"), std::nullopt);
}

TEST_F(SwitchReasonsTest, endsTheOverrideWhenAnotherPlaceDecides)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});

    switchFor("mail", Date{3});
    EXPECT_EQ(overriddenAt("editor"), std::nullopt);

    userSelects(us, Date{4});
    EXPECT_EQ(overriddenAt("editor"), std::nullopt);
    EXPECT_EQ(overriddenAt("mail"), Date{4});
}

TEST_F(SwitchReasonsTest, endsTheOverrideWhenTheMachineForgetsTheSwitch)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});

    state.override = {};
    reasons.noteEvent(SwitchEvent::AppActivated{"mail"}, state, Date{3});

    EXPECT_EQ(overriddenAt("editor"), std::nullopt);
}

TEST_F(SwitchReasonsTest, keepsTheTimeOfTheChangeWhateverHappensAfterIt)
{
    switchFor("editor", Date{1});
    userSelects(us, Date{2});

    state.lastInputSourceID = "xkb:fr::fra";
    reasons.noteEvent(SwitchEvent::PlaceChangedInputSource{}, state, Date{3});

    EXPECT_EQ(overriddenAt("editor"), Date{2}) << "nobody chose that";
}

TEST_F(SwitchReasonsTest, notifiesOnceOfEachChangeAndOfNothingElse)
{
    int notifications = 0;
    const auto token = reasons.byApplication().stream().withoutFirst().subscribe(
        [&](const auto&) { ++notifications; });

    switchFor("editor", Date{1});
    EXPECT_EQ(notifications, 1);
    reasons.noteEvent(SwitchEvent::BrowserContextTick{}, state, Date{2});
    EXPECT_EQ(notifications, 1);
    userSelects(us, Date{3});
    EXPECT_EQ(notifications, 2);
}

TEST_F(SwitchReasonsTest, forgetsTheApplicationThatWasSwitchedForLongestAgo)
{
    for (std::size_t index = 0; index < SwitchReasons::mostApplications; ++index)
        switchFor("app" + std::to_string(index), Date{static_cast<Seconds>(index)});
    switchFor("app0", Date{1'000});

    switchFor("one more", Date{1'001});

    EXPECT_EQ(reasons.byApplication().value().size(), SwitchReasons::mostApplications);
    EXPECT_EQ(reasons.reason("app1"), std::nullopt);
    EXPECT_TRUE(reasons.reason("app0"));
    EXPECT_TRUE(reasons.reason("one more"));
}

} // namespace
} // namespace brindlex
