#include "clipboard/views/ClipboardSettingsScreen.h"

#include "clipboard/views/ClipboardSettingsScreenFixture.h"
#include "support/views/ScopedFont.h"
#include "support/views/TextFit.h"

namespace brindlex {
namespace {

using ClipboardSettingsScreenTest = ClipboardSettingsScreenFixture;

using Keys = ClipboardPreferenceKeys;

/// The screen at its fullest: with a question, a warning and a limit of its own.
void expectRoom(ScreenGallery& gallery, QWidget& window)
{
    writePreference(
        gallery.computer.defaults, Keys{}.clipboardHotkey, HotkeyCombo{virtualKey::s, {}});
    writePreference(gallery.computer.defaults, Keys{}.clipboardMaxItems, 1'234'567);
    for (auto* const button : window.findChildren<QPushButton*>())
        if (button->isVisible() && button->property("role") == "danger")
            button->click();
    // A chooser that has become wider lays out its row, the card and the page, one after the other.
    for (int pass = 0; pass < 5; ++pass)
        QApplication::processEvents();
    EXPECT_EQ(textFaults(window), std::vector<std::string>{}) << gallery.strings.language();
}

TEST_F(ClipboardSettingsScreenTest, cutsOffNoTextInAnyLanguage)
{
    for (const auto* const language : {"en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"}) {
        for (const auto brightness : {Brightness::light, Brightness::dark}) {
            show("clipboard", language, brightness);
            expectRoom(*gallery, *window);
        }
        const ScopedFont large(1.5);
        show("clipboard", language);
        expectRoom(*gallery, *window);
    }
}

TEST_F(ClipboardSettingsScreenTest, needsNoScrollingInTheWindowAsItOpens)
{
    for (const auto* const language : {"en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"}) {
        show("clipboard", language);
        const auto* const clear = all<ClipboardClearRow>().at(0);
        EXPECT_LE(middleOf(clear).y() + clear->height() / 2, window->height()) << language;
    }
}

} // namespace
} // namespace brindlex
