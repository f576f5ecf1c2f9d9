#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"

namespace brindlex {
namespace {

const std::string pinyin = "fcitx5:pinyin";

/// A user whose input method comes and goes beside the two layouts.
class InputMethodSwitchCoordinatorSources : public InputMethodSwitchCoordinatorTest {
protected:
    InputMethodSwitchCoordinatorSources()
    {
        change([](auto& config) { config.rules = {rule("editor", pinyin)}; });
    }

    void inputMethodStarts()
    {
        computer.inputSources.install(SimulatedInputSources::keyboard(pinyin, "Pinyin"));
        computer.mainThread.runUntilIdle();
    }
};

TEST_F(InputMethodSwitchCoordinatorSources, carriesOutTheRuleOnceItsInputMethodHasStarted)
{
    start();
    ASSERT_EQ(selected(), us);

    inputMethodStarts();

    EXPECT_EQ(selected(), pinyin);
    EXPECT_EQ(labels, std::vector<std::string>{"Pinyin"});
    EXPECT_TRUE(stats().empty());
}

TEST_F(InputMethodSwitchCoordinatorSources, logsWhatItSelectsAndWhatKeepsItFromThat)
{
    using Lines = std::vector<std::string>;
    start();
    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [input-method] No input source is called \"fcitx5:pinyin\"; there are "
               "\"xkb:us::eng\" and \"xkb:de::deu\"",
            "WARN [input-method] Failed to select fcitx5:pinyin for editor",
            "WARN [input-method] Failed to select fcitx5:pinyin for editor",
            "WARN [input-method] Failed to select fcitx5:pinyin for editor"}));

    inputMethodStarts();
    EXPECT_EQ(log.takeLines(),
        Lines{"INFO [input-method] Selected fcitx5:pinyin for editor, by its rule"});

    change([](auto& config) { config.rules.push_back(rule("edit", pinyin)); });
    EXPECT_EQ(log.takeLines(),
        Lines{"WARN [input-method] No application is called \"edit\", so its rule does not apply"});
    change([](auto& config) { config.enabled = false; });
    change([](auto& config) { config.rules.push_back(rule("other", pinyin)); });
    EXPECT_EQ(log.takeLines(), Lines{}) << "No rule is asked for anything.";
}

TEST_F(InputMethodSwitchCoordinatorSources, leavesTheUsersChoiceAlone)
{
    inputMethodStarts();
    start();
    ASSERT_EQ(selected(), pinyin);
    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    computer.inputSources.install(SimulatedInputSources::keyboard("xkb:ru::rus", "Russian"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].samples.size(), 1u);
}

TEST_F(InputMethodSwitchCoordinatorSources, leavesTheUsersChoiceWhereNoRuleHadToActAlone)
{
    inputMethodStarts();
    computer.inputSources.userSelects(pinyin);
    start();
    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    computer.inputSources.install(SimulatedInputSources::keyboard("xkb:ru::rus", "Russian"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorSources, learnsNothingFromAnInputMethodThatEnds)
{
    inputMethodStarts();
    computer.applications.bringToFront(application(2, "mail"));
    start();
    computer.inputSources.userSelects(pinyin);
    computer.mainThread.runUntilIdle();
    const auto before = stats();

    computer.inputSources.remove(pinyin);
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), us);
    EXPECT_EQ(stats(), before);
}

TEST_F(InputMethodSwitchCoordinatorSources, hearsNothingMoreAfterStop)
{
    start();
    const auto attempts = computer.inputSources.attempts();

    coordinator->dispatch(SwitchEvent::Stop{});
    inputMethodStarts();

    EXPECT_EQ(selected(), us);
    EXPECT_EQ(computer.inputSources.attempts(), attempts);
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::stopped);
}

TEST_F(InputMethodSwitchCoordinatorSources, changeNothingWhileSwitchingIsOff)
{
    start();
    change([](auto& config) { config.enabled = false; });

    inputMethodStarts();

    EXPECT_EQ(selected(), us);
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::stopped);
}

} // namespace
} // namespace brindlex
