#include "platform/ApplicationActivating.h"

#include "platform/linux/applications/X11ApplicationActivating.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/simulated/SimulatedApplicationActivating.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/LoopUntil.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace brindlex {
namespace {

/// Two applications that run, of which the second is in front.
class SimulatedPair {
public:
    SimulatedPair()
    {
        applications_.bringToFront({ProcessIdentity{1}, "org.example.First"});
        applications_.bringToFront({ProcessIdentity{2}, "org.example.Second"});
    }

    ApplicationActivating& activating() { return activating_; }
    RunningApplications& applications() { return applications_; }
    RunningApplication first() const { return applications_.running()[0]; }
    RunningApplication second() const { return applications_.running()[1]; }
    void quitFirst() { applications_.quit(first().processIdentifier); }
    bool until(const std::function<bool()>& condition) { return condition(); }

private:
    SimulatedApplications applications_;
    SimulatedApplicationActivating activating_{applications_};
};

/// The same on a real server, under a window manager.
class RealPair {
public:
    RealPair()
    {
        windows_.activate(second_.window());
        until([this] { return isSecondInFront(); });
    }

    ApplicationActivating& activating() { return activating_; }
    RunningApplications& applications() { return applications_; }
    RunningApplication first() const { return applications_.running().front(); }
    RunningApplication second() const { return applications_.running().back(); }
    void quitFirst()
    {
        first_.reset();
        until([this] { return applications_.running().size() == 1; });
    }
    bool until(const std::function<bool()>& condition) { return loopUntil(condition); }

private:
    bool isSecondInFront() const
    {
        const auto frontmost = applications_.frontmost();
        return frontmost && frontmost->bundleIdentifier == "wmclass:Second";
    }
    PlainWindow::Claims claims(const std::string& name, const ChildProcess& process) const
    {
        return {.wmClass = wmClass(name), .process = static_cast<std::uint32_t>(process.id())};
    }

    XConnection server_;
    DesktopWindows windows_{server_};
    ChildProcess one_{{.command = {"sleep", "1000"}}};
    ChildProcess other_{{.command = {"sleep", "1000"}}};
    std::optional<PlainWindow> first_{std::in_place, server_, claims("First", one_)};
    PlainWindow second_{server_, claims("Second", other_)};
    X11Connection connection_;
    X11ActiveWindow activeWindow_{connection_};
    TemporaryFolder data_;
    DesktopEntries entries_{{data_.path()}, {}};
    X11RunningApplications applications_{connection_, activeWindow_, entries_};
    X11ApplicationActivating activating_{connection_, applications_};
};

template <typename Pair>
class ApplicationActivatingContract : public testing::Test {
protected:
    Pair pair;
};

using Pairs = testing::Types<SimulatedPair, RealPair>;
TYPED_TEST_SUITE(ApplicationActivatingContract, Pairs);

TYPED_TEST(ApplicationActivatingContract, bringsAnApplicationToTheFront)
{
    this->pair.activating().activate(this->pair.first().processIdentifier);
    EXPECT_TRUE(this->pair.until(
        [&] { return this->pair.applications().frontmost() == this->pair.first(); }));
}

TYPED_TEST(ApplicationActivatingContract, leavesTheOneInFrontWhereItIs)
{
    int notified = 0;
    const auto subscription
        = this->pair.applications().observeActivation([&](const auto&) { ++notified; });
    this->pair.activating().activate(this->pair.second().processIdentifier);
    EXPECT_EQ(this->pair.applications().frontmost(), this->pair.second());
    EXPECT_EQ(notified, 0);
}

TYPED_TEST(ApplicationActivatingContract, startsNoneThatHasQuit)
{
    const auto first = this->pair.first();
    const auto second = this->pair.second();
    this->pair.quitFirst();
    this->pair.activating().activate(first.processIdentifier);
    this->pair.activating().activate(ProcessIdentity::none);
    EXPECT_EQ(this->pair.applications().frontmost(), second);
    EXPECT_EQ(this->pair.applications().running().size(), 1U);
}

} // namespace
} // namespace brindlex
