#include "platform/linux/applications/X11RunningApplications.h"

#include "support/basics/TemporaryFolder.h"
#include "support/loops/LoopUntil.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// A desktop whose window manager is the test, which so decides when what becomes active.
class X11RunningApplicationsTest : public testing::Test {
protected:
    void announceActive(xcb_window_t window) { setRoot("_NET_ACTIVE_WINDOW", {window}); }
    void announceWindows(const std::vector<std::uint32_t>& windows)
    {
        setRoot("_NET_CLIENT_LIST", windows);
    }
    void setRoot(const std::string& property, const std::vector<std::uint32_t>& values)
    {
        xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.root(),
            server.atom(property), XCB_ATOM_WINDOW, 32, static_cast<std::uint32_t>(values.size()),
            values.data());
        server.sync();
    }
    std::uint32_t process() const
    {
        const auto file = "/proc/" + std::to_string(child.id()) + "/exe";
        eventually([&] { return std::filesystem::read_symlink(file).filename() == "sleep"; });
        return static_cast<std::uint32_t>(child.id());
    }
    bool reaches(const std::optional<std::string>& identifier)
    {
        return loopUntil([&] {
            const auto front = applications.frontmost();
            return front && front->bundleIdentifier == identifier;
        });
    }

    VirtualDesktop desktop{
        VirtualDesktop::Options{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server;
    ChildProcess child{{.command = {"sleep", "1000"}}};
    X11Connection connection;
    X11ActiveWindow activeWindow{connection};
    TemporaryFolder data;
    DesktopEntries entries{{data.path()}, {"de"}};
    X11RunningApplications applications{connection, activeWindow, entries};
    std::vector<std::optional<std::string>> notified;
    Subscription subscription = applications.observeActivation([this](const auto& application) {
        notified.push_back(application ? application->bundleIdentifier : "(none)");
    });
};

TEST_F(X11RunningApplicationsTest, doesNotBelieveThatNoWindowIsActiveForAMoment)
{
    const ApplicationWindow one(server, {"one", "One", process()});
    const ApplicationWindow two(server, {"two", "Two", process()});
    announceActive(one.id());
    ASSERT_TRUE(reaches("wmclass:One"));
    bool wasEmpty = false;
    const auto watching = activeWindow.observe([&] { wasEmpty |= activeWindow.window() == 0; });
    announceActive(0);
    announceActive(two.id());
    EXPECT_TRUE(reaches("wmclass:Two"));
    EXPECT_TRUE(loopThroughout(100ms, [&] { return !wasEmpty; }));
    EXPECT_EQ(notified, (std::vector<std::optional<std::string>>{"wmclass:One", "wmclass:Two"}));
    announceActive(0);
    EXPECT_TRUE(loopUntil([&] { return wasEmpty && !applications.frontmost(); }));
}

TEST_F(X11RunningApplicationsTest, doesNotBelieveThatAClosedWindowIsActive)
{
    ApplicationWindow window(server, {"one", "One", process()});
    const ApplicationWindow other(server, {"two", "Two", process()});
    announceWindows({window.id(), other.id()});
    announceActive(window.id());
    ASSERT_TRUE(reaches("wmclass:One"));
    announceWindows({window.id()});
    EXPECT_TRUE(loopThroughout(100ms, [&] { return applications.frontmost().has_value(); }));
    announceWindows({other.id()});
    EXPECT_TRUE(loopUntil([&] { return !applications.frontmost(); }));
}

TEST_F(X11RunningApplicationsTest, takesEachWindowOfWhichNothingIsKnownForAnApplicationOfItsOwn)
{
    ApplicationWindow one(server, {});
    ApplicationWindow other(server, {});
    for (auto* window : {&one, &other})
        window->setText("WM_CLIENT_MACHINE", "STRING", "elsewhere");

    for (const auto* window : {&one, &other, &one}) {
        announceActive(window->id());
        loopUntil([&] { return activeWindow.window() == window->id(); });
    }

    ASSERT_EQ(notified.size(), 3u);
    EXPECT_TRUE(notified[0].value_or("").starts_with("unnamed:"));
    EXPECT_NE(notified[0], notified[1]);
    EXPECT_EQ(notified[0], notified[2]);
    const X11RunningApplications ofAnotherTime(connection, activeWindow, entries);
    EXPECT_NE(ofAnotherTime.frontmost()->bundleIdentifier, notified[0]);
}

TEST_F(X11RunningApplicationsTest, survivesWindowsThatVanish)
{
    announceActive(0x7f00001);
    announceWindows({0x7f00001, 0x7f00002});
    EXPECT_TRUE(loopThroughout(100ms, [&] { return !applications.frontmost(); }));
    EXPECT_EQ(applications.running(), std::vector<RunningApplication>());
    for (int index = 0; index < 50; ++index) {
        ApplicationWindow window(server, {"gone", "Gone", process()});
        announceActive(window.id());
        window.vanish();
    }
    const ApplicationWindow last(server, {"last", "Last", process()});
    announceActive(last.id());
    EXPECT_TRUE(reaches("wmclass:Last"));
    EXPECT_TRUE(connection.isAlive());
}

TEST_F(X11RunningApplicationsTest, boundsWhatAWindowSaysOfItself)
{
    ApplicationWindow liar(server, {});
    liar.setText("WM_CLASS", "STRING", std::string(200'000, 'x'));
    liar.setText("_NET_WM_PID", "STRING", "not a number");
    announceActive(liar.id());
    ASSERT_TRUE(loopUntil([&] { return applications.frontmost().has_value(); }));
    EXPECT_EQ(applications.frontmost()->bundleIdentifier, "wmclass:" + std::string(1024, 'x'));
    EXPECT_EQ(applications.frontmost()->processIdentifier, ProcessIdentity::none);
}

TEST_F(X11RunningApplicationsTest, readsBytesThatAreNotTextAsReplacementCharacters)
{
    ApplicationWindow window(server, {});
    window.setText("WM_CLASS", "STRING", std::string("\xff\xfe\0\xc3(\0", 6));
    announceActive(window.id());
    EXPECT_TRUE(reaches("wmclass:\uFFFD("));
}

TEST_F(X11RunningApplicationsTest, namesAWindowWithoutAClassByItsProgram)
{
    const ApplicationWindow window(server, {.process = process()});
    announceActive(window.id());
    EXPECT_TRUE(reaches("exe:sleep"));
}

TEST_F(X11RunningApplicationsTest, doesNotTakeAProcessOfAnotherMachineForOneOfThis)
{
    const ApplicationWindow remote(server, {"a", "A", process(), "another-machine"});
    announceActive(remote.id());
    ASSERT_TRUE(reaches("wmclass:A"));
    EXPECT_EQ(applications.frontmost()->processIdentifier, ProcessIdentity::none);

    char name[256] = {};
    ::gethostname(name, sizeof name - 1);
    const ApplicationWindow local(server, {"b", "B", process(), std::string(name) + ".example"});
    announceActive(local.id());
    ASSERT_TRUE(reaches("wmclass:B"));
    EXPECT_EQ(applications.frontmost()->processIdentifier, ProcessIdentity{child.id()});
}

TEST_F(X11RunningApplicationsTest, doesNotBelieveProcessNumbersThatCannotBe)
{
    for (const auto number : {0u, 0x80000000u, 0xffffffffu}) {
        const ApplicationWindow window(server, {"a", "A" + std::to_string(number), number});
        announceActive(window.id());
        ASSERT_TRUE(reaches("wmclass:A" + std::to_string(number)));
        EXPECT_EQ(applications.frontmost()->processIdentifier, ProcessIdentity::none);
    }
}

TEST_F(X11RunningApplicationsTest, followsAClassThatIsSetAfterTheWindowBecameActive)
{
    ApplicationWindow late(server, {.process = process()});
    announceActive(late.id());
    ASSERT_TRUE(reaches("exe:sleep"));
    late.setText("WM_CLASS", "STRING", std::string("late\0Late\0", 10));
    EXPECT_TRUE(reaches("wmclass:Late"));
    EXPECT_EQ(notified, (std::vector<std::optional<std::string>>{"exe:sleep", "wmclass:Late"}));
}

TEST_F(X11RunningApplicationsTest, leavesTheProgramsOwnWindowsOut)
{
    const ApplicationWindow other(server, {"other", "Other", process()});
    const ApplicationWindow own(server, {"own", "Own", static_cast<std::uint32_t>(::getpid())});
    announceWindows({own.id(), other.id()});
    announceActive(other.id());
    ASSERT_TRUE(reaches("wmclass:Other"));
    announceActive(own.id());
    EXPECT_TRUE(loopUntil([&] { return !applications.frontmost(); }));
    EXPECT_EQ(activeWindow.current(), std::nullopt);
    EXPECT_EQ(applications.running().size(), 1u);
    announceActive(other.id());
    EXPECT_TRUE(reaches("wmclass:Other"));
    EXPECT_EQ(
        notified, (std::vector<std::optional<std::string>>{"wmclass:Other", "wmclass:Other"}));
}

TEST_F(X11RunningApplicationsTest, listsAProcessWithTwoWindowsOnce)
{
    const ApplicationWindow one(server, {"a", "Writer", process()});
    const ApplicationWindow two(server, {"a", "Calc", process()});
    const ApplicationWindow unknownOne(server, {"b", "B"});
    const ApplicationWindow unknownTwo(server, {"b", "B"});
    announceWindows({one.id(), two.id(), unknownOne.id(), unknownTwo.id()});
    EXPECT_EQ(applications.running(),
        (std::vector<RunningApplication>{
            {ProcessIdentity{child.id()}, "wmclass:Writer", {}, "Writer"},
            {ProcessIdentity::none, "wmclass:B", {}, "B"}}));
}

TEST_F(X11RunningApplicationsTest, tellsOfOneHundredActivationsInARow)
{
    const ApplicationWindow one(server, {"one", "One", process()});
    const ApplicationWindow two(server, {"two", "Two", process()});
    for (int round = 0; round < 50; ++round) {
        announceActive(one.id());
        announceActive(two.id());
    }
    EXPECT_TRUE(reaches("wmclass:Two"));
    EXPECT_LE(notified.size(), 100u);
    EXPECT_EQ(notified.back(), "wmclass:Two");
}

TEST_F(X11RunningApplicationsTest, findsTheEntryOfAnApplicationThatIsInstalledMeanwhile)
{
    EXPECT_TRUE(entries.all().empty());
    std::filesystem::create_directories(data.path() / "applications");
    const auto file = data.path() / "applications/org.example.Pad.desktop";
    write(file, "[Desktop Entry]\nType=Application\nName=Pad\nName[de]=Block\nExec=pad %U\n");
    const ApplicationWindow window(server, {"pad", "Pad", process()});
    announceActive(window.id());
    ASSERT_TRUE(reaches("org.example.Pad"));
    EXPECT_EQ(applications.frontmost(),
        (RunningApplication{ProcessIdentity{child.id()}, "org.example.Pad", file, "Block"}));
}

TEST_F(X11RunningApplicationsTest, returnsNothingOnceTheServerHasGone)
{
    const ApplicationWindow window(server, {"pad", "Pad", process()});
    announceActive(window.id());
    ASSERT_TRUE(reaches("wmclass:Pad"));
    int ends = 0;
    const auto observing = connection.observeEnd([&] { ++ends; });
    desktop.endDisplayServer();
    EXPECT_TRUE(loopUntil([&] { return ends == 1; }));
    EXPECT_FALSE(connection.isAlive());
    EXPECT_EQ(applications.running(), std::vector<RunningApplication>());
    EXPECT_EQ(activeWindow.current(), std::nullopt);
    EXPECT_TRUE(loopThroughout(50ms, [&] { return ends == 1; }));
}

} // namespace
} // namespace brindlex
