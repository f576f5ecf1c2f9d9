#include "platform/linux/panels/X11ApplicationOpening.h"

#include "support/basics/RecordedLog.h"
#include "support/bus/SessionBus.h"
#include "support/hardware/PlayedInput.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

const std::filesystem::path missionControl = "/System/Applications/Mission Control.app";

/// The shell of a desktop with an overview, which notes what it is told.
class FakeShell : public QDBusVirtualObject {
public:
    FakeShell(const QStringList& names, const QString& path) : bus_(session_.get()), names_(names)
    {
        EXPECT_TRUE(bus_.registerVirtualObject(path, this));
        for (const auto& name : names_)
            EXPECT_TRUE(bus_.registerService(name));
    }
    ~FakeShell() override
    {
        for (const auto& name : names_)
            bus_.unregisterService(name);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        auto call = message.interface() + QLatin1Char('.') + message.member();
        for (const auto& argument : message.arguments())
            call += QLatin1Char(' ')
                + (argument.canConvert<QDBusVariant>()
                        ? argument.value<QDBusVariant>().variant().toString()
                        : argument.toString());
        calls.push_back(call.toStdString());
        return false;
    }

    std::vector<std::string> calls{};

private:
    SessionBus session_;
    QDBusConnection bus_;
    QStringList names_;
};

class X11ApplicationOpeningTest : public testing::Test {
protected:
    bool isListShown() const { return !windows.unmanagedOf(getpid()).empty(); }
    bool becomesShown()
    {
        return loopUntil([&] { return isListShown(); });
    }
    bool becomesGone()
    {
        return loopUntil([&] { return !isListShown(); });
    }

    RecordedLog log;
    XConnection server;
    DesktopWindows windows{server};
    PlayedInput input{server};
    X11Connection connection;
    X11ActiveWindow activeWindow{connection};
    DesktopEntries entries{{}, {}};
    X11RunningApplications applications{connection, activeWindow, entries};
    X11ApplicationOpening opening{connection, activeWindow, applications};
};

TEST_F(X11ApplicationOpeningTest, opensTheListFromTheLoopAndClosesItTheNextTime)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});

    opening.open(missionControl);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(becomesShown());
    opening.open(missionControl);
    EXPECT_TRUE(isListShown());
    EXPECT_TRUE(becomesGone());
    opening.open(missionControl);
    EXPECT_TRUE(becomesShown());
}

TEST_F(X11ApplicationOpeningTest, knowsMissionControlByItsNameAlone)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    for (const std::filesystem::path path : {"/Applications/Launchpad.app", "",
             "/Mission Control.app/Contents", "mission control.app", "Mission Control.app/"})
        opening.open(path);
    EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));

    opening.open("Mission Control.app");

    EXPECT_TRUE(becomesShown());
}

TEST_F(X11ApplicationOpeningTest, onlyLogsWhereNoWindowIsOpen)
{
    opening.open(missionControl);

    EXPECT_TRUE(loopUntil([&] { return !log.lines().empty(); }));
    EXPECT_EQ(
        log.lines(), (std::vector<std::string>{"INFO [mouse] Mission Control: no window is open"}));
    EXPECT_FALSE(isListShown());
}

TEST_F(X11ApplicationOpeningTest, bringsTheWindowBeforeToTheFront)
{
    const PlainWindow first(server, {.wmClass = wmClass("Editor"), .title = "First"});
    const PlainWindow second(server, {.wmClass = wmClass("Editor"), .title = "Second"});
    ASSERT_TRUE(windows.activate(first.window()));
    ASSERT_TRUE(windows.activate(second.window()));
    ASSERT_TRUE(loopUntil([&] { return activeWindow.window() == second.window(); }));
    opening.open(missionControl);
    ASSERT_TRUE(becomesShown());

    // The list may not have the keys yet: the key is played again until it has.
    EXPECT_TRUE(loopUntil([&] {
        if (isListShown())
            input.type("\n");
        return windows.active() == first.window();
    }));
    EXPECT_TRUE(becomesGone());
}

TEST_F(X11ApplicationOpeningTest, forgetsTheListWithItself)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    {
        X11ApplicationOpening other(connection, activeWindow, applications);
        other.open(missionControl);
    }
    EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));
}

TEST_F(X11ApplicationOpeningTest, showsTheOverviewOfTheDesktopThatHasOne)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    FakeShell shell({QStringLiteral("org.gnome.Shell")}, QStringLiteral("/org/gnome/Shell"));

    opening.open(missionControl);

    EXPECT_TRUE(loopUntil([&] { return !shell.calls.empty(); }));
    EXPECT_EQ(shell.calls,
        (std::vector<std::string>{
            "org.freedesktop.DBus.Properties.Set org.gnome.Shell OverviewActive true"}));
    EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));
}

TEST_F(X11ApplicationOpeningTest, asksTheDesktopWithShortcutsForTheOneOfItsOverview)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    FakeShell shell({QStringLiteral("org.kde.KWin"), QStringLiteral("org.kde.kglobalaccel")},
        QStringLiteral("/component/kwin"));

    opening.open(missionControl);

    EXPECT_TRUE(loopUntil([&] { return !shell.calls.empty(); }));
    EXPECT_EQ(shell.calls,
        (std::vector<std::string>{"org.kde.kglobalaccel.Component.invokeShortcut Overview"}));
    EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));
}

} // namespace
} // namespace brindlex
