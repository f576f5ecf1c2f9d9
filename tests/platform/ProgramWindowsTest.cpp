#include "platform/ProgramWindows.h"

#include "platform/linux/bus/SessionBusAddress.h"
#include "platform/linux/programwindows/QtProgramWindows.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedProgramWindows.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace brindlex {
namespace {

const std::string mainScene = "main";
const std::string logsScene = "logs";

class SimulatedWindowDesk {
public:
    SimulatedWindowDesk()
    {
        windows_.addScene(mainScene);
        windows_.addScene(logsScene);
    }

    ProgramWindows& windows() { return windows_; }
    bool isInFront(const std::string& scene) const
    {
        const auto window = windows_.window(scene);
        return window && windows_.isInFront(*window);
    }
    bool goesElsewhere()
    {
        windows_.goElsewhere();
        return true;
    }
    void minimise(const std::string& scene) { windows_.minimise(*windows_.window(scene)); }
    void close(const std::string& scene) { windows_.close(*windows_.window(scene)); }
    bool until(const std::function<bool()>& condition) { return condition(); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedProgramActivation activation_;
    SimulatedProgramWindows windows_{mainThread_, activation_};
};

/// Windows beside one of another program, and a user who acts through the window manager.
class RealWindowDesk {
public:
    RealWindowDesk()
    {
        loopUntil([&] { return desktop_.managed().size() == 1; });
    }

    ProgramWindows& windows() { return windows_; }
    bool isInFront(const std::string& scene) const
    {
        const auto window = find(scene);
        return window != 0 && desktop_.active() == window && desktop_.hasFocus(window);
    }
    bool goesElsewhere()
    {
        desktop_.requestActivation(other_.window());
        return loopUntil([&] { return desktop_.active() == other_.window(); });
    }
    void minimise(const std::string& scene)
    {
        constexpr std::uint32_t iconic = 3;
        server_.ask(managed(scene), "WM_CHANGE_STATE", {iconic});
    }
    void close(const std::string& scene) { server_.ask(managed(scene), "_NET_CLOSE_WINDOW", {}); }
    bool until(const std::function<bool()>& condition) { return loopUntil(condition); }

private:
    static QtProgramWindows::Scene scene(const std::string& id)
    {
        return {id, id, {300, 200}, [id] {
                    auto window = std::make_unique<QWidget>();
                    window->setWindowTitle(QString::fromStdString(id));
                    return window;
                }};
    }

    /// The window of the scene as the desktop has it; 0 when it has none.
    xcb_window_t find(const std::string& scene) const
    {
        for (const auto window : desktop_.managed())
            if (desktop_.titleOf(window) == scene)
                return window;
        return 0;
    }
    xcb_window_t managed(const std::string& scene) const
    {
        EXPECT_TRUE(loopUntil([&] { return find(scene) != 0; }));
        return find(scene);
    }

    XConnection server_;
    DesktopWindows desktop_{server_};
    PlainWindow other_{server_, {.wmClass = wmClass("Other"), .title = "Other"}};
    X11Connection connection_;
    QtProgramWindows windows_{connection_, sessionBusAddress()};
    Subscription main_ = windows_.addScene(scene(mainScene));
    Subscription logs_ = windows_.addScene(scene(logsScene));
};

template <typename Desk>
class ProgramWindowsContract : public testing::Test {
protected:
    ProgramWindows& windows() { return desk.windows(); }
    ProgramWindow opened(const std::string& scene)
    {
        windows().open(scene);
        return *windows().window(scene);
    }
    /// As often as it takes, as the callers do.
    bool comesForward(const std::string& scene)
    {
        return desk.until([&] {
            const auto window = windows().window(scene);
            return window && windows().bringForward(*window);
        });
    }
    bool isInFrontSoon(const std::string& scene)
    {
        return desk.until([&] { return desk.isInFront(scene); });
    }

