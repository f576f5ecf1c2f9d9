#include "inputmethod/SwitchReducerFixture.h"

#include <cmath>

namespace brindlex {
namespace {

TEST_F(SwitchReducer, learnsFromAManualChange)
{
    begin();
    activate(mail);
    userSelects(german);

    EXPECT_EQ(learned(mail), Texts{german});
    EXPECT_EQ(smartConfig.appStats.at(0).samples.at(0).recordedAt, computer.systemTime);
    EXPECT_EQ(smartConfig.appStats.at(0).app, (AppIdentifier{mail, "Name of " + mail}));
    EXPECT_EQ(smartConfig.appActivations,
        (std::map<std::string, std::vector<Date>>{{mail, {computer.systemTime}}}));
    EXPECT_EQ(state.learning->lastObservedInputSourceID, german);
    EXPECT_EQ(state.lastInputSourceID, german);
}

TEST_F(SwitchReducer, datesSampleAndSwitchByOneReadingOfTheSystemClock)
{
    begin();
    activate(mail);
    userSelects(german);
    EXPECT_EQ(std::count(computer.calls.begin(), computer.calls.end(), "systemTime"), 1);
    EXPECT_EQ(std::count(computer.calls.begin(), computer.calls.end(), "now"), 0);
}

TEST_F(SwitchReducer, takesTheEchoOfItsOwnSelectionForNoChange)
{
    begin();
    activate(editor);
    echo();
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{});
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});
    EXPECT_EQ(state.learning->lastObservedInputSourceID, german);
    EXPECT_EQ(state.lastInputSourceID, german);
}

TEST_F(SwitchReducer, knowsALayoutAgainThatIsReportedWithAnotherLanguage)
{
    config.rules = {appRule(editor, "xkb:in:eng:eng")};
    begin();
    activate(editor);
    computer.inputSourceID = "xkb:in:eng:hin";
    echo();
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{});
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});

    computer.inputSourceID = "xkb:in:eng:san";
    echo();
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{}) << "another input method, the same layout";
    activate(mail);
    activate(editor);
    EXPECT_EQ(computer.selections, Texts{});
}

TEST_F(SwitchReducer, takesAnEchoUpToOneSecond)
{
    begin();
    activate(editor);
    computer.now = computer.now + 1.0;
    echo();
    EXPECT_EQ(learned(editor), Texts());
}

TEST_F(SwitchReducer, takesAnEchoAfterOneSecondForTheUsers)
{
    begin();
    activate(editor);
    computer.now = Date{std::nextafter(computer.now.secondsSinceReferenceDate + 1.0, 1e9)};
    echo();
    EXPECT_EQ(learned(editor), Texts{german});
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});
}

TEST_F(SwitchReducer, takesAnEchoForOneWhenTimeWentBackwards)
{
    begin();
    activate(editor);
    computer.now = computer.now - 3600;
    echo();
    EXPECT_EQ(learned(editor), Texts());
}

TEST_F(SwitchReducer, takesAWindowWithoutADeadlineForRunOut)
{
    begin();
    activate(mail);
    state.ignoreWindow = {german, std::nullopt};
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts{german});
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});
}

TEST_F(SwitchReducer, leavesTheWindowOpenForAChangeToAnotherSource)
{
    begin();
    activate(editor);
    const auto window = state.ignoreWindow;
    userSelects(french);
    EXPECT_EQ(learned(editor), Texts{french});
    EXPECT_EQ(state.ignoreWindow, window);
    userSelects(german);
    EXPECT_EQ(learned(editor), Texts{french}) << "the awaited change";
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});
}

TEST_F(SwitchReducer, takesOnlyTheFirstMatchingChangeForTheEcho)
{
    begin();
    activate(editor);
    echo();
    userSelects(english);
    userSelects(german);
    EXPECT_EQ(learned(editor), (Texts{english, german}));
}

TEST_F(SwitchReducer, learnsTheWayBackToo)
{
    begin();
    activate(mail);
    userSelects(german);
    userSelects(english);
    EXPECT_EQ(learned(mail), (Texts{german, english}));
}

TEST_F(SwitchReducer, learnsNothingFromTheSourceAlreadyObserved)
{
    begin();
    activate(mail);
    userSelects(english);
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{});
    userSelects(german);
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts{german});
}

