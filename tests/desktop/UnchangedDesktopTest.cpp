#include "desktop/RecordedDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Something that users do with a desktop, and a line of the record that shows that it worked.
struct Habit {
    const char* name;
    void (*play)(RecordedDesk& on);
    const char* proof;
};

void PrintTo(const Habit& habit, std::ostream* stream) { *stream << habit.name; }

void dragWithAlt(RecordedDesk& on, int button, int x, int y)
{
    on.desk.keyboard.press(keycode::alt);
    on.desk.keyboard.settle();
    on.hand.drag(button, x, y);
    on.note("dragged");
    on.desk.keyboard.release(keycode::alt);
    on.note("let go");
}

/// Types small letters into the terminal.
void type(RecordedDesk& on, const std::string& letters)
{
    on.desk.windows.activate(on.terminal.window());
    for (const auto letter : letters)
        on.hand.stroke(keyOf(letter));
    on.waitForTyped(letters);
    on.note("typed");
}

/// Moves into the first line of the terminal, this far from its left edge.
void movePointerIntoTerminal(RecordedDesk& on, int x)
{
    const auto area = on.desk.windows.areaOf(on.terminal.window());
    on.hand.pointAt(area.x + x, area.y + 8);
}

void noteSelection(RecordedDesk& on, const std::string& text)
{
    on.waitForLine("selected: " + text);
    on.note("selected");
}

const std::vector<Habit> habits{
    {"clickToFocus",
        [](RecordedDesk& on) {
            on.hand.pointAt(120, 120);
            on.hand.click(leftButton);
            on.note("clicked into the first");
            on.hand.pointAt(560, 430);
            on.hand.click(leftButton);
            on.note("clicked into the second");
        },
        "Two: press 1"},
    {"dragOfATitleBar",
        [](RecordedDesk& on) {
            on.hand.pointAt(200, 110);
            on.hand.drag(leftButton, 50, 70);
            on.note("dragged");
        },
        "One: 151,190 300x200"},
    {"dragWithAlt",
        [](RecordedDesk& on) {
            on.hand.pointAt(200, 150);
            dragWithAlt(on, leftButton, 60, 40);
        },
        "One: 161,160 300x200"},
    {"resizeWithAlt",
        [](RecordedDesk& on) {
            on.hand.pointAt(280, 250);
            dragWithAlt(on, rightButton, 40, 30);
        },
        "One: 101,120 340x230"},
    {"shortcutsOfTheWindowManager",
        [](RecordedDesk& on) {
            on.desk.keyboard.press(keycode::alt);
            on.hand.stroke(keycode::tab);
            on.waitForLine("on screen: 352,317 320x134");
            on.note("next window");
            on.desk.keyboard.release(keycode::alt);
            on.waitForLine("front: Two");
            on.note("chosen");
            on.desk.keyboard.press(keycode::control);
            on.desk.keyboard.press(keycode::alt);
            on.hand.stroke(keycode::right);
            on.waitForLine("desktop: 1");
            on.note("next desktop, the keys still held");
            on.desk.keyboard.release(keycode::alt);
            on.desk.keyboard.release(keycode::control);
            on.note("all let go");
        },
        "desktop: 1"},
    {"showDesktop",
        [](RecordedDesk& on) {
            for (const auto* heading : {"shown", "hidden"}) {
                on.desk.keyboard.press(keycode::super);
                on.hand.stroke(keycode::d);
                on.note(heading);
                on.desk.keyboard.release(keycode::super);
                on.note("let go");
            }
        },
        "front: none"},
    {"menuOfAWindow",
        [](RecordedDesk& on) {
            on.hand.pointAt(200, 110);
            on.hand.click(rightButton);
            on.note("open");
            on.desk.mouse.move(30, 70);
            on.note("over an item");
            on.hand.click(leftButton);
            on.note("chosen");
        },
        "on screen: 201,111"},
    {"doubleClick",
        [](RecordedDesk& on) {
            on.hand.pointAt(200, 110);
            on.hand.click(leftButton, 2);
            on.note("twice");
        },
        "One: 0,21"},
    {"dragSelection",
        [](RecordedDesk& on) {
            type(on, "aaaaaaaa");
            movePointerIntoTerminal(on, 4);
            on.hand.drag(leftButton, 150, 0);
            noteSelection(on, "aaaaaaaa");
        },
        "selected: aaaaaaaa"},
    {"selectionOfAWordByADoubleClick",
        [](RecordedDesk& on) {
            type(on, "aaaaaaaa");
            movePointerIntoTerminal(on, 14);
            on.hand.click(leftButton, 2);
            noteSelection(on, "aaaaaaaa");
        },
        "selected: aaaaaaaa"},
    {"pasteWithTheMiddleButton",
        [](RecordedDesk& on) {
            type(on, "aaa");
            movePointerIntoTerminal(on, 10);
            on.hand.click(leftButton, 2);
            noteSelection(on, "aaa");
            on.hand.click(middleButton);
            on.waitForTyped("aaaaaa");
            on.note("pasted");
        },
        "selected: aaa"},
    {"wheel",
        [](RecordedDesk& on) {
            on.hand.pointAt(500, 400);
            on.desk.mouse.turnWheel(3);
            on.note("down");
            on.desk.mouse.turnWheel(-2);
            on.note("up");
        },
        "Two: press 5"},
    {"layoutSwitching",
        [](RecordedDesk& on) {
            run({.command = {"setxkbmap", "-layout", "us,de", "-option", "grp:alt_shift_toggle"}},
                usualDeadline);
            on.desk.windows.activate(on.terminal.window());
            on.hand.stroke(keycode::y);
            on.desk.keyboard.press(keycode::alt);
            on.hand.stroke(keycode::shift);
            on.desk.keyboard.release(keycode::alt);
            on.hand.stroke(keycode::y);
            on.waitForTyped("yz");
            on.note("typed");
        },
        "244x134 yz"},
};

