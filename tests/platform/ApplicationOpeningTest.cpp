#include "platform/ApplicationOpening.h"

#include "platform/linux/panels/X11ApplicationOpening.h"
#include "platform/simulated/SimulatedApplicationOpening.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

namespace brindlex {
namespace {

const std::filesystem::path missionControl = "/System/Applications/Mission Control.app";

class SimulatedDesk {
public:
    ApplicationOpening& opening() { return opening_; }
    bool showsMissionControl() const
    {
        return std::ranges::find(opening_.opened, missionControl) != opening_.opened.end();
    }

private:
    SimulatedApplicationOpening opening_;
};

/// A desktop without an overview of its own, with one open window.
class X11Desk {
public:
    ApplicationOpening& opening() { return opening_; }
    bool showsMissionControl() const { return !windows_.unmanagedOf(getpid()).empty(); }

private:
    XConnection server_;
    DesktopWindows windows_{server_};
    PlainWindow window_{server_, {.wmClass = wmClass("Editor"), .title = "Letter"}};
    X11Connection connection_;
    X11ActiveWindow activeWindow_{connection_};
    DesktopEntries entries_{{}, {}};
    X11RunningApplications applications_{connection_, activeWindow_, entries_};
    X11ApplicationOpening opening_{connection_, applications_};
};

template <typename Desk>
class ApplicationOpeningContract : public testing::Test {
protected:
    Desk desk;
};

using Desks = testing::Types<SimulatedDesk, X11Desk>;
class DeskNames {
public:
    template <typename Desk>
    static std::string GetName(int)
    {
        return std::is_same_v<Desk, X11Desk> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(ApplicationOpeningContract, Desks, DeskNames);

TYPED_TEST(ApplicationOpeningContract, opensMissionControl)
{
    EXPECT_FALSE(this->desk.showsMissionControl());

    this->desk.opening().open(missionControl);

    EXPECT_TRUE(loopUntil([&] { return this->desk.showsMissionControl(); }));
}

TYPED_TEST(ApplicationOpeningContract, takesAnyPathWithoutAWord)
{
    for (const std::filesystem::path path :
        {"", "/", "/nowhere/Nothing.app", "Mission Control", "/Mission Control.app/Contents"})
        this->desk.opening().open(path);

    EXPECT_TRUE(loopThroughout(
        std::chrono::milliseconds(50), [&] { return !this->desk.showsMissionControl(); }));
}

} // namespace
} // namespace brindlex
