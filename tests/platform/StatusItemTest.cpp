#include "platform/StatusItem.h"

#include "platform/StatusBars.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const StatusItemContents usualContents{
    "Program", {{1, "Look & see", false}, {}, {2, "Open it"}, {}, {3, "Quit_it"}}};

template <typename Bar>
class StatusItemContract : public testing::Test {
protected:
    StatusItem& item() { return bar.item(); }
    bool isOnDesktopSoon(bool isOnDesktop)
    {
        return bar.until([&] { return item().isOnDesktop().value() == isOnDesktop; });
    }
    void showInPlace()
    {
        bar.come();
        item().show(usualContents);
        ASSERT_TRUE(isOnDesktopSoon(true));
    }
    bool seesMenuSoon(const SeenMenu& menu)
    {
        return bar.until([&] { return bar.menu() == menu; });
    }
    bool happensSoon(const std::vector<std::string>& expected)
    {
        return bar.until([&] { return happened.size() >= expected.size(); })
            && happened == expected;
    }

    Bar bar;
    std::vector<std::string> happened;
    Subscription clicks = item().observeActivation([this] { happened.push_back("click"); });
    Subscription choices = item().observeChoice(
        [this](int id) { happened.push_back("choose " + std::to_string(id)); });
};

class StatusBarNames {
public:
    template <typename Bar>
    static std::string GetName(int)
    {
        if (std::is_same_v<Bar, NotifierStatusBar>)
            return "Notifier";
        return std::is_same_v<Bar, DockStatusBar> ? "Docked" : "Simulated";
    }
};
using StatusBars = testing::Types<SimulatedStatusBar, NotifierStatusBar, DockStatusBar>;
TYPED_TEST_SUITE(StatusItemContract, StatusBars, StatusBarNames);

TYPED_TEST(StatusItemContract, isNowhereBeforeItIsShown)
{
    this->bar.come();

    EXPECT_TRUE(this->bar.until([&] { return this->bar.isEmpty(); }));
    EXPECT_FALSE(this->item().isOnDesktop().value());
}

TYPED_TEST(StatusItemContract, isShownWhereThereIsAPlace)
{
    this->showInPlace();

    EXPECT_TRUE(this->bar.until([&] { return this->bar.title() == "Program"; }));
    EXPECT_TRUE(this->seesMenuSoon({"(Look & see)", "-", "Open it", "-", "Quit_it"}));
}

TYPED_TEST(StatusItemContract, comesWithAPlaceHoweverOftenThatComesAndGoes)
{
    this->item().show(usualContents);
    EXPECT_FALSE(this->item().isOnDesktop().value());

    for (int time = 0; time < 3; ++time) {
        this->bar.come();
        EXPECT_TRUE(this->isOnDesktopSoon(true));
        EXPECT_TRUE(this->bar.until([&] { return !this->bar.isEmpty(); }));
        this->bar.go();
        EXPECT_TRUE(this->isOnDesktopSoon(false));
    }
}

TYPED_TEST(StatusItemContract, goesWhenItIsHiddenAndComesAgain)
{
    for (int time = 0; time < 2; ++time) {
        this->showInPlace();
        this->item().hide();
        EXPECT_FALSE(this->item().isOnDesktop().value());
        EXPECT_TRUE(this->bar.until([&] { return this->bar.isEmpty(); }));
    }
}

TYPED_TEST(StatusItemContract, notifiesOfEachClick)
{
    this->showInPlace();

    this->bar.click();
    EXPECT_TRUE(this->happensSoon({"click"}));
    this->bar.click();

    EXPECT_TRUE(this->happensSoon({"click", "click"}));
}

TYPED_TEST(StatusItemContract, notifiesOfWhatIsChosen)
{
    this->showInPlace();

    this->bar.choose("Open it");

    EXPECT_TRUE(this->happensSoon({"choose 2"}));
}

TYPED_TEST(StatusItemContract, leavesOutWhatCannotBeChosen)
{
    this->item().show({"Program", {{1, "Look", false}, {2, "Open"}}});
    this->bar.come();
    ASSERT_TRUE(this->isOnDesktopSoon(true));

    this->bar.choose("Look");
    this->bar.choose("Open");

    EXPECT_TRUE(this->happensSoon({"choose 2"}));
}

TYPED_TEST(StatusItemContract, followsItsContents)
{
    this->item().show({"Program", {{1, "Look", false}}});
    this->bar.come();
    ASSERT_TRUE(this->isOnDesktopSoon(true));
    ASSERT_TRUE(this->seesMenuSoon({"(Look)"}));

    this->item().show({"Another", {{1, "Look"}}});

    EXPECT_TRUE(this->bar.until([&] { return this->bar.title() == "Another"; }));
    EXPECT_TRUE(this->seesMenuSoon({"Look"}));
    this->bar.choose("Look");
    EXPECT_TRUE(this->happensSoon({"choose 1"}));
    EXPECT_TRUE(this->item().isOnDesktop().value());
}

TYPED_TEST(StatusItemContract, mayBeHiddenByWhatIsChosen)
{
    this->showInPlace();
    const auto hiding = this->item().observeChoice([this](int) { this->item().hide(); });

    this->bar.choose("Open it");

    EXPECT_TRUE(this->happensSoon({"choose 2"}));
    EXPECT_TRUE(this->bar.until([&] { return this->bar.isEmpty(); }));
}

TYPED_TEST(StatusItemContract, notifiesNobodyWhoHasEndedTheSubscription)
{
    this->showInPlace();
    this->clicks.reset();
    int chosen = 0;
    const auto other = this->item().observeChoice([&](int id) { chosen = id; });
    this->choices.reset();

    this->bar.click();
    this->bar.choose("Open it");

    EXPECT_TRUE(this->bar.until([&] { return chosen == 2; }));
    EXPECT_EQ(this->happened, std::vector<std::string>{});
}

} // namespace
} // namespace brindlex
