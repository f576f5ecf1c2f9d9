#include "platform/RunningApplications.h"

#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/simulated/SimulatedApplications.h"
#include "support/loops/LoopUntil.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace brindlex {
namespace {

/// Applications on a simulated computer.
class SimulatedSession {
public:
    RunningApplications& applications() { return applications_; }

    void open(const std::string& name)
    {
        applications_.bringToFront({.processIdentifier = processOf(name),
            .bundleIdentifier = "wmclass:" + name,
            .localizedName = name});
    }
    void activate(const std::string& name) { applications_.bringToFront(processOf(name)); }
    void close(const std::string& name) { applications_.quit(processOf(name)); }
    void minimizeAll() { applications_.emptyFront(); }

    ProcessIdentity processOf(const std::string& name)
    {
        return ProcessIdentity{processes_.emplace(name, 100 + processes_.size()).first->second};
    }

private:
    SimulatedApplications applications_;
    std::map<std::string, std::int64_t> processes_;
};

/// Applications on a real desktop with a window manager.
class X11Session {
public:
    RunningApplications& applications() { return applications_; }

    void open(const std::string& name)
    {
        auto& window = windows_[name];
        window = std::make_unique<ApplicationWindow>(server_,
            ApplicationWindow::Description{.instance = name,
                .className = name,
                .process = static_cast<std::uint32_t>(processOf(name))});
        window->show();
        pager_.activate(window->id());
    }
    void activate(const std::string& name) { pager_.activate(windows_[name]->id()); }
    void close(const std::string& name) { windows_.erase(name); }
    void minimizeAll()
    {
        constexpr std::uint32_t iconic = 3;
        for (const auto& [name, window] : windows_)
            server_.ask(window->id(), "WM_CHANGE_STATE", {iconic});
    }

    ProcessIdentity processOf(const std::string& name)
    {
        auto& process = processes_[name];
        if (!process)
            process
                = std::make_unique<ChildProcess>(ChildProcess::Start{.command = {"sleep", "1000"}});
        return ProcessIdentity{process->id()};
    }

private:
    VirtualDesktop desktop_;
    XConnection server_;
    DesktopWindows pager_{server_};
    std::map<std::string, std::unique_ptr<ChildProcess>> processes_;
    std::map<std::string, std::unique_ptr<ApplicationWindow>> windows_;
    X11Connection connection_;
    X11ActiveWindow activeWindow_{connection_};
    DesktopEntries entries_{{}, {}};
    X11RunningApplications applications_{connection_, activeWindow_, entries_};
};

template <typename Session>
class RunningApplicationsContract : public testing::Test {
protected:
    RunningApplications& applications() { return session.applications(); }

    RunningApplication application(const std::string& name)
    {
        return {.processIdentifier = session.processOf(name),
            .bundleIdentifier = "wmclass:" + name,
            .localizedName = name};
    }

    bool reaches(const std::optional<RunningApplication>& front)
    {
        return loopUntil([&] { return applications().frontmost() == front; });
    }

    Session session;
};

using Sessions = testing::Types<SimulatedSession, X11Session>;
class SessionNames {
public:
    template <typename Session>
    static std::string GetName(int)
    {
        return std::is_same_v<Session, X11Session> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(RunningApplicationsContract, Sessions, SessionNames);

TYPED_TEST(RunningApplicationsContract, hasNothingInFrontOnAnEmptyDesktop)
{
    EXPECT_EQ(this->applications().frontmost(), std::nullopt);
    EXPECT_EQ(this->applications().running(), std::vector<RunningApplication>());
}

TYPED_TEST(RunningApplicationsContract, listsApplicationsInTheOrderOfTheirFirstWindow)
{
    this->session.open("alpha");
    this->session.open("beta");
    this->session.open("gamma");
    this->session.activate("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    EXPECT_EQ(this->applications().running(),
        (std::vector{
            this->application("alpha"), this->application("beta"), this->application("gamma")}));
    this->session.close("beta");
    EXPECT_TRUE(loopUntil([&] {
        return this->applications().running()
            == std::vector{this->application("alpha"), this->application("gamma")};
    }));
}

TYPED_TEST(RunningApplicationsContract, notifiesOnceOfEachApplicationThatComesToTheFront)
{
    std::vector<std::optional<RunningApplication>> notified;
    std::vector<std::optional<RunningApplication>> returned;
    const auto subscription = this->applications().observeActivation([&](const auto& application) {
        notified.push_back(application);
        returned.push_back(this->applications().frontmost());
    });
    this->session.open("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    this->session.open("beta");
    EXPECT_TRUE(this->reaches(this->application("beta")));
    this->session.activate("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    this->session.activate("alpha");
    const std::vector<std::optional<RunningApplication>> expected{
        this->application("alpha"), this->application("beta"), this->application("alpha")};
    EXPECT_TRUE(loopThroughout(std::chrono::milliseconds(100), [&] {
        return notified == expected && returned == expected;
    })) << notified.size();
}

TYPED_TEST(RunningApplicationsContract, doesNotNotifyWhenTheFrontMerelyBecomesEmpty)
{
    this->session.open("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    int notified = 0;
    const auto subscription
        = this->applications().observeActivation([&](const auto&) { ++notified; });
    this->session.minimizeAll();
    EXPECT_TRUE(this->reaches(std::nullopt));
    this->session.activate("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    EXPECT_EQ(notified, 0);
}

TYPED_TEST(RunningApplicationsContract, emptiesTheFrontWhenItsOnlyApplicationGoes)
{
    this->session.open("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    this->session.close("alpha");
    EXPECT_TRUE(this->reaches(std::nullopt));
    EXPECT_TRUE(loopUntil([&] { return this->applications().running().empty(); }));
}

TYPED_TEST(RunningApplicationsContract, notifiesNobodyWhoHasGone)
{
    int notified = 0;
    auto subscription = this->applications().observeActivation([&](const auto&) { ++notified; });
    this->session.open("alpha");
    EXPECT_TRUE(this->reaches(this->application("alpha")));
    subscription.reset();
    this->session.open("beta");
    EXPECT_TRUE(this->reaches(this->application("beta")));
    EXPECT_EQ(notified, 1);
}

} // namespace
} // namespace brindlex
