#include "platform/linux/programwindows/QtProgramWindows.h"

#include "platform/linux/bus/SessionBusAddress.h"
#include "support/bus/SilentBus.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace brindlex {
namespace {

/// A window that may be kept open.
class KeptWindow : public QWidget {
public:
    explicit KeptWindow(bool& isKept) : isKept_(isKept)
    {
        setWindowTitle(QStringLiteral("Kept window"));
    }

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(!isKept_); }

private:
    bool& isKept_;
};

class QtProgramWindowsTest : public testing::Test {
protected:
    QtProgramWindows::Scene scene()
    {
        return {"settings", "org.example.window.settings", {320, 240}, [this] {
                    ++made;
                    auto window = std::make_unique<KeptWindow>(isKept);
                    last = window.get();
                    return window;
                }};
    }
    /// The window as the desktop has it, once it does.
    xcb_window_t onDesktop()
    {
        const auto number = static_cast<xcb_window_t>(last->winId());
        EXPECT_TRUE(loopUntil([&] {
            const auto all = desktop.managed();
            return std::ranges::find(all, number) != all.end();
        }));
        return number;
    }

    bool isKept = false;
    int made = 0;
    QPointer<QWidget> last;
    XConnection server;
    DesktopWindows desktop{server};
    X11Connection connection;
    QtProgramWindows windows{connection, sessionBusAddress()};
    Subscription registration = windows.addScene(scene());
    int closed = 0;
    Subscription closing
        = windows.observeWillClose([this](const std::string&, ProgramWindow) { ++closed; });
};

TEST_F(QtProgramWindowsTest, opensTheWindowWithItsNamesInItsSize)
{
    windows.open("settings");
    const auto window = onDesktop();

    EXPECT_EQ(desktop.titleOf(window), "Kept window");
    EXPECT_EQ(server.text(window, "WM_WINDOW_ROLE"), "org.example.window.settings");
    const auto area = desktop.areaOf(window);
    EXPECT_EQ(std::pair(area.width, area.height), std::pair(320, 240));
}

TEST_F(QtProgramWindowsTest, makesAWindowWithEachOpeningAndDestroysItWithItsClosing)
{
    EXPECT_EQ(made, 0);
    for (int time = 1; time <= 2; ++time) {
        windows.open("settings");
        EXPECT_EQ(made, time);
        ASSERT_TRUE(last);

        last->close();

        EXPECT_EQ(closed, time);
        EXPECT_TRUE(loopUntil([&] { return last.isNull(); }));
        EXPECT_EQ(windows.window("settings"), std::nullopt);
    }
}

TEST_F(QtProgramWindowsTest, keepsAWindowThatRefusesToClose)
{
    windows.open("settings");
    const auto window = onDesktop();
    isKept = true;

    EXPECT_FALSE(last->close());
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(windows.window("settings").has_value());

    isKept = false;
    server.ask(window, "_NET_CLOSE_WINDOW", {});
    EXPECT_TRUE(loopUntil([&] { return closed == 1; }));
}

TEST_F(QtProgramWindowsTest, mayOpenAnotherWindowWhileOneCloses)
{
    const auto again = windows.observeWillClose([this](const std::string& id, ProgramWindow) {
        if (made < 2)
            windows.open(id);
    });
    windows.open("settings");

    last->close();

    EXPECT_EQ(made, 2);
    EXPECT_TRUE(windows.window("settings").has_value());
    onDesktop();
}

/// The object that is offered to assistive technology in place of the real offer.
class OfferedRoots {
public:
    OfferedRoots()
    {
        roots.clear();
        before_
            = QAccessible::installRootObjectHandler([](QObject* root) { roots.push_back(root); });
    }
    ~OfferedRoots() { QAccessible::installRootObjectHandler(before_); }
    OfferedRoots(const OfferedRoots&) = delete;
    OfferedRoots& operator=(const OfferedRoots&) = delete;

    static inline std::vector<QObject*> roots;

private:
    QAccessible::RootObjectHandler before_;
};

TEST_F(QtProgramWindowsTest, areOfferedToAssistiveTechnologyOnceOneIsOpened)
{
    const OfferedRoots offered;
    windows.open("another");
    EXPECT_EQ(OfferedRoots::roots, std::vector<QObject*>{});

    for (int time = 0; time < 2; ++time) {
        windows.open("settings");
        last->close();
    }

    EXPECT_EQ(OfferedRoots::roots, std::vector<QObject*>{qApp});
}

TEST_F(QtProgramWindowsTest, openWithoutABusThatSaysNothing)
{
    const OfferedRoots offered;
    const SilentBus silent;
    QtProgramWindows others(connection, silent.address());
    const auto settings = others.addScene(scene());

    others.open("settings");

    onDesktop();
    EXPECT_EQ(OfferedRoots::roots, std::vector<QObject*>{});
}

TEST_F(QtProgramWindowsTest, destroysTheWindowWithItsScene)
{
    windows.open("settings");
    onDesktop();

    registration.reset();

    EXPECT_TRUE(last.isNull());
    EXPECT_FALSE(windows.hasScene("settings"));
    EXPECT_EQ(windows.window("settings"), std::nullopt);
    EXPECT_TRUE(loopUntil([&] { return desktop.managed().empty(); }));
}

TEST_F(QtProgramWindowsTest, takesItsWindowsWithItAndNeedNotOutliveASubscription)
{
    Subscription outliving;
    {
        QtProgramWindows others(connection, {});
        outliving = others.addScene(scene());
        others.open("settings");
        EXPECT_TRUE(last);
    }
    EXPECT_TRUE(last.isNull());
}

} // namespace
} // namespace brindlex
