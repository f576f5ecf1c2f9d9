#include "desktop/ProgramDesk.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <memory>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

class StrangeWindows : public testing::Test {
protected:
    StrangeWindows()
    {
        desk.applyRules({{"Alpha", german}, {"Beta", russian}});
        program.emplace(desk.desktop);
    }

    /// Brings Alpha to the front from Beta, and sees that the program still does its work.
    bool stillSwitches()
    {
        const PlainWindow beta(desk.server, {.wmClass = wmClass("Beta")});
        const PlainWindow alpha(desk.server, {.wmClass = wmClass("Alpha")});
        return desk.windows.activate(beta.window()) && desk.usesGroup(russianGroup)
            && desk.windows.activate(alpha.window()) && desk.usesGroup(germanGroup)
            && program->child().isRunning();
    }

    ProgramDesk desk;
    std::optional<RunningProgram> program;
};

TEST_F(StrangeWindows, mayClaimAnything)
{
    ASSERT_TRUE(program->launches()) << program->report();
    const std::vector<PlainWindow::Claims> claims{
        {},
        {.wmClass = ""},
        {.wmClass = "\0"s},
        {.wmClass = "no end"},
        {.wmClass = "one\0"s},
        {.wmClass = "a\0b\0c\0d\0"s},
        {.wmClass = "\xff\xfe\0\x80\xc3\0"s},
        {.wmClass = "../../etc/passwd\0../../../../etc/passwd\0"s},
        {.wmClass = std::string(60'000, 'x')},
        {.wmClass = wmClass(std::string(30'000, 'y'))},
        {.wmClass = wmClass("Strange"), .process = 0},
        {.wmClass = wmClass("Strange"), .process = 1},
        {.wmClass = wmClass("Strange"), .process = 0x7fffffff},
        {.wmClass = wmClass("Strange"), .process = 0xffffffff},
        {.wmClass = wmClass("Strange"), .title = "\xed\xa0\x80 not text \xff"},
        {.process = static_cast<std::uint32_t>(program->process())},
    };

    for (const auto& claim : claims) {
        const PlainWindow window(desk.server, claim);
        ASSERT_TRUE(desk.windows.activate(window.window()));
    }

    EXPECT_TRUE(stillSwitches()) << program->report();
}

TEST_F(StrangeWindows, mayGoWhileTheyAreLookedAt)
{
    ASSERT_TRUE(program->launches()) << program->report();

    for (int index = 0; index < 50; ++index) {
        const PlainWindow window(desk.server, {.wmClass = wmClass("Brief")});
        desk.windows.requestActivation(window.window());
    }

    EXPECT_TRUE(stillSwitches()) << program->report();
}

TEST_F(StrangeWindows, mayComeToTheFrontAHundredTimesASecond)
{
    ASSERT_TRUE(program->launches()) << program->report();
    std::vector<std::unique_ptr<PlainWindow>> windows;
    for (int index = 0; index < 100; ++index) {
        const auto name = index % 2 == 0 ? "Alpha" : "Beta" + std::to_string(index);
        windows.push_back(
            std::make_unique<PlainWindow>(desk.server, PlainWindow::Claims{wmClass(name)}));
    }
    const PlainWindow last(desk.server, {.wmClass = wmClass("Beta")});

    auto next = std::chrono::steady_clock::now();
    for (const auto& window : windows) {
        desk.windows.requestActivation(window->window());
        next += 10ms;
        eventually([&] { return std::chrono::steady_clock::now() >= next; });
    }
    ASSERT_TRUE(desk.windows.activate(last.window()));

    EXPECT_TRUE(eventually([&] { return keyboardGroup(desk.server) == russianGroup; }, 2s))
        << program->report();
    EXPECT_TRUE(desk.keepsGroup(russianGroup)) << "An earlier window was replied to too late.";
    EXPECT_EQ(program->quit(), (ProcessEnd{0, {}})) << program->report();
}

} // namespace
} // namespace brindlex
