#include "desktop/ClipboardFixture.h"
#include "support/applications/RealApplication.h"
#include "support/windows/PrimarySelection.h"
#include "support/windows/TypingWindow.h"

#include <csignal>

namespace brindlex {
namespace {

TEST_F(Clipboard, pastesIntoTheTerminalWhatIsFoundByTwoLetters)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("first text"));
    ASSERT_TRUE(copies("second line"));
    ASSERT_TRUE(opens());
    EXPECT_EQ(desk.windows.active(), terminal.window());
    type("fi\n");
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(terminal.receives("first text")) << terminal.text() << desk.program->report();
    EXPECT_EQ(desk.windows.active(), terminal.window());
}

TEST_F(Clipboard, pastesByTheDigitOfARow)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    for (const auto* const text : {"one", "two", "three"})
        ASSERT_TRUE(copies(text));
    ASSERT_TRUE(opens());
    chord({keycode::super}, keyOf('3'));
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(terminal.receives("one")) << terminal.text() << desk.program->report();
}

TEST_F(Clipboard, givesTheKeysBackWhenItIsClosed)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("text"));
    ASSERT_TRUE(opens());
    type("ab");
    type("\x1b");
    EXPECT_TRUE(isGone());
    type("c");
    EXPECT_TRUE(terminal.receives("c")) << terminal.text() << desk.program->report();
}

TEST_F(Clipboard, isClosedByAClickElsewhere)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("text"));
    ASSERT_TRUE(opens());
    const PlayedInput pointer(desk.server);
    const auto area = desk.windows.areaOf(terminal.window());
    pointer.click(area.x + 5, area.y + 5);
    EXPECT_TRUE(isGone());
    type("c");
    EXPECT_TRUE(terminal.receives("c")) << terminal.text() << desk.program->report();
}

TEST_F(Clipboard, keepsWhatAnApplicationThatEndsHasCopied)
{
    ASSERT_TRUE(copies("kept"));
    owner.reset();
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(opens());
    type("\n");
    EXPECT_TRUE(terminal.receives("kept")) << terminal.text() << desk.program->report();
}

TEST_F(Clipboard, leavesTheSelectionOfTheMouseAloneWhileItIsOnlyLookedAt)
{
    const SelectionOwner selected({.contents = {{"STRING", "selected"}}, .selection = "PRIMARY"});
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("text"));
    ASSERT_TRUE(opens());
    type("\x1b");
    EXPECT_TRUE(isGone());
    EXPECT_EQ(primarySelection(desk.server), "selected");
}

TEST_F(Clipboard, givesTheKeyboardBackWhenTheProgramHangs)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("text"));
    ASSERT_TRUE(opens());
    desk.program->child().signal(SIGSTOP);
    EXPECT_TRUE(eventually([&] {
        desk.keyboard.stroke(keyOf('x'));
        return terminal.text().ends_with("x");
    }));
    desk.program->child().signal(SIGCONT);
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(desk.program->logs("The panel was closed: the program did not reply"));
    EXPECT_TRUE(opensInTime()) << desk.program->report();
}

TEST_F(Clipboard, givesTheKeyboardBackWhenTheProgramIsKilled)
{
    const TypingWindow terminal(desk.windows, "Alpha");
    ASSERT_TRUE(copies("text"));
    ASSERT_TRUE(opens());
    desk.program->kill();
    type("c");
    EXPECT_TRUE(terminal.receives("c"));
}

class ClipboardOfToolkits : public Clipboard, public testing::WithParamInterface<const char*> { };

TEST_P(ClipboardOfToolkits, pastesIntoTheText)
{
    const RealApplication application(desk.desktop, desk.windows, toolkitWindow(GetParam()));
    ASSERT_TRUE(copies("pasted"));
    ASSERT_TRUE(opens());
    type("\n");
    EXPECT_TRUE(eventually([&] { return application.title().find("pasted") != std::string::npos; }))
        << application.title() << desk.program->report();
}

INSTANTIATE_TEST_SUITE_P(Of, ClipboardOfToolkits, testing::Values("gtk3", "gtk4", "qt6"),
    [](const auto& toolkit) { return std::string(toolkit.param); });

} // namespace
} // namespace brindlex