TEST_F(SwitchReducer, beginsASessionWithTheLastSourceWhenTheCurrentIsUnknown)
{
    begin();
    state.lastInputSourceID = german;
    computer.inputSourceID.reset();
    activate(mail);
    EXPECT_EQ(state.learning, (SwitchState::LearningSession{{mail, "Name of " + mail}, german}));
    EXPECT_EQ(state.lastInputSourceID, german);
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts());
}

TEST_F(SwitchReducer, learnsTheFirstSourceOfASessionThatKnewNone)
{
    computer.inputSourceID.reset();
    begin();
    activate(mail);
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts{german});
}

TEST_F(SwitchReducer, ignoresAChangeToAnUnknownSource)
{
    begin();
    activate(editor);
    const auto before = state;
    computer.inputSourceID.reset();
    EXPECT_EQ(reduce(Event::InputSourceChanged{}), Effects());
    EXPECT_EQ(state, before);
    EXPECT_EQ(computer.calls, Texts{"currentInputSourceID"});
}

TEST_F(SwitchReducer, ignoresChangesWhileOff)
{
    begin();
    activate(mail);
    const auto before = state;
    config.enabled = false;
    userSelects(german);
    EXPECT_EQ(state, before);
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{});
    EXPECT_EQ(computer.calls, Texts());
}

TEST_F(SwitchReducer, learnsNothingWhileLearningIsOff)
{
    begin();
    activate(mail);
    smartConfig.learningEnabled = false;
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts());
    EXPECT_TRUE(state.learning);
    EXPECT_EQ(state.learning->lastObservedInputSourceID, english);
    EXPECT_EQ(state.lastInputSourceID, german);

    activate(mail);
    EXPECT_FALSE(state.learning);
    smartConfig.learningEnabled = true;
    userSelects(french);
    EXPECT_EQ(learned(mail), Texts());
    activate(mail);
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts{german});
}

TEST_F(SwitchReducer, learnsNothingWithoutASession)
{
    begin();
    userSelects(german);
    EXPECT_EQ(smartConfig, SmartInputMethodConfig{});
    EXPECT_EQ(state.lastInputSourceID, german);
}

TEST_F(SwitchReducer, learnsForTheApplicationOfTheSession)
{
    begin();
    activate(mail);
    reduce(Event::AppActivated{});
    userSelects(german);
    EXPECT_EQ(learned(mail), Texts{german});
    EXPECT_EQ(smartConfig.appActivations,
        (std::map<std::string, std::vector<Date>>{{mail, {computer.systemTime}}}));
}

TEST_F(SwitchReducer, learnsForTheBrowserWhateverItsPage)
{
    config.domainRulesEnabled = true;
    begin();
    computer.page = "example.com";
    activate(browser);
    echo();
    userSelects(german);
    EXPECT_EQ(learned(browser), Texts{german});
    EXPECT_EQ(smartConfig.appStats.size(), 1u);
}

TEST_F(SwitchReducer, beginsANewSessionWithEveryActivation)
{
    begin();
    activate(mail);
    userSelects(german);
    activate(editor);
    EXPECT_EQ(
        state.learning, (SwitchState::LearningSession{{editor, "Name of " + editor}, german}));
    EXPECT_EQ(state.lastInputSourceID, german);
}

TEST_F(SwitchReducer, learnsARuleFromTenChanges)
{
    smartConfig.enabled = true;
    smartConfig.thresholdRatio = SmartInputMethodThresholdRatio::seventy;
    begin();
    for (int visit = 0; visit < 10; ++visit) {
        computer.inputSourceID = english;
        EXPECT_EQ(activate(mail), Effects()) << visit;
        userSelects(visit % 4 == 3 ? french : german);
    }
    computer.inputSourceID = english;
    EXPECT_EQ(activate(mail), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, notesTheSourceThatItFindsAtAnActivation)
{
    begin();
    computer.inputSourceID = french;
    activate(mail);
    EXPECT_EQ(state.lastInputSourceID, french);
    EXPECT_EQ(state.learning->lastObservedInputSourceID, french);
}

TEST_F(SwitchReducer, changesNothingOnAChangeButWhatItLearnedAndThatItWasAChoice)
{
    begin();
    activate(mail);
    auto expected = state;
    userSelects(german);
    expected.lastInputSourceID = german;
    expected.learning->lastObservedInputSourceID = german;
    expected.standing.isChosenHere = true;
    expected.standing.isChosenSinceSwitch = true;
    EXPECT_EQ(state, expected);
}

} // namespace
} // namespace brindlex
