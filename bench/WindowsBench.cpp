// What the windows of the program cost a user: the time from the click on its icon in the tray to
// the first frame of the settings, and what the program holds in memory and how often it wakes once
// all windows were opened and closed again. Each on a virtual desktop of its own, by the keys and
// the tray alone; `bench_windows 20` starts the program 20 times.
//
// "first frame" is when a pixel in the lower left corner of where the window opens has its colour.

#include "Distribution.h"
#include "ProcessStatus.h"
#include "support/basics/Eventually.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/Screenshot.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/tray/TrayHost.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

/// A desktop with a tray, and the hand of its user.
class WindowDesk {
public:
    WindowDesk()
    {
        files_.writePreferences({{"selectedMainWindowTab", "General"},
            {"AppleLanguages", nlohmann::json::array({"en"})}});
    }

    const VirtualDesktop& desktop() const { return desktop_; }
    TrayHost& tray() { return tray_; }

    bool isInFront(const std::string& title) const
    {
        return eventually([&] {
            const auto active = windows_.active();
            return active && windows_.titleOf(active) == title && windows_.hasFocus(active);
        });
    }
    void press(std::uint8_t key, int times = 1) const
    {
        for (int time = 0; time < times; ++time) {
            input_.pressKey(key);
            input_.releaseKey(key);
        }
    }
    /// Opens the settings; whether they came.
    bool open()
    {
        if (!eventually([&] { return tray_.items().size() == 1; }))
            return false;
        tray_.activate();
        return isInFront("Brindlex");
    }
    bool close() const
    {
        press(keycode::escape);
        return eventually([&] { return windows_.managed().empty(); });
    }

    /// Remembers how the corner of the window in front looks.
    void learnFrame()
    {
        constexpr int fromTheEdge = 6;
        const auto area = windows_.areaOf(windows_.active());
        corner_ = {area.x + fromTheEdge, area.y + area.height - fromTheEdge, 1, 1};
        comesToRest(server_, area);
        frame_ = Screenshot(server_, corner_).at(0, 0);
    }
    bool showsFrame() const { return Screenshot(server_, corner_).at(0, 0) == frame_; }
    /// Milliseconds from the click to the frame.
    double clickToFrame()
    {
        const auto start = Clock::now();
        tray_.activate();
        while (!showsFrame() && Clock::now() - start < std::chrono::seconds(10)) { }
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

private:
    VirtualDesktop desktop_;
    XConnection server_;
    DesktopWindows windows_{server_};
    PlayedInput input_{server_};
    ProgramFiles files_{desktop_};
    TrayHost tray_;
    ScreenArea corner_{};
    Screenshot::Pixel frame_{};
};

void require(bool isDone, const RunningProgram& program)
{
    if (isDone)
        return;
    std::printf("%s\n", program.report().c_str());
    std::exit(1);
}

void measureOpening(int starts)
{
    constexpr int again = 10;
    WindowDesk desk;
    std::vector<double> first;
    std::vector<double> later;
    for (int start = 0; start <= starts; ++start) {
        RunningProgram program(desk.desktop());
        require(program.launches(), program);
        if (start == 0) {
            require(desk.open(), program);
            desk.learnFrame();
            require(desk.close(), program);
            continue;
        }
        require(eventually([&] { return desk.tray().items().size() == 1; }), program);
        for (int time = 0; time <= again; ++time) {
            (time == 0 ? first : later).push_back(desk.clickToFrame());
            require(desk.isInFront("Brindlex"), program);
            require(desk.close(), program);
            require(eventually([&] { return !desk.showsFrame(); }), program);
        }
        program.quit();
    }
    printDistribution("click in the tray to the first frame", first, "ms");
    printDistribution("the same again", later, "ms");
}

void printMemory(const char* when, const RunningProgram& program)
{
    const auto memory = memoryOf(program.process());
    std::printf("%-44s RSS %.1f MB  PSS %.1f MB  USS %.1f MB\n", when, memory.resident,
        memory.proportional, memory.unique);
}

/// Through all tabs to the log window, and by the first tab to the guide.
void walkThroughWindows(WindowDesk& desk, const RunningProgram& program)
{
    constexpr int tabs = 6;
    constexpr int controlsBeforeTheGuide = 4;
    require(desk.open(), program);
    desk.press(keycode::right, tabs);
    desk.press(keycode::tab);
    desk.press(keycode::space);
    require(desk.isInFront("Brindlex Logs"), program);
    desk.press(keycode::escape);
    require(desk.isInFront("Brindlex"), program);
    require(desk.close(), program);
    require(desk.open(), program);
    desk.press(keycode::left, tabs);
    desk.press(keycode::tab, controlsBeforeTheGuide);
    desk.press(keycode::space);
    require(desk.isInFront("Brindlex Permissions"), program);
    desk.press(keycode::escape);
    require(desk.isInFront("Brindlex"), program);
    require(desk.close(), program);
}

void measureMemory()
{
    constexpr auto untilIdle = std::chrono::seconds(6);
    constexpr int seconds = 10;
    WindowDesk desk;
    RunningProgram program(desk.desktop());
    require(program.launches(), program);
    std::this_thread::sleep_for(untilIdle);
    printMemory("idle, no window opened yet", program);
    walkThroughWindows(desk, program);
    std::this_thread::sleep_for(untilIdle);
    printMemory("idle, all windows opened and closed", program);
    for (int round = 0; round < 5; ++round)
        walkThroughWindows(desk, program);
    std::this_thread::sleep_for(untilIdle);
    printMemory("idle, the same five times more", program);
    const auto before = sleepsOf(program.process());
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    std::printf("%-44s %ld in %d s\n", "idle wake-ups of all threads",
        sleepsOf(program.process()) - before, seconds);
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    brindlex::measureOpening(count > 1 ? std::atoi(arguments[1]) : 20);
    brindlex::measureMemory();
}
