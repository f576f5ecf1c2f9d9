#include "inputmethod/SwitchReducerFixture.h"

namespace brindlex {
namespace {

TEST_F(SwitchReducer, leavesAUsersOverrideAlone)
{
    begin();
    activate(editor);
    echo();
    userSelects(english);
    EXPECT_EQ(activate(editor), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducer, forgetsTheOverrideAfterASwitchElsewhere)
{
    config.rules.push_back(appRule(mail, french));
    begin();
    activate(editor);
    echo();
    userSelects(english);
    EXPECT_EQ(activate(mail), Effects({Effect::FireHUD{"Français"}}));
    echo();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, keepsTheOverrideAfterAPlaceWhoseSourceIsRight)
{
    config.rules.push_back(appRule(mail, english));
    begin();
    activate(editor);
    echo();
    userSelects(english);
    EXPECT_EQ(activate(mail), Effects());
    EXPECT_EQ(activate(editor), Effects()) << "the visit was not noted";
}

TEST_F(SwitchReducer, keepsTheOverrideAfterAPlaceWithoutARule)
{
    begin();
    activate(editor);
    echo();
    userSelects(english);
    activate(mail);
    EXPECT_EQ(activate(editor), Effects());
}

TEST_F(SwitchReducer, forgetsTheOverrideAfterAFailedSwitchElsewhere)
{
    config.rules.push_back(appRule(mail, french));
    begin();
    activate(editor);
    echo();
    userSelects(english);
    computer.refusedSources = {french};
    activate(mail);
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, followsAChangedRuleInSpiteOfTheOverride)
{
    begin();
    activate(editor);
    echo();
    userSelects(english);
    config.rules = {appRule(editor, french)};
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Français"}}));
}

TEST_F(SwitchReducer, keepsTheOverrideThroughAStop)
{
    begin();
    activate(editor);
    echo();
    userSelects(english);
    reduce(Event::Stop{});
    computer.frontmostBundleID = editor;
    EXPECT_EQ(reduce(Event::Start{}), Effects({Effect::InstallObservers{}}));
}

TEST_F(SwitchReducer, keepsTheOverrideAcrossThePagesOfOneRule)
{
    config.domainRulesEnabled = true;
    begin();
    computer.page = "shop.example.com";
    activate(browser);
    echo();
    userSelects(english);
    EXPECT_EQ(tick("mail.example.com"), Effects());
    EXPECT_EQ(tick("example.com"), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducer, keepsTheOverrideOfTheBrowsersRuleInANewTab)
{
    config.domainRulesEnabled = true;
    config.rules.push_back(appRule(browser, german));
    begin();
    computer.page = "other.org";
    activate(browser);
    echo();
    userSelects(english);
    EXPECT_EQ(tick(std::nullopt), Effects());
    EXPECT_EQ(tick("another.org"), Effects());
}

} // namespace
} // namespace brindlex
