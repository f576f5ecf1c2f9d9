#include "desktop/RecordedDesk.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

// Keys as X counts them.
constexpr std::uint8_t tabKey = 23;
constexpr std::uint8_t controlKey = 37;
constexpr std::uint8_t keyA = 38;
constexpr std::uint8_t keyD = 40;
constexpr std::uint8_t shiftKey = 50;
constexpr std::uint8_t keyY = 29;
constexpr std::uint8_t altKey = 64;
constexpr std::uint8_t rightKey = 114;
constexpr std::uint8_t superKey = 133;

/// Something that users do with a desktop, and a line of the record that shows that it worked.
struct Habit {
    const char* name;
    void (*play)(RecordedDesk& on);
    const char* proof;
};

void PrintTo(const Habit& habit, std::ostream* stream) { *stream << habit.name; }

const std::vector<Habit> habits{
    {"clickToFocus",
        [](RecordedDesk& on) {
            on.movePointer(120, 120);
            on.click(leftButton);
            on.note("clicked into the first");
            on.movePointer(560, 430);
            on.click(leftButton);
            on.note("clicked into the second");
        },
        "Two: press 1"},
    {"dragOfATitleBar",
        [](RecordedDesk& on) {
            on.movePointer(200, 110);
            on.drag(leftButton, 50, 70);
            on.note("dragged");
        },
        "One: 151,190 300x200"},
    {"dragWithAlt",
        [](RecordedDesk& on) {
            on.movePointer(200, 150);
            on.desk.keyboard.press(altKey);
            on.desk.keyboard.settle();
            on.drag(leftButton, 60, 40);
            on.note("dragged");
            on.desk.keyboard.release(altKey);
            on.note("let go");
        },
        "One: 161,160 300x200"},
    {"resizeWithAlt",
        [](RecordedDesk& on) {
            on.movePointer(280, 250);
            on.desk.keyboard.press(altKey);
            on.desk.keyboard.settle();
            on.drag(rightButton, 40, 30);
            on.note("dragged");
            on.desk.keyboard.release(altKey);
            on.note("let go");
        },
        "One: 101,120 340x230"},
    {"shortcutsOfTheWindowManager",
        [](RecordedDesk& on) {
            on.desk.keyboard.press(altKey);
            on.stroke(tabKey);
            on.waitForLine("on screen: 352,317 320x134");
            on.note("next window");
            on.desk.keyboard.release(altKey);
            on.waitForLine("front: Two");
            on.note("chosen");
            on.desk.keyboard.press(controlKey);
            on.desk.keyboard.press(altKey);
            on.stroke(rightKey);
            on.waitForLine("desktop: 1");
            on.note("next desktop, the keys still held");
            on.desk.keyboard.release(altKey);
            on.desk.keyboard.release(controlKey);
            on.note("all let go");
        },
        "desktop: 1"},
    {"showDesktop",
        [](RecordedDesk& on) {
            for (const auto* heading : {"shown", "hidden"}) {
                on.desk.keyboard.press(superKey);
                on.stroke(keyD);
                on.note(heading);
                on.desk.keyboard.release(superKey);
                on.note("let go");
            }
        },
        "front: none"},
    {"menuOfAWindow",
        [](RecordedDesk& on) {
            on.movePointer(200, 110);
            on.click(rightButton);
            on.note("open");
            on.desk.mouse.move(30, 70);
            on.note("over an item");
            on.click(leftButton);
            on.note("chosen");
        },
        "on screen: 201,111"},
    {"doubleClick",
        [](RecordedDesk& on) {
            on.movePointer(200, 110);
            on.click(leftButton, 2);
            on.note("twice");
        },
        "One: 0,21"},
    {"dragSelection",
        [](RecordedDesk& on) {
            on.desk.windows.activate(on.terminal.window());
            for (int letter = 0; letter < 8; ++letter)
                on.stroke(keyA);
            on.waitForTyped("aaaaaaaa");
            on.note("typed");
            const auto area = on.desk.windows.areaOf(on.terminal.window());
            on.movePointer(area.x + 4, area.y + 8);
            on.drag(leftButton, 150, 0);
            on.waitForLine("selected: aaaaaaaa");
            on.note("selected");
        },
        "selected: aaaaaaaa"},
    {"selectionOfAWordByADoubleClick",
        [](RecordedDesk& on) {
            on.desk.windows.activate(on.terminal.window());
            for (int letter = 0; letter < 8; ++letter)
                on.stroke(keyA);
            on.waitForTyped("aaaaaaaa");
            on.note("typed");
            const auto area = on.desk.windows.areaOf(on.terminal.window());
            on.movePointer(area.x + 14, area.y + 8);
            on.click(leftButton, 2);
            on.waitForLine("selected: aaaaaaaa");
            on.note("selected");
        },
        "selected: aaaaaaaa"},
    {"pasteWithTheMiddleButton",
        [](RecordedDesk& on) {
            on.desk.windows.activate(on.terminal.window());
            for (int letter = 0; letter < 3; ++letter)
                on.stroke(keyA);
            on.waitForTyped("aaa");
            on.note("typed");
            const auto area = on.desk.windows.areaOf(on.terminal.window());
            on.movePointer(area.x + 10, area.y + 8);
            on.click(leftButton, 2);
            on.waitForLine("selected: aaa");
            on.note("selected");
            on.click(middleButton);
            on.waitForTyped("aaaaaa");
            on.note("pasted");
        },
        "selected: aaa"},
    {"wheel",
        [](RecordedDesk& on) {
            on.movePointer(500, 400);
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
            on.stroke(keyY);
            on.desk.keyboard.press(altKey);
            on.stroke(shiftKey);
            on.desk.keyboard.release(altKey);
            on.stroke(keyY);
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

        on.desk.keyboard.press(keyA);
        constexpr std::size_t several = 12;
        EXPECT_TRUE(eventually([&] { return on.one.lines().size() >= several; }));
        on.desk.keyboard.release(keyA);
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
