#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"

namespace brindlex {
namespace {

/// A desktop that changes the input source by itself, with a rule for the editor in front.
class InputMethodSwitchCoordinatorOnADesktop : public InputMethodSwitchCoordinatorTest {
protected:
    InputMethodSwitchCoordinatorOnADesktop()
    {
        change([](auto& config) { config.rules = {rule("editor", german)}; });
        makeCoordinator();
        coordinator->onSwitchUndone = [this] { ++timesTakenBack; };
        computer.mainThread.runUntilIdle();
    }

    int timesTakenBack = 0;
};

TEST_F(InputMethodSwitchCoordinatorOnADesktop, appliesTheRuleToWhatAWindowBrings)
{
    computer.inputSources.placeBrings(us);
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
    EXPECT_TRUE(stats().empty());
    EXPECT_EQ(timesTakenBack, 0);
}

TEST_F(InputMethodSwitchCoordinatorOnADesktop, takesBackWhatItHasShownWhenThatDoesNotHold)
{
    computer.inputSources.setWhyUndone("A shell is at work.");
    for (int time = 0; time < 2; ++time) {
        computer.inputSources.undoWith(us);
        computer.mainThread.runUntilIdle();
    }

    EXPECT_EQ(selected(), us);
    EXPECT_EQ(labels, std::vector<std::string>{"German"}) << "once more than at the start";
    EXPECT_EQ(timesTakenBack, 1);
    EXPECT_TRUE(stats().empty());
    EXPECT_EQ(log.lines().back(),
        "WARN [input-method] The desktop undoes the selection of xkb:de::deu: A shell is at work.");
}

TEST_F(InputMethodSwitchCoordinatorOnADesktop, goesOnWhereNobodyWantsToKnowThatASwitchWasUndone)
{
    coordinator->onSwitchUndone = nullptr;
    for (int time = 0; time < 2; ++time) {
        computer.inputSources.undoWith(us);
        computer.mainThread.runUntilIdle();
    }
    EXPECT_EQ(selected(), us);
}

} // namespace
} // namespace brindlex
