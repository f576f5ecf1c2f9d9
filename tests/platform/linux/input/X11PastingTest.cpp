#include "platform/linux/input/X11Pasting.h"

#include "support/hardware/Keycodes.h"
#include "support/hardware/TappedDesktop.h"

namespace brindlex {
namespace {

struct X11PastingTest : testing::Test, TappedDesktop {
    X11Connection display;
    bool isShared = false;
    X11Pasting pasting{display, posting, [this](auto done) {
                           isShared = true;
                           done();
                       }};
};

TEST_F(X11PastingTest, releasesWhatAHandHoldsForTheKeystroke)
{
    keyboard.press(keycode::control);
    keyboard.press(keycode::shift);
    settle();
    window.forget();
    pasting.postPaste();
    settle();
    const auto& lines = window.lines();
    EXPECT_EQ(std::ranges::count(lines, "key 55 down (control)"), 1)
        << testing::PrintToString(lines);
    EXPECT_FALSE(isShared);
}

} // namespace
} // namespace brindlex
