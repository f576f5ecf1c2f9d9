#include "clipboard/ClipboardManager.h"

#include "clipboard/ClipboardSession.h"

namespace brindlex {
namespace {

struct ClipboardManagerPreferencesTest : testing::Test, ClipboardSession { };

TEST_F(ClipboardManagerPreferencesTest, followsThePreferenceAQuarterOfASecondAfterItsChange)
{
    start();
    settle();
    set(&Keys::clipboardHistoryEnabled, false);
    mainThread.advance(0.249);
    EXPECT_TRUE(takesHotkey());
    mainThread.advance(0.001);
    EXPECT_FALSE(takesHotkey());
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{});
    pasteboard.copyText("text");
    settle();
    EXPECT_EQ(subsystem.store().items().value().size(), 0U);

    set(&Keys::clipboardHistoryEnabled, true);
    settle();
    EXPECT_TRUE(takesHotkey());
    pasteboard.copyText("another");
    settle();
    EXPECT_EQ(textsOf(subsystem.store().items().value()), Texts{"another"});
    EXPECT_EQ(log.lines(), (Texts{startedLine, startedLine}));
}

TEST_F(ClipboardManagerPreferencesTest, waitsForTheEndOfABurstOfChanges)
{
    start();
    for (int change = 0; change < 5; ++change) {
        set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::a + change, ModifierSet::option});
        mainThread.advance(0.2);
    }
    EXPECT_EQ(input.tapsMade(), 1U);
    mainThread.advance(0.05);
    EXPECT_EQ(input.tapsMade(), 2U);
    EXPECT_TRUE(takes(virtualKey::a + 4, ModifierSet::option));
    EXPECT_FALSE(takesHotkey());
}

TEST_F(ClipboardManagerPreferencesTest, doesNothingForAChangeThatLeavesItsPreferencesAsTheyWere)
{
    start();
    settle();
    const auto taps = input.tapsMade();
    set(&Keys::clipboardHistoryEnabled, false);
    set(&Keys::clipboardHistoryEnabled, true);
    set(&Keys::clipboardHotkey, Keys{}.clipboardHotkey.defaultValue);
    set(&Keys::clipboardMaxItems, 5);
    defaults.set("somethingElse", "value");
    settle();
    EXPECT_EQ(input.tapsMade(), taps);
    EXPECT_EQ(log.lines(), Texts{startedLine});
    EXPECT_EQ(hosted.size(), 1U);
}

TEST_F(ClipboardManagerPreferencesTest, keepsTheNewHotkeyForWhenItIsSwitchedOn)
{
    set(&Keys::clipboardHistoryEnabled, false);
    start();
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::s, ModifierSet::control});
    settle();
    EXPECT_EQ(input.tapsMade(), 0U);
    set(&Keys::clipboardHistoryEnabled, true);
    settle();
    EXPECT_EQ(input.tapsMade(), 1U);
    EXPECT_TRUE(takes(virtualKey::s, ModifierSet::control));
}

TEST_F(ClipboardManagerPreferencesTest, followsAChangeOfBothPreferencesAtOnce)
{
    set(&Keys::clipboardHistoryEnabled, false);
    start();
    set(&Keys::clipboardHistoryEnabled, true);
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::s, ModifierSet::control});
    settle();
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{1024});
    EXPECT_TRUE(takes(virtualKey::s, ModifierSet::control));
    EXPECT_EQ(hosted.size(), 2U); // The warm one and this one.
}

TEST_F(ClipboardManagerPreferencesTest, takesADamagedPreferenceForItsDefault)
{
    defaults.set("clipboardHotkey", "no hotkey");
    defaults.set("clipboardHistoryEnabled", "perhaps");
    start();
    EXPECT_TRUE(takesHotkey());
}

TEST_F(ClipboardManagerPreferencesTest, warmsThePickerUpOnce)
{
    start({"text"});
    mainThread.advance(0.249);
    EXPECT_TRUE(hosted.empty());
    mainThread.advance(0.001);
    EXPECT_EQ(hosted.size(), 1U);
    settle();
    EXPECT_FALSE(panel.isVisible());
    set(&Keys::clipboardHistoryEnabled, false);
    settle();
    set(&Keys::clipboardHistoryEnabled, true);
    settle();
    EXPECT_EQ(hosted.size(), 1U);
}

TEST_F(ClipboardManagerPreferencesTest, warmsNothingUpOnceItHasStopped)
{
    start();
    mainThread.advance(0.2);
    manager.stop();
    settle();
    EXPECT_TRUE(hosted.empty());
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(ClipboardManagerPreferencesTest, canBeStoppedWhileThePickerWarmsUp)
{
    start();
    bool hasStopped = false;
    const auto stopping = mainThread.after(0.25, [&] {
        EXPECT_TRUE(panel.isVisible());
        manager.stop();
        hasStopped = true;
    });
    settle();
    EXPECT_TRUE(hasStopped);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(panel.takeCalls().back(), "order out");
}

TEST_F(ClipboardManagerPreferencesTest, isDeafOnceItHasStopped)
{
    start({"text"});
    settle();
    manager.stop();
    EXPECT_FALSE(takesHotkey());
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{});
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::s, ModifierSet::control});
    set(&Keys::clipboardHistoryEnabled, false);
    settle();
    set(&Keys::clipboardHistoryEnabled, true);
    settle();
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{});
    EXPECT_EQ(log.lines(), Texts{startedLine});
    manager.stop();
}

TEST_F(ClipboardManagerPreferencesTest, forgetsAChangeThatItHasNotLookedAtWhenItStops)
{
    start();
    settle();
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::s, ModifierSet::control});
    mainThread.advance(0.1);
    manager.stop();
    settle();
    EXPECT_FALSE(takes(virtualKey::s, ModifierSet::control));
}

TEST_F(ClipboardManagerPreferencesTest, startsWithTheHotkeyThatWasSetWhileItWasStopped)
{
    start();
    manager.stop();
    set(&Keys::clipboardHotkey, HotkeyCombo{virtualKey::s, ModifierSet::control});
    manager.start();
    EXPECT_TRUE(takes(virtualKey::s, ModifierSet::control));
    const auto taps = input.tapsMade();
    set(&Keys::clipboardMaxItems, 5);
    settle();
    EXPECT_EQ(input.tapsMade(), taps);
}

} // namespace
} // namespace brindlex
