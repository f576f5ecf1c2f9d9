#include "inputmethod/views/InputMethodSettingsScreenFixture.h"

#include "ui/controls/TextLabel.h"

#include <QTableView>

namespace brindlex {
namespace {

using Source = InputMethodSwitchDecisionSource;

/// The lines that say why an application has its input source.
class WhyWordsTest : public InputMethodSettingsScreenTest {
protected:
    WhyWordsTest()
    {
        gallery.computer.clock.setNow(dateFromISO8601("2026-11-22T14:05:00Z").value());
        gallery.chosenApplication = "/apps/editor";
        gallery.inputMethod.addAppRule("/apps/editor");
    }
    void noteSwitch(const std::string& bundleID, Source source, const std::string& website = {})
    {
        const auto suffix = website.empty() ? std::nullopt : std::optional(website);
        const InputMethodSwitchDecision decision{bundleID, suffix, "xkb:de::deu", source};
        const auto context = autoSwitchContext(decision);
        state.override = {context, context, "xkb:de::deu"};
        gallery.reasons.noteSwitch(decision, gallery.inputMethod.smartConfig(), now());
        gallery.reasons.noteEvent(SwitchEvent::AppActivated{bundleID}, state, now());
    }
    void userSelects(const std::string& source)
    {
        state.standing.isChosenSinceSwitch = true;
        state.lastInputSourceID = source;
        gallery.reasons.noteEvent(SwitchEvent::InputSourceChanged{}, state, now());
    }
    Date now() { return gallery.computer.clock.now(); }
    /// Whether a line that is to be seen says it.
    bool isShown(const QString& words)
    {
        QApplication::processEvents();
        for (const auto* const label : window->findChildren<TextLabel*>())
            if (label->isVisible() && label->text().simplified() == words)
                return true;
        return false;
    }

    SwitchState state;
};

TEST_F(WhyWordsTest, followWhatARuleDoesUnderItsRow)
{
    EXPECT_TRUE(isShown("Not used yet"));

    noteSwitch("org.example.Editor", Source::manualAppRule);

    EXPECT_TRUE(isShown("This rule, last used today, 2:05 PM"));
    EXPECT_FALSE(isShown("Not used yet"));
}

TEST_F(WhyWordsTest, nameTheWebsiteThatDecidedInTheApplication)
{
    noteSwitch("org.example.Editor", Source::websiteRule, "github.com");

    EXPECT_TRUE(isShown("The rule for github.com, last used today, 2:05 PM"));
}

TEST_F(WhyWordsTest, sayThatTheUserHasChangedIt)
{
    noteSwitch("org.example.Editor", Source::manualAppRule);
    gallery.computer.clock.advance(60);

    userSelects("xkb:us::eng");

    EXPECT_TRUE(isShown("Changed by hand today, 2:06 PM; holds until another place decides"));
}

TEST_F(WhyWordsTest, neverTakeThePlaceOfAWarning)
{
    gallery.inputMethod.setAppRuleSource(
        gallery.inputMethod.config().rules.front().id, "ibus:libpinyin");
    noteSwitch("org.example.Editor", Source::manualAppRule);

    EXPECT_TRUE(isShown("Input source not found"));
    EXPECT_FALSE(isShown("This rule, last used today, 2:05 PM"));
}

TEST_F(WhyWordsTest, goWithTheDays)
{
    noteSwitch("org.example.Editor", Source::manualAppRule);
    gallery.computer.clock.advance(24 * 3'600);

    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(window->findChild<InputMethodSettingsScreen*>(), &activated);

    EXPECT_TRUE(isShown("This rule, last used yesterday"));
}

/// The same beside the table of what was learned.
class WhyWordsInTableTest : public WhyWordsTest {
protected:
    WhyWordsInTableTest()
    {
        gallery.inputMethod.changeSmart([](auto& config) { config.enabled = true; });
        window = gallery.show("keyboard");
    }
    QTableView& table() { return *window->findChild<QTableView*>(); }
    QVariant firstCell(int role) { return table().model()->index(0, 0).data(role); }
};

TEST_F(WhyWordsInTableTest, areThoseOfTheSelectedApplication)
{
    noteSwitch("org.example.Code", Source::smartAppRule);
    EXPECT_FALSE(isShown("Why this source?"));

    table().selectRow(0);

    EXPECT_TRUE(isShown("Why this source?"));
    EXPECT_TRUE(isShown("Learned from 10 changes by hand, last used today, 2:05 PM"));
}

TEST_F(WhyWordsInTableTest, followWhatHappensToTheSelectedApplication)
{
    table().selectRow(0);
    EXPECT_TRUE(isShown("Not used yet"));

    noteSwitch("org.example.Code", Source::manualAppRule);

    EXPECT_TRUE(isShown("The rule for Code, last used today, 2:05 PM"));
}

TEST_F(WhyWordsInTableTest, areReadWithTheName)
{
    noteSwitch("org.example.Code", Source::websiteRule, "github.com");

    const QString words = "The rule for github.com, last used today, 2:05 PM";
    EXPECT_EQ(firstCell(Qt::AccessibleDescriptionRole).toString().simplified(), words);
    EXPECT_EQ(firstCell(Qt::ToolTipRole).toString().simplified(), "Code " + words);
}

} // namespace
} // namespace brindlex
