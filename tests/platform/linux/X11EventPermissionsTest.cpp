#include "platform/linux/X11EventPermissions.h"

#include "mouse/GlobalEventTap.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/RecordedLog.h"
#include "support/TappedDesktop.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

TEST(X11EventPermissions, areMissingWithoutAServer)
{
    QtMainThread mainThread;
    const PosixClock clock;
    X11InputStream stream(mainThread, clock, {.display = ":no-such-server"});
    X11EventPermissions permissions(stream);

    EXPECT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{false, false}));
}

TEST(X11EventPermissions, areMissingWhereAnEventCannotBePlayed)
{
    const VirtualDesktop desktop(
        {.windowManager = false, .sessionBus = false, .disabledExtension = "XTEST"});
    QtMainThread mainThread;
    const PosixClock clock;
    X11InputStream stream(mainThread, clock);
    X11EventPermissions permissions(stream);

    EXPECT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{false, false}));
}

class RefusedInput : public testing::Test {
protected:
    void refuse() const { std::ofstream(refusal_).put('\n'); }
    void permit() const { std::filesystem::remove(refusal_); }

    RecordedLog log_;
    TemporaryFolder folder_;
    std::filesystem::path refusal_ = folder_.path() / "input-refused";
    TappedDesktop desktop_;
    X11EventPermissions permissions_{desktop_.stream, refusal_};
    SimulatedProgramActivation activation_;
    GlobalEventTap tap_{desktop_.tapping, permissions_, activation_};
};

TEST_F(RefusedInput, isAskedForEachTime)
{
    EXPECT_EQ(EventPermissionState::ask(permissions_), (EventPermissionState{true, true}));
    refuse();
    EXPECT_EQ(EventPermissionState::ask(permissions_), (EventPermissionState{false, false}));
    permit();
    EXPECT_EQ(EventPermissionState::ask(permissions_), (EventPermissionState{true, true}));
}

TEST_F(RefusedInput, takesTheTapDownInADragAndBringsItBack)
{
    tap_.subscribe(
        0xE000000, [](const Event&) { return EventVerdict::swallow; },
        EventTriggers{.buttons = {{2, {}}}});
    desktop_.settle();
    desktop_.mouse.press(2);
    desktop_.mouse.move(5, 0);
    desktop_.settle();

    refuse();
    EXPECT_TRUE(loopUntil([this] { return !tap_.isLive(); }));
    desktop_.settle();
    desktop_.mouse.release(2);
    desktop_.mouse.click(2);
    desktop_.settle();
    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));

    permit();
    EXPECT_TRUE(loopUntil([this] { return tap_.isLive(); }));
    desktop_.settle();
    desktop_.mouse.click(2);
    desktop_.settle();
    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));
    EXPECT_EQ(log_.lines(),
        (Lines{"WARN [mouse] GlobalEventTap: tearing down, permission lost (ax-distributed)",
            "INFO [mouse] GlobalEventTap: rebuilding, permission regained (ax-distributed)"}));
}

} // namespace
} // namespace brindlex
