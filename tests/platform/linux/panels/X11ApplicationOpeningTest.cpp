#include "platform/linux/panels/X11ApplicationOpening.h"

#include "platform/linux/system/SessionBus.h"
#include "support/basics/RecordedLog.h"
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

const std::filesystem::path overviewApplication = "/System/Applications/Mission Control.app";

/// The shell of a desktop with an overview, which notes what it is told.
class FakeShell : public QDBusVirtualObject {
public:
    FakeShell(const QStringList& names, const QStringList& paths)
        : bus_(session_.connection()), names_(names)
    {
        for (const auto& path : paths)
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
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        auto call = message.interface() + QLatin1Char('.') + message.member();
        for (const auto& argument : message.arguments())
            call += QLatin1Char(' ')
                + (argument.canConvert<QDBusVariant>()
                        ? argument.value<QDBusVariant>().variant().toString()
                        : argument.toString());
        calls.push_back(call.toStdString());
        if (refuses)
            return false;
        return bus.send(replyTo(message));
    }

    bool refuses = false;
    bool hasEffect = true;
    /// Whether it shows the overview; a shortcut changes that where the effect can run.
    bool isShown = false;
    bool canRun = true;
    std::vector<std::string> calls{};

private:
    QDBusMessage replyTo(const QDBusMessage& call)
    {
        if (call.member() == QStringLiteral("isEffectLoaded"))
            return call.createReply(hasEffect);
        if (call.member() == QStringLiteral("Get"))
            return call.createReply(QVariant::fromValue(
                QDBusVariant(isShown ? QStringList{"blur", "overview"} : QStringList{"blur"})));
        if (call.member() == QStringLiteral("invokeShortcut") && canRun)
            isShown = !isShown;
        return call.createReply();
    }

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
    X11ApplicationOpening opening{connection, applications};
};

TEST_F(X11ApplicationOpeningTest, opensTheListFromTheLoopAndClosesItTheNextTime)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});

    opening.open(overviewApplication);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(becomesShown());
    opening.open(overviewApplication);
    EXPECT_TRUE(isListShown());
    EXPECT_TRUE(becomesGone());
    opening.open(overviewApplication);
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
    opening.open(overviewApplication);

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
    opening.open(overviewApplication);
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
        X11ApplicationOpening other(connection, applications);
        other.open(overviewApplication);
    }
    EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));
}

class DesktopWithAnOverview : public X11ApplicationOpeningTest {
protected:
    void expectOverview(const FakeShell& shell, const std::vector<std::string>& calls)
    {
        opening.open(overviewApplication);

        EXPECT_TRUE(loopUntil([&] { return shell.calls == calls; }))
            << testing::PrintToString(shell.calls);
        EXPECT_TRUE(loopThroughout(50ms, [&] { return !isListShown(); }));
        EXPECT_EQ(log.lines(), std::vector<std::string>{});
    }
    void expectList(const std::string& reason)
    {
        opening.open(overviewApplication);

        EXPECT_TRUE(becomesShown());
        EXPECT_EQ(log.lines(),
            (std::vector<std::string>{"WARN [mouse] Mission Control: the desktop does not show its "
                                      "overview ("
                + reason + "); the list of windows is shown instead"}));
    }

    static QStringList kwin()
    {
        return {QStringLiteral("org.kde.KWin"), QStringLiteral("org.kde.kglobalaccel")};
    }
    static QStringList kwinPaths()
    {
        return {QStringLiteral("/component/kwin"), QStringLiteral("/Effects")};
    }

    static constexpr auto isLoaded = "org.kde.kwin.Effects.isEffectLoaded overview";
    static constexpr auto whatIsActive
        = "org.freedesktop.DBus.Properties.Get org.kde.kwin.Effects activeEffects";
    static constexpr auto shortcut = "org.kde.kglobalaccel.Component.invokeShortcut Overview";

    const PlainWindow window{server, {.wmClass = wmClass("Editor"), .title = "Letter"}};
};

TEST_F(DesktopWithAnOverview, isAskedToShowIt)
{
    const FakeShell shell(
        {QStringLiteral("org.gnome.Shell")}, {QStringLiteral("/org/gnome/Shell")});

    expectOverview(
        shell, {"org.freedesktop.DBus.Properties.Set org.gnome.Shell OverviewActive true"});
}

TEST_F(DesktopWithAnOverview, isAskedForTheShortcutOfItWhereItHasOne)
{
    const FakeShell shell(kwin(), kwinPaths());

    expectOverview(shell, {isLoaded, whatIsActive, shortcut, whatIsActive});
}

TEST_F(DesktopWithAnOverview, hidesTheOverviewThatIsShownAndShowsNoList)
{
    FakeShell shell(kwin(), kwinPaths());
    shell.isShown = true;

    expectOverview(shell, {isLoaded, whatIsActive, shortcut});

    EXPECT_TRUE(loopThroughout(400ms, [&] { return !isListShown(); }));
    EXPECT_FALSE(shell.isShown);
}

TEST_F(DesktopWithAnOverview, hasTheListWhereTheOverviewDoesNotCome)
{
    FakeShell shell(kwin(), kwinPaths());
    shell.canRun = false;

    expectList("KWin does not start the effect");
}

TEST_F(DesktopWithAnOverview, hasTheListWhereTheOverviewCannotRun)
{
    FakeShell shell(kwin(), kwinPaths());
    shell.hasEffect = false;

    expectList("KWin has not loaded the effect");

    EXPECT_EQ(shell.calls, std::vector<std::string>{isLoaded});
}

TEST_F(DesktopWithAnOverview, hasTheListWhereItRefuses)
{
    FakeShell shell({QStringLiteral("org.gnome.Shell")}, {QStringLiteral("/org/gnome/Shell")});
    shell.refuses = true;

    opening.open(overviewApplication);

    EXPECT_TRUE(becomesShown());
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_TRUE(log.lines()[0].starts_with(
        "WARN [mouse] Mission Control: the desktop does not show its overview ("))
        << log.lines()[0];
}

} // namespace
} // namespace brindlex
