#include "platform/linux/inputsources/Fcitx5Contexts.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Fcitx5FocusedContext, isTheOneWithTheKeyboard)
{
    EXPECT_EQ(fcitx5FocusedContext("Group [x11::0] has 2 InputContext(s)\n"
                                   "  IC [b1be] program:xterm frontend:xim cap:4000000000 focus:0\n"
                                   "  IC [4d36] program:xterm frontend:xim cap:4000000000 focus:1\n"
                                   "Input Context without group\n"
                                   "  IC [77ff] program:kate frontend:dbus cap:72 focus:0\n"),
        "4d36");
    EXPECT_EQ(fcitx5FocusedContext("Input Context without group\n"
                                   "  IC [77ff] program:kate frontend:dbus cap:72 focus:1"),
        "77ff");
}

TEST(Fcitx5FocusedContext, isNoneWhereNobodyHasTheKeyboard)
{
    EXPECT_EQ(fcitx5FocusedContext(""), "");
    EXPECT_EQ(fcitx5FocusedContext("  IC [b1be] program:xterm frontend:xim cap:0 focus:0\n"), "");
    EXPECT_EQ(fcitx5FocusedContext("  IC [b1be] program: focus:1 frontend:xim cap:0 focus:0"), "");
}

TEST(Fcitx5FocusedContext, isNoneInAnyOtherText)
{
    EXPECT_EQ(fcitx5FocusedContext("No such method 'DebugInfo'"), "");
    EXPECT_EQ(
        fcitx5FocusedContext("\n\n\n focus:1\nIC [ focus:1\nIC [] focus:1\nIC b] focus:1"), "");
    EXPECT_EQ(fcitx5FocusedContext(QString(1 << 20, '\n')), "");
}

} // namespace
} // namespace brindlex
