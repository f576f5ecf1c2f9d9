#include "inputmethod/SwitchReducerFixture.h"

namespace brindlex {
namespace {

/// A desktop that changes the input source by itself.
struct SwitchReducerOnADesktop : SwitchReducer {
    SwitchReducerOnADesktop() { begin(); }

    Effects placeBrings(const std::string& inputSourceID)
    {
        computer.inputSourceID = inputSourceID;
        return reduce(Event::PlaceChangedInputSource{});
    }

    Effects undoWith(const std::string& inputSourceID)
    {
        computer.inputSourceID = inputSourceID;
        return reduce(Event::SelectionUndone{});
    }
};

TEST_F(SwitchReducerOnADesktop, learnsNothingFromWhatAPlaceBrings)
{
    activate(mail);
    EXPECT_EQ(placeBrings(french), Effects());
    EXPECT_EQ(learned(mail), Texts());
    userSelects(english);
    EXPECT_EQ(learned(mail), Texts{english}) << "what was brought is where learning goes on from";
    userSelects(french);
    EXPECT_EQ(learned(mail), (Texts{english, french}));
}

TEST_F(SwitchReducerOnADesktop, appliesTheRuleToWhatAPlaceBrings)
{
    computer.inputSourceID = german;
    EXPECT_EQ(activate(editor), Effects());
    EXPECT_EQ(placeBrings(french), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(computer.selections, Texts{german});
    EXPECT_EQ(learned(editor), Texts());
}

TEST_F(SwitchReducerOnADesktop, appliesTheRuleAgainWhenItComesBackToTheApplication)
{
    activate(editor);
    echo();
    activate(mail);
    placeBrings(french);
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}))
        << "nobody has chosen French";
}

TEST_F(SwitchReducerOnADesktop, leavesTheUsersChoiceThatAPlaceBringsBack)
{
    activate(editor);
    echo();
    userSelects(english);
    activate(mail);
    placeBrings(german);
    activate(editor);
    EXPECT_EQ(placeBrings(english), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducerOnADesktop, leavesTheUsersChoiceInTheApplicationInFront)
{
    computer.inputSourceID = german;
    activate(editor);
    userSelects(english);
    EXPECT_EQ(placeBrings(french), Effects());
    EXPECT_EQ(undoWith(french), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducerOnADesktop, selectsOnceMoreWhatWasUndone)
{
    activate(editor);
    echo();
    EXPECT_EQ(undoWith(english), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(computer.selections, Texts{german});
    EXPECT_EQ(learned(editor), Texts());
}

TEST_F(SwitchReducerOnADesktop, letsBeWhatIsUndoneTwiceAndSaysWhy)
{
    computer.whyUndone = "A shell is at work.";
    activate(editor);
    undoWith(english);
    EXPECT_EQ(undoWith(english),
        Effects({Effect::WithdrawHUD{},
            Effect::LogWarning{"The desktop undoes the selection of german: A shell is at work.",
                "input-method"}}));
    EXPECT_EQ(computer.selections, Texts());
    EXPECT_EQ(computer.inputSourceID, english);
    EXPECT_EQ(learned(editor), Texts());
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow());
}

TEST_F(SwitchReducerOnADesktop, saysOnceThatSelectionsAreUndone)
{
    const auto visit = [&] {
        activate(editor);
        undoWith(english);
        return undoWith(english);
    };
    EXPECT_EQ(visit(),
        Effects({Effect::WithdrawHUD{},
            Effect::LogWarning{"The desktop undoes the selection of german", "input-method"}}));
    EXPECT_EQ(visit(), Effects({Effect::WithdrawHUD{}}));
}

TEST_F(SwitchReducerOnADesktop, takesNoOverlayBackWhereNoneIsShown)
{
    config.showHUD = false;
    state.standing.isUndoingReported = true;
    activate(editor);
    undoWith(english);
    EXPECT_EQ(undoWith(english), Effects());
}

TEST_F(SwitchReducerOnADesktop, triesAgainWithTheNextActivation)
{
    activate(editor);
    undoWith(english);
    undoWith(english);
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(undoWith(english), Effects({Effect::FireHUD{"Deutsch"}})) << "and once more";
}

TEST_F(SwitchReducerOnADesktop, doesNotFightForAPageWithEachLookAtIt)
{
    config.domainRulesEnabled = true;
    computer.page = "example.com";
    activate(browser);
    EXPECT_EQ(undoWith(english), Effects({Effect::FireHUD{"Français"}}));
    undoWith(english);
    EXPECT_EQ(tick("example.com"), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducerOnADesktop, keepsAChoiceMadeAfterASelectionWasUndone)
{
    activate(editor);
    undoWith(english);
    userSelects(french);
    activate(mail);
    EXPECT_EQ(activate(editor), Effects()) << "the user has overridden the rule";
}

TEST_F(SwitchReducerOnADesktop, takesNoEchoForOneAfterASelectionWasUndone)
{
    activate(editor);
    undoWith(english);
    undoWith(english);
    userSelects(german);
    EXPECT_EQ(learned(editor), Texts{german});
}

TEST_F(SwitchReducerOnADesktop, looksAtTheRulesAgainWithOtherSources)
{
    computer.frontmostBundleID = editor;
    computer.refusedSources = {german};
    activate(editor);
    computer.refusedSources.clear();
    EXPECT_EQ(reduce(Event::EnabledSourcesChanged{}), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducerOnADesktop, leavesTheUsersChoiceWithOtherSources)
{
    computer.frontmostBundleID = editor;
    computer.inputSourceID = german;
    activate(editor);
    userSelects(english);
    EXPECT_EQ(reduce(Event::EnabledSourcesChanged{}), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducerOnADesktop, learnsNothingFromWhatOtherSourcesBring)
{
    activate(mail);
    userSelects(german);
    computer.inputSourceID = french;
    reduce(Event::EnabledSourcesChanged{});
    EXPECT_EQ(placeBrings(french), Effects());
    EXPECT_EQ(learned(mail), Texts{german});
}

TEST_F(SwitchReducerOnADesktop, doesNothingWhileItIsSwitchedOff)
{
    config.enabled = false;
    const auto before = state;
    EXPECT_EQ(placeBrings(french), Effects());
    EXPECT_EQ(undoWith(french), Effects());
    EXPECT_EQ(reduce(Event::EnabledSourcesChanged{}), Effects());
    EXPECT_EQ(state, before);
}

} // namespace
} // namespace brindlex