/// The programs that the same is recorded beside.
enum class Beside { nothing, triggers, everything };

std::string record(const Habit& habit, Beside beside)
{
    RecordedDesk on;
    if (beside != Beside::nothing) {
        auto config = everything();
        config.scroll.smoothEnabled = beside == Beside::everything;
        on.desk.start(config);
    }
    habit.play(on);
    const bool stillRuns = !on.desk.program || on.desk.program->child().isRunning();
    EXPECT_TRUE(stillRuns);
    return on.record();
}

class UnchangedDesktop : public testing::TestWithParam<Habit> { };

TEST_P(UnchangedDesktop, isTheSameWithTheProgram)
{
    const auto without = record(GetParam(), Beside::nothing);

    EXPECT_NE(without.find(GetParam().proof), std::string::npos) << without;
    EXPECT_EQ(record(GetParam(), Beside::triggers), without);
    EXPECT_EQ(record(GetParam(), Beside::everything), without);
}

INSTANTIATE_TEST_SUITE_P(Habits, UnchangedDesktop, testing::ValuesIn(habits),
    [](const auto& tested) { return std::string(tested.param.name); });

/// The repeats of a key that is held, as the window got them: a line each time, and in the end
/// nothing that is still held.
TEST(UnchangedKeyboard, repeatsAKeyThatIsHeldAsLongAsItIsHeld)
{
    for (const auto beside : {Beside::nothing, Beside::everything}) {
        RecordedDesk on;
        if (beside == Beside::everything)
            on.desk.start(everything());
        ASSERT_TRUE(on.desk.windows.activate(on.one.id()));
        on.one.forget();

        on.desk.keyboard.press(keycode::a);
        constexpr std::size_t several = 12;
        EXPECT_TRUE(eventually([&] { return on.one.lines().size() >= several; }));
        on.desk.keyboard.release(keycode::a);
        on.desk.keyboard.settle();
        EXPECT_TRUE(eventually([&] { return on.one.held().empty(); }));

        const auto lines = on.one.lines();
        for (std::size_t index = 0; index < lines.size(); ++index)
            EXPECT_EQ(lines[index], index % 2 == 0 ? "key 38 down" : "key 38 up") << index;
        EXPECT_EQ(lines.size() % 2, 0U);
    }
}

} // namespace
} // namespace brindlex
