#include "inputmethod/views/InputMethodSettingsScreenFixture.h"

#include "ui/controls/TableCells.h"

#include <QPushButton>
#include <QToolButton>

namespace brindlex {
namespace {

TEST_F(InputMethodSettingsScreenTest, storesWhatIsSwitchedAtOnce)
{
    control<QAbstractButton>("Enable automatic switching")->click();
    control<QAbstractButton>("Show HUD on switch")->click();
    control<QAbstractButton>("Enable website switching")->click();
    control<QAbstractButton>("Enable smart rules")->click();
    control<QAbstractButton>("Learn from manual switches")->click();

    EXPECT_FALSE(config().enabled);
    EXPECT_FALSE(config().showHUD);
    EXPECT_TRUE(config().domainRulesEnabled);
    EXPECT_TRUE(gallery.inputMethod.smartConfig().enabled);
    EXPECT_FALSE(gallery.inputMethod.smartConfig().learningEnabled);
}

TEST_F(InputMethodSettingsScreenTest, addsARuleForTheApplicationThatIsChosen)
{
    control<QPushButton>("Add App")->click();

    ASSERT_EQ(config().rules.size(), 1U);
    EXPECT_EQ(gallery.choices, 1);
    auto* const source = control<QComboBox>("Editor: Input Source");
    ASSERT_TRUE(source);
    press(source, Qt::Key_Down);
    EXPECT_EQ(config().rules.front().inputSourceID, "xkb:de::deu");
}

TEST_F(InputMethodSettingsScreenTest, putsTheFocusOnTheSourceOfANewRule)
{
    window->activateWindow();
    control<QPushButton>("Add App")->click();

    EXPECT_EQ(QApplication::focusWidget(), control<QComboBox>("Editor: Input Source"));
}

TEST_F(InputMethodSettingsScreenTest, removesARuleAndBringsItBackToItsPlace)
{
    control<QPushButton>("Add App")->click();
    gallery.chosenApplication = "/apps/mail";
    control<QPushButton>("Add App")->click();
    const auto before = config().rules;

    control<QToolButton>("Remove: Editor")->click();
    EXPECT_EQ(config().rules.size(), 1U);
    control<QPushButton>("Undo")->click();

    EXPECT_EQ(config().rules, before);
}

TEST_F(InputMethodSettingsScreenTest, addsAWebsiteByItsBareDomain)
{
    auto* const field = control<QLineEdit>("Domain or URL");
    type(field, "https://www.Example.org/path?q=1");
    press(field, Qt::Key_Return);

    ASSERT_EQ(config().domainRules.size(), 1U);
    EXPECT_EQ(config().domainRules.front().domainSuffix, "example.org");
    EXPECT_EQ(field->text(), "");
    EXPECT_TRUE(control<QComboBox>("example.org: Input Source"));
}

TEST_F(InputMethodSettingsScreenTest, leavesTheFieldWhereNothingIsAdded)
{
    auto* const field = control<QLineEdit>("Domain or URL");
    type(field, "no domain");
    control<QPushButton>("Add Website")->click();

    EXPECT_TRUE(config().domainRules.empty());
    EXPECT_EQ(field->text(), "no domain");
}

TEST_F(InputMethodSettingsScreenTest, takesAMegabyteInTheFieldOfWebsites)
{
    auto* const field = control<QLineEdit>("Domain or URL");
    type(field, QString(1'000'000, 'g'));
    press(field, Qt::Key_Return);

    EXPECT_LE(field->text().size(), 2'000);
    EXPECT_TRUE(config().domainRules.empty());
}

TEST_F(InputMethodSettingsScreenTest, suggestsWebsitesWithTheirNames)
{
    type(control<QLineEdit>("Domain or URL"), "git");

    const auto* const suggestions = control<SuggestionList>("Domain or URL");
    ASSERT_TRUE(suggestions);
    ASSERT_EQ(suggestions->model()->rowCount(), 1);
    const auto suggestion = suggestions->model()->index(0, 0);
    EXPECT_EQ(suggestion.data(), "github.com");
    EXPECT_EQ(suggestion.data(trailingTextRole), "GitHub");
    EXPECT_EQ(suggestion.data(Qt::AccessibleDescriptionRole), "GitHub");
}

TEST_F(InputMethodSettingsScreenTest, addsTheWebsiteThatIsTakenFromTheSuggestions)
{
    auto* const field = control<QLineEdit>("Domain or URL");
    type(field, "git");
    press(field, Qt::Key_Down);
    press(field, Qt::Key_Return);

    ASSERT_EQ(config().domainRules.size(), 1U);
    EXPECT_EQ(config().domainRules.front().domainSuffix, "github.com");
    EXPECT_EQ(field->text(), "");
}

TEST_F(InputMethodSettingsScreenTest, suggestsNothingForASingleLetter)
{
    auto* const field = control<QLineEdit>("Domain or URL");
    type(field, "git");
    const auto* const suggestions = control<SuggestionList>("Domain or URL");
    ASSERT_TRUE(suggestions);

    type(field, "g");

    EXPECT_EQ(suggestions->model()->rowCount(), 0);
    EXPECT_TRUE(suggestions->isHidden());
}

TEST_F(InputMethodSettingsScreenTest, followsWhatAnotherProcessWrites)
{
    InputMethodConfig other;
    other.rules = {{Uuid::random(), {"org.example.Other", "Other", {}}, "xkb:de::deu"}};
    gallery.inputMethodStore.applyLoadedConfig(other);

    const auto* const source = control<QComboBox>("Other: Input Source");
    ASSERT_TRUE(source);
    EXPECT_EQ(source->currentText(), "German");
}

TEST_F(InputMethodSettingsScreenTest, storesTheChoicesOfTheLearning)
{
    const auto chooseNext
        = [&](const QString& name) { press(control<QComboBox>(name), Qt::Key_Down); };
    chooseNext("Priority");
    chooseNext("Activation threshold");
    chooseNext("Sample window");
    chooseNext("App limit");

    const auto& smart = gallery.inputMethod.smartConfig();
    EXPECT_EQ(smart.priority, SmartInputMethodPriority::beforeManualAppRules);
    EXPECT_EQ(smart.thresholdRatio, SmartInputMethodThresholdRatio::ninety);
    EXPECT_EQ(smart.windowSize, SmartInputMethodWindowSize::twenty);
    EXPECT_EQ(smart.appLimit, SmartInputMethodAppLimit::top30);
}

} // namespace
} // namespace brindlex
