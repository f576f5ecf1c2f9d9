#include "clipboard/views/ClipboardOptionsSection.h"

#include "clipboard/views/ClipboardSettingsScreenFixture.h"

namespace brindlex {
namespace {

using ClipboardOptionsSectionTest = ClipboardSettingsScreenFixture;

constexpr auto needed = "Hold Ctrl, Alt or Super as well";

TEST_F(ClipboardOptionsSectionTest, switchesTheHistoryOffAndOn)
{
    show("clipboard");
    control<ToggleSwitch>("Clipboard History")->click();
    EXPECT_FALSE(stored(&Keys::clipboardHistoryEnabled));
    control<ToggleSwitch>("Clipboard History")->click();
    EXPECT_TRUE(stored(&Keys::clipboardHistoryEnabled));
}

TEST_F(ClipboardOptionsSectionTest, switchesPastingOff)
{
    show("clipboard");
    control<ToggleSwitch>("Paste into the previous app automatically")->click();
    EXPECT_FALSE(stored(&Keys::clipboardAutoPaste));
}

TEST_F(ClipboardOptionsSectionTest, recordsAHotkey)
{
    show("clipboard");
    control<KeyRecorderField>("Open picker shortcut: Shift+Super+T")->click();
    control<KeyRecorderField>("Open picker shortcut: Press a key");
    record(virtualKey::s, ModifierSet::control | ModifierSet::option);
    EXPECT_EQ(stored(&Keys::clipboardHotkey),
        (HotkeyCombo{virtualKey::s, ModifierSet::control | ModifierSet::option}));
    control<KeyRecorderField>("Open picker shortcut: Ctrl+Alt+T");
}

TEST_F(ClipboardOptionsSectionTest, goesOnRecordingAfterAKeyWithoutTheModifiersItNeeds)
{
    show("clipboard");
    recorder()->click();
    EXPECT_FALSE(says(needed));
    record(virtualKey::s, ModifierSet::shift);
    EXPECT_TRUE(says(needed));
    EXPECT_TRUE(recorder()->recording().value());
    EXPECT_EQ(stored(&Keys::clipboardHotkey), Keys{}.clipboardHotkey.defaultValue);

    record(virtualKey::s, ModifierSet::option);
    EXPECT_FALSE(says(needed));
    EXPECT_FALSE(recorder()->recording().value());
    EXPECT_EQ(stored(&Keys::clipboardHotkey), (HotkeyCombo{virtualKey::s, ModifierSet::option}));
}

TEST_F(ClipboardOptionsSectionTest, forgetsARefusedKeyWhenTheRecordingEnds)
{
    show("clipboard");
    recorder()->click();
    record(virtualKey::s, {});
    EXPECT_TRUE(says(needed));
    record(virtualKey::escape, {});
    EXPECT_FALSE(says(needed));
    EXPECT_EQ(stored(&Keys::clipboardHotkey), Keys{}.clipboardHotkey.defaultValue);
}

TEST_F(ClipboardOptionsSectionTest, takesTheHotkeyAway)
{
    show("clipboard");
    recorder()->setFocus();
    press(Qt::Key_Backspace);
    EXPECT_EQ(stored(&Keys::clipboardHotkey), (HotkeyCombo{-1, {}}));
    control<KeyRecorderField>("Open picker shortcut: Record");
    EXPECT_FALSE(says(needed));
}

TEST_F(ClipboardOptionsSectionTest, saysWhatAHotkeyLacksThatSomebodyElseHasStored)
{
    show("clipboard");
    writePreference(
        gallery->computer.defaults, Keys{}.clipboardHotkey, HotkeyCombo{virtualKey::s, {}});
    control<KeyRecorderField>("Open picker shortcut: T");
    EXPECT_TRUE(says(needed));
}

TEST_F(ClipboardOptionsSectionTest, choosesTheLimitByTheKeyboard)
{
    show("clipboard");
    EXPECT_EQ(limit()->count(), 8);
    EXPECT_EQ(limit()->currentText(), "200");
    limit()->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(stored(&Keys::clipboardMaxItems), 500);
    press(Qt::Key_End);
    EXPECT_EQ(stored(&Keys::clipboardMaxItems), 100'000);
    EXPECT_EQ(limit()->currentText(), "100,000");
}

TEST_F(ClipboardOptionsSectionTest, writesNumbersAsTheLanguageDoes)
{
    show("clipboard", "de");
    EXPECT_EQ(limit()->itemText(limit()->count() - 1), "100.000");
    EXPECT_TRUE(says("31 · 1,5 MiB"));
}

TEST_F(ClipboardOptionsSectionTest, followsWhatIsChangedElsewhere)
{
    show("clipboard");
    writePreference(gallery->computer.defaults, Keys{}.clipboardMaxItems, 300);
    EXPECT_EQ(limit()->count(), 9);
    EXPECT_EQ(limit()->currentText(), "300");
    gallery->computer.defaults.set("clipboardAutoPaste", false);
    EXPECT_FALSE(control<ToggleSwitch>("Paste into the previous app automatically")->isChecked());
    gallery->computer.defaults.set("clipboardHistoryEnabled", false);
    EXPECT_FALSE(control<ToggleSwitch>("Clipboard History")->isChecked());
    EXPECT_FALSE(limit()->isEnabled());
}

TEST_F(ClipboardOptionsSectionTest, leavesOnlyItsSwitchAndWhatIsKeptWhileTheHistoryIsOff)
{
    show("clipboard");
    gallery->clipboard.setHistoryEnabled(false);
    const auto* const paste = control<ToggleSwitch>("Paste into the previous app automatically");
    EXPECT_TRUE(control<ToggleSwitch>("Clipboard History")->isEnabled());
    EXPECT_FALSE(recorder()->isEnabled());
    EXPECT_FALSE(paste->isEnabled());
    EXPECT_FALSE(limit()->isEnabled());
    EXPECT_TRUE(control<QPushButton>("Clear")->isEnabled());
    EXPECT_TRUE(control<QPushButton>("Open Folder")->isEnabled());

    gallery->clipboard.setHistoryEnabled(true);
    EXPECT_TRUE(recorder()->isEnabled());
    EXPECT_TRUE(paste->isEnabled());
    EXPECT_TRUE(limit()->isEnabled());
}

TEST_F(ClipboardOptionsSectionTest, writesWhatIsDisabledInASubduedInk)
{
    show("clipboard-off");
    window->grab();
    const auto subdued = gallery->theme.colour(&ThemeTokens::subdued);
    for (const auto* const label : all<TextLabel>())
        if (!label->isEnabled()) {
            EXPECT_EQ(label->palette().color(QPalette::WindowText), subdued)
                << label->text().toStdString();
        }
    EXPECT_TRUE(says("Maximum items to keep"));
}

TEST_F(ClipboardOptionsSectionTest, stopsRecordingWhenTheHistoryIsSwitchedOff)
{
    show("clipboard");
    recorder()->click();
    EXPECT_TRUE(gallery->tap.isLive());
    gallery->clipboard.setHistoryEnabled(false);
    EXPECT_FALSE(recorder()->recording().value());
    EXPECT_FALSE(gallery->tap.isLive());
}

} // namespace
} // namespace brindlex
