#include "platform/linux/tray/TrayStatusItem.h"

#include "platform/linux/tray/TrayStatusItemFixture.h"
#include "support/basics/RecordedLog.h"
#include "support/bus/PrivateBus.h"

namespace brindlex {
namespace {

/// Which of the trays has the icon.
class TrayStatusItemTest : public TrayStatusItemFixture { };

TEST_F(TrayStatusItemTest, saysOfItselfWhatHostsAskFor)
{
    host.emplace();
    show();
    ASSERT_TRUE(isAtHostAlone());

    EXPECT_TRUE(until([this] { return !host->properties().empty(); }));
    const std::map<std::string, std::string> expected{{"Category", "ApplicationStatus"},
        {"Id", "org.example.Program"}, {"Title", "Program"}, {"Status", "Active"}, {"WindowId", ""},
        {"IconName", ""}, {"IconPixmap", "16 22 24 32 44 48 64 "}, {"IconThemePath", ""},
        {"OverlayIconName", ""}, {"OverlayIconPixmap", ""}, {"AttentionIconName", ""},
        {"AttentionIconPixmap", ""}, {"AttentionMovieName", ""}, {"ToolTip", ""},
        {"ItemIsMenu", "false"}, {"Menu", "/MenuBar"}};
    EXPECT_EQ(host->properties(), expected);
}

TEST_F(TrayStatusItemTest, goesFromTheOneKindOfTrayToTheOtherAndBack)
{
    tray.emplace();
    show();
    ASSERT_TRUE(isInTrayAlone());

    for (int time = 0; time < 2; ++time) {
        host.emplace();
        EXPECT_TRUE(isAtHostAlone());
        EXPECT_TRUE(until([this] { return !isInTray(); }));
        host.reset();
        EXPECT_TRUE(isInTrayAlone());
    }
}

TEST_F(TrayStatusItemTest, isNotInATrayEvenForAMomentWhereAHostIsThere)
{
    tray.emplace();
    host.emplace();
    show();
    ASSERT_TRUE(isAtHostAlone());

    EXPECT_EQ(tray->requests(), 0);
}

TEST_F(TrayStatusItemTest, isInATrayWhileTheWatcherHasNoHost)
{
    tray.emplace();
    host.emplace();
    host->setHost(false);
    show();
    ASSERT_TRUE(isInTrayAlone());

    host->setHost(true);
    EXPECT_TRUE(isAtHostAlone());
    host->setHost(false);
    EXPECT_TRUE(isInTrayAlone());
}

TEST_F(TrayStatusItemTest, isInATrayWhereTheWatcherRefusesIt)
{
    const RecordedLog log;
    tray.emplace();
    host.emplace();
    host->refuseItems();
    show();

    EXPECT_TRUE(isInTrayAlone());
    for (int time = 2; time <= 4; ++time) {
        host->setHost(true);
        EXPECT_TRUE(until([&] { return host->registrations() == time; }));
    }
    EXPECT_TRUE(isInTrayAlone());
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [lifecycle] The tray refuses the icon: No room"});
}

TEST_F(TrayStatusItemTest, isInATrayWhileTheWatcherSaysNothing)
{
    tray.emplace();
    host.emplace();
    show();

    // The host works only while it is asked something.
    EXPECT_TRUE(loopUntil([this] { return isInTray() && isOnDesktop(); }));

    EXPECT_TRUE(isAtHostAlone()) << "it has its wits about it again";
    EXPECT_TRUE(until([this] { return !isInTray(); }));
}

TEST_F(TrayStatusItemTest, isInATrayWithoutABus)
{
    SessionBus none{std::string()};
    TrayStatusItem other(display, none.connection(), "org.example.Program");
    tray.emplace();
    other.show({"Program", {}});

    EXPECT_TRUE(until([&] { return isInTray() && other.isOnDesktop().value(); }));
}

TEST_F(TrayStatusItemTest, goesToATrayWhenTheBusGoes)
{
    PrivateBus mortal;
    SessionBus connection(mortal.address());
    TrayStatusItem other(display, connection.connection(), "org.example.Program");
    host.emplace(mortal.address());
    other.show({"Program", {}});
    ASSERT_TRUE(until([&] { return other.isOnDesktop().value(); }));

    mortal.end();
    tray.emplace();

    EXPECT_TRUE(until([&] { return isInTray() && other.isOnDesktop().value(); }));
}

TEST_F(TrayStatusItemTest, opensItsOwnMenuForAHostThatDrawsNone)
{
    host.emplace();
    show();
    ASSERT_TRUE(isAtHostAlone());

    host->askForMenu();

    EXPECT_TRUE(until([] { return QApplication::activePopupWidget() != nullptr; }));
}

TEST_F(TrayStatusItemTest, takesNothingOfAMenuThatItsHostLeftOpen)
{
    host.emplace();
    show();
    ASSERT_TRUE(isAtHostAlone());
    std::vector<int> chosen;
    const auto choosing = item.observeChoice([&](int id) { chosen.push_back(id); });
    ASSERT_TRUE(until([this] { return !host->menu().empty(); }));
    host->report("Open", "opened");

    host.reset();
    ASSERT_TRUE(until([this] { return !isOnDesktop(); }));
    host.emplace();
    ASSERT_TRUE(isAtHostAlone());
    ASSERT_TRUE(until([this] { return !host->menu().empty(); }));
    host->choose("Quit");

    EXPECT_TRUE(until([&] { return !chosen.empty(); }));
    EXPECT_EQ(chosen, std::vector{2});
}

TEST_F(TrayStatusItemTest, mayBeHiddenByWhoHearsThatItHasComeOrGone)
{
    const auto hiding = item.isOnDesktop().subscribe([this](bool isThere) {
        if (isThere)
            item.hide();
    });

    for (int time = 0; time < 2; ++time) {
        host.emplace();
        show();
        EXPECT_TRUE(until([&] { return presences == (std::vector{false, true, false}); }));
        host.reset();
        tray.emplace();
        show();
        EXPECT_TRUE(until([&] {
            return presences == (std::vector{false, true, false, true, false});
        }));
        tray.reset();
        presences = {false};
    }
}

} // namespace
} // namespace brindlex