    Desk desk;
    std::vector<std::string> notified;
    Subscription opening
        = windows().observeDidOpen([this](const std::string& scene, ProgramWindow window) {
              EXPECT_EQ(windows().window(scene), window);
              notified.push_back("open " + scene);
          });
    Subscription closing
        = windows().observeWillClose([this](const std::string& scene, ProgramWindow window) {
              EXPECT_EQ(windows().window(scene), std::nullopt);
              EXPECT_FALSE(windows().isVisible(window));
              notified.push_back("close " + scene);
          });
};

using WindowDesks = testing::Types<SimulatedWindowDesk, RealWindowDesk>;
class WindowDeskNames {
public:
    template <typename Desk>
    static std::string GetName(int)
    {
        return std::is_same_v<Desk, RealWindowDesk> ? "Real" : "Simulated";
    }
};
TYPED_TEST_SUITE(ProgramWindowsContract, WindowDesks, WindowDeskNames);

using Notes = std::vector<std::string>;

TYPED_TEST(ProgramWindowsContract, hasNoWindowBeforeOneIsOpened)
{
    EXPECT_TRUE(this->windows().hasScene(mainScene));
    EXPECT_EQ(this->windows().window(mainScene), std::nullopt);
    EXPECT_FALSE(this->windows().isVisible(ProgramWindow{1}));
    EXPECT_FALSE(this->windows().bringForward(ProgramWindow{1}));
}

TYPED_TEST(ProgramWindowsContract, opensNothingForASceneThatThereIsNot)
{
    EXPECT_FALSE(this->windows().hasScene("another"));

    this->windows().open("another");

    EXPECT_EQ(this->windows().window("another"), std::nullopt);
    EXPECT_EQ(this->notified, Notes{});
}

TYPED_TEST(ProgramWindowsContract, opensOneWindowOfEachScene)
{
    const auto first = this->opened(mainScene);
    EXPECT_TRUE(this->windows().isVisible(first));
    this->windows().open(mainScene);
    EXPECT_EQ(this->windows().window(mainScene), first);

    const auto second = this->opened(logsScene);

    EXPECT_NE(first, second);
    EXPECT_EQ(this->notified, (Notes{"open main", "open logs"}));
}

TYPED_TEST(ProgramWindowsContract, bringsAWindowBeforeTheOneInWhichTheUserWorks)
{
    this->opened(mainScene);
    ASSERT_TRUE(this->comesForward(mainScene));
    ASSERT_TRUE(this->isInFrontSoon(mainScene));
    ASSERT_TRUE(this->desk.goesElsewhere());
    EXPECT_FALSE(this->desk.isInFront(mainScene));

    EXPECT_TRUE(this->comesForward(mainScene));

    EXPECT_TRUE(this->isInFrontSoon(mainScene));
}

TYPED_TEST(ProgramWindowsContract, bringsAWindowBackThatIsMinimised)
{
    const auto window = this->opened(mainScene);
    ASSERT_TRUE(this->comesForward(mainScene));
    this->desk.minimise(mainScene);
    ASSERT_TRUE(this->desk.until([&] { return !this->windows().isVisible(window); }));
    EXPECT_EQ(this->windows().window(mainScene), window) << "it has not been closed";

    EXPECT_TRUE(this->comesForward(mainScene));

    EXPECT_TRUE(this->windows().isVisible(window));
    EXPECT_TRUE(this->isInFrontSoon(mainScene));
    EXPECT_EQ(this->notified, Notes{"open main"});
}

TYPED_TEST(ProgramWindowsContract, bringsEitherOfTwoWindowsForward)
{
    this->opened(mainScene);
    this->opened(logsScene);

    for (const auto& scene : {logsScene, mainScene, logsScene}) {
        EXPECT_TRUE(this->comesForward(scene)) << scene;
        EXPECT_TRUE(this->isInFrontSoon(scene)) << scene;
    }
}

TYPED_TEST(ProgramWindowsContract, notifiesOfAWindowThatTheUserCloses)
{
    const auto window = this->opened(mainScene);
    this->opened(logsScene);

    this->desk.close(mainScene);

    EXPECT_TRUE(this->desk.until([&] { return !this->windows().window(mainScene); }));
    EXPECT_EQ(this->notified, (Notes{"open main", "open logs", "close main"}));
    EXPECT_FALSE(this->windows().bringForward(window));
    EXPECT_TRUE(this->windows().window(logsScene).has_value());
}

TYPED_TEST(ProgramWindowsContract, notifiesOfAMinimisedWindowThatTheUserCloses)
{
    const auto window = this->opened(mainScene);
    ASSERT_TRUE(this->comesForward(mainScene));
    this->desk.minimise(mainScene);
    ASSERT_TRUE(this->desk.until([&] { return !this->windows().isVisible(window); }));

    this->desk.close(mainScene);

    EXPECT_TRUE(this->desk.until([&] { return !this->windows().window(mainScene); }));
    EXPECT_EQ(this->notified, (Notes{"open main", "close main"}));
}

TYPED_TEST(ProgramWindowsContract, opensAnotherWindowAfterOneWasClosed)
{
    const auto first = this->opened(mainScene);
    this->desk.close(mainScene);
    ASSERT_TRUE(this->desk.until([&] { return !this->windows().window(mainScene); }));

    const auto second = this->opened(mainScene);

    EXPECT_NE(first, second);
    EXPECT_TRUE(this->comesForward(mainScene));
    EXPECT_FALSE(this->windows().bringForward(first));
}

TYPED_TEST(ProgramWindowsContract, notifiesNobodyWhoHasEndedTheSubscription)
{
    this->opening.reset();
    this->closing.reset();
    this->opened(mainScene);
    this->desk.close(mainScene);
    ASSERT_TRUE(this->desk.until([&] { return !this->windows().window(mainScene); }));

    EXPECT_EQ(this->notified, Notes{});
}

} // namespace
} // namespace brindlex
