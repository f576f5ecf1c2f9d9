#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"
#include "inputmethod/SwitchExplanation.h"

namespace brindlex {
namespace {

using Explanation = SwitchExplanation;

/// What the coordinator notes of why an application has its source.
class InputMethodSwitchCoordinatorReasonsTest : public InputMethodSwitchCoordinatorTest {
protected:
    void bringToFront(std::int64_t process, const std::string& id)
    {
        computer.applications.bringToFront(application(process, id));
        computer.mainThread.runUntilIdle();
    }
    void userSelects(const std::string& source)
    {
        computer.inputSources.userSelects(source);
        computer.mainThread.runUntilIdle();
    }
    Explanation::Any why(const std::string& bundleID)
    {
        return explanation(subsystem.switchReasons().reason(bundleID));
    }
    Date now() { return computer.clock.now(); }
};

TEST_F(InputMethodSwitchCoordinatorReasonsTest, saysWhichRuleHasNotBeenUsed)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();

    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::NotUsedYet{}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, namesTheRuleThatAskedForWhatWasSelectedAlready)
{
    change([](auto& config) { config.rules = {rule("mail", us)}; });
    start();
    computer.clock.advance(60);

    bringToFront(2, "mail");

    ASSERT_EQ(selected(), us);
    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::ManualRule{now()}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, namesTheRuleOfTheApplication)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();
    computer.clock.advance(60);

    bringToFront(2, "mail");

    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::ManualRule{now()}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, namesTheRuleOfTheWebsite)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    computer.browserPages.setPage(browser, "https://www.example.de/seite");
    start();

    bringToFront(2, browser);
    computer.mainThread.advance(0.01);

    ASSERT_EQ(selected(), german);
    const auto reason = subsystem.switchReasons().reason(browser);
    ASSERT_TRUE(reason);
    EXPECT_EQ(explanation(reason),
        Explanation::Any(Explanation::WebsiteRule{"example.de", reason->usedAt}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, saysHowManyChangesWereLearnedFrom)
{
    auto learned = smartStore.config().value();
    learned.enabled = true;
    for (int sample = 0; sample < 10; ++sample)
        learned.recordSample(german, {"mail", "Mail", {}}, now());
    smartStore.setConfig(learned);
    start();

    bringToFront(2, "mail");

    ASSERT_EQ(selected(), german);
    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::LearnedRule{10, now()}));
}

TEST_F(
    InputMethodSwitchCoordinatorReasonsTest, saysThatTheUserHasOverriddenUntilAnotherPlaceDecides)
{
    change([](auto& config) { config.rules = {rule("mail", german), rule("chat", german)}; });
    start();
    bringToFront(2, "mail");
    const auto used = now();
    computer.clock.advance(60);

    userSelects(us);
    const auto changed = now();
    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::Overridden{changed}));

    computer.clock.advance(60);
    bringToFront(1, "editor");
    bringToFront(2, "mail");
    EXPECT_EQ(selected(), us) << "it stands";
    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::Overridden{changed}));

    bringToFront(3, "chat");
    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::ManualRule{used}));
    EXPECT_EQ(why("chat"), Explanation::Any(Explanation::ManualRule{now()}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, countsAFailedSelectionForNoUse)
{
    change([](auto& config) { config.rules = {rule("mail", "xkb:xx::none")}; });
    start();

    bringToFront(2, "mail");

    EXPECT_EQ(why("mail"), Explanation::Any(Explanation::NotUsedYet{}));
}

TEST_F(InputMethodSwitchCoordinatorReasonsTest, isFollowedByWhoeverSubscribes)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();
    std::vector<std::size_t> sizes;
    const auto token = subsystem.switchReasons().byApplication().subscribe(
        [&](const SwitchReasons::ByApplication& reasons) { sizes.push_back(reasons.size()); });

    bringToFront(2, "mail");

    EXPECT_EQ(sizes, (std::vector<std::size_t>{0, 1}));
}

} // namespace
} // namespace brindlex
