#include "desktop/HabitDesk.h"
#include "support/hardware/Keycodes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <tuple>

namespace brindlex {
namespace {

/// Something that users do with a desktop, and what its part of the record has when it worked.
struct EverydayHabit {
    const char* name;
    void (*play)(HabitDesk& on);
    const char* proof;
};

void dragWithKey(HabitDesk& on, int button, int x, int y)
{
    on.pointAtPlane();
    on.desk.keyboard.press(on.customs.dragging);
    on.desk.keyboard.settle();
    on.hand.drag(button, x, y);
    on.note("dragged");
    on.desk.keyboard.release(on.customs.dragging);
    on.note("let go");
}

const std::vector<EverydayHabit> everydayHabits{
    {"a click into a window behind",
        [](HabitDesk& on) {
            on.desk.windows.activate(on.terminal.window());
            on.note("behind");
            on.pointAtFirstWord();
            on.hand.click(leftButton);
            on.note("clicked");
        },
        "front: Terminal[\\s\\S]*front: x="},
    {"a drag of a title bar",
        [](HabitDesk& on) {
            on.pointAtTitleBar();
            on.hand.drag(leftButton, 50, 70);
            on.note("dragged");
        },
        "application: 50,70 0x0"},
    {"a drag with a key", [](HabitDesk& on) { dragWithKey(on, leftButton, -30, 40); },
        "application: -30,40 0x0"},
    {"a change of size with a key",
        [](HabitDesk& on) { dragWithKey(on, on.customs.resizing, 40, 30); },
        "application: \\S+ (?!0x0 )"},
    {"the next window and the next desktop",
        [](HabitDesk& on) {
            on.hand.chord({keycode::alt, keycode::tab});
            on.waitForLine("front: Terminal");
            on.note("next window");
            on.hand.chord(on.customs.nextDesktop);
            on.waitForLine("desktop: 1");
            on.note("next desktop");
            on.hand.chord(on.customs.previousDesktop);
            on.waitForLine("desktop: 0");
            on.note("back");
        },
        "front: Terminal[\\s\\S]*desktop: 1[\\s\\S]*desktop: 0"},
    {"the desktop shown and hidden",
        [](HabitDesk& on) {
            on.hand.chord(on.customs.showDesktop);
            on.note("shown");
            on.hand.chord(on.customs.showDesktop);
            on.note("hidden");
        },
        "front: none"},
    {"the menu of a window",
        [](HabitDesk& on) {
            on.pointAtTitleBar();
            on.hand.click(rightButton);
            on.note("open");
            on.hand.stroke(keycode::escape);
            on.note("closed");
        },
        "menu: none[\\s\\S]*menu: open[\\s\\S]*menu: none"},
    {"a double click on a title bar",
        [](HabitDesk& on) {
            for (const auto* heading : {"large", "small"}) {
                on.pointAtTitleBar();
                on.hand.click(leftButton, 2);
                on.note(heading);
            }
        },
        "application: \\S+ (?!0x0 )"},
    {"a text selected by a drag",
        [](HabitDesk& on) {
            on.pointAtFirstWord();
            on.hand.drag(leftButton, 200, 0);
            on.note("selected");
        },
        "selected: (one|ne) two three"},
    {"a word selected and pasted",
        [](HabitDesk& on) {
            on.pointAtFirstWord();
            on.hand.click(leftButton, 2);
            on.waitForLine("selected: one");
            on.note("selected");
            const auto area = on.desk.windows.areaOf(on.terminal.window());
            on.hand.pointAt(area.centreX(), area.centreY());
            on.hand.click(middleButton);
            on.terminal.receives("one");
            on.note("pasted");
        },
        "selected: one\n[\\s\\S]*terminal: 0,0 0x0 one\n"},
    {"the wheel",
        [](HabitDesk& on) {
            on.pointAtPlane();
            const auto turn = [&](int notches) {
                for (int notch = 0; notch < std::abs(notches); ++notch) {
                    on.desk.mouse.turnWheel(notches > 0 ? 1 : -1);
                    on.desk.settle();
                }
            };
            // GTK takes what it sees first of a wheel for where the wheel stands.
            turn(1);
            turn(-2);
            on.note("at the top");
            turn(3);
            on.note("down");
            turn(-2);
            on.note("up");
        },
        "y=[1-9]"},
    {"typing with two layouts",
        [](HabitDesk& on) {
            run({.command = {"setxkbmap", "-layout", "us,de", "-option", "grp:alt_shift_toggle"}},
                usualDeadline);
            on.desk.windows.activate(on.terminal.window());
            on.hand.stroke(keycode::y);
            on.hand.chord({keycode::alt, keycode::shift});
            on.hand.stroke(keycode::y);
            on.terminal.receives("yz");
            on.note("typed");
        },
        "terminal: 0,0 0x0 yz\n"},
};

/// What users of a window manager do.
std::vector<EverydayHabit> habitsOf(WindowManager manager)
{
    auto habits = everydayHabits;
    std::erase_if(habits, [absent = customsOf(manager).absent](const auto& habit) {
        return absent.contains(habit.name);
    });
    return habits;
}

/// The habits' parts of the record, all played one after the other on one desktop.
std::vector<std::string> everydayRecord(
    WindowManager manager, const std::string& toolkit, bool isBesideTheProgram)
{
    HabitDesk on(manager, toolkit);
    if (isBesideTheProgram)
        on.startProgram();
    std::vector<std::string> parts;
    for (const auto& habit : habitsOf(manager)) {
        const auto begin = on.record().size();
        on.begin(habit.name);
        habit.play(on);
        parts.push_back(on.record().substr(begin));
    }
    const bool stillRuns = !on.desk.program || on.desk.program->child().isRunning();
    EXPECT_TRUE(stillRuns);
    return parts;
}

using Place = std::tuple<WindowManager, std::string>;

class DesktopHabits : public testing::TestWithParam<Place> { };

TEST_P(DesktopHabits, areTheSameWithTheProgram)
{
    const auto [manager, toolkit] = GetParam();
    const auto without = everydayRecord(manager, toolkit, false);
    const auto with = everydayRecord(manager, toolkit, true);

    const auto habits = habitsOf(manager);
    for (std::size_t index = 0; index < habits.size(); ++index) {
        EXPECT_TRUE(std::regex_search(without[index], std::regex(habits[index].proof)))
            << without[index];
        EXPECT_EQ(with[index], without[index]);
    }
}

const auto toolkits = testing::Values("gtk3", "gtk4", "qt6");
const auto nameOfPlace = [](const auto& instance) {
    return nameOf(std::get<WindowManager>(instance.param)) + "_"
        + std::get<std::string>(instance.param);
};

INSTANTIATE_TEST_SUITE_P(Of, DesktopHabits,
    testing::Combine(testing::Values(WindowManager::openbox, WindowManager::xfwm4), toolkits),
    nameOfPlace);
INSTANTIATE_TEST_SUITE_P(Thorough, DesktopHabits,
    testing::Combine(testing::Values(WindowManager::kwin, WindowManager::mutter), toolkits),
    nameOfPlace);

} // namespace
} // namespace brindlex
