#include "platform/linux/inputsources/UndoingReason.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Names = std::vector<std::string>;

TEST(UndoingReason, isTheShellOfGnomeWhereItManagesTheWindows)
{
    for (const std::string manager : {"GNOME Shell", "Mutter", "Mutter (Muffin)"})
        EXPECT_EQ(undoingReason(manager, {"kbdd"}),
            "GNOME Shell lets no other program change the layout. Fcitx 5 can be switched there, "
            "with one layout in the settings of the Shell.");
}

TEST(UndoingReason, isAProgramThatKeepsALayoutForEachWindow)
{
    EXPECT_EQ(undoingReason("Openbox", {"bash", "kbdd"}),
        "kbdd keeps a layout for each window and brings it back. It is not needed beside "
        "Brindlex.");
    EXPECT_EQ(undoingReason("Xfwm4", {"bash", "panel-12-xkb"}),
        "The layout plugin of the Xfce panel keeps a layout for each window and brings it back. "
        "It can be set to manage the layout globally.");
}

TEST(UndoingReason, isUnknownElsewhere)
{
    EXPECT_EQ(undoingReason("", {}), "");
    EXPECT_EQ(undoingReason("Openbox", Names{"panel-3-clock", "xkb", "kbdde"}), "");
}

TEST(UndoingReason, looksThroughTheProcessesThatRun)
{
    const auto names = processNames();
    EXPECT_NE(std::find_if(names.begin(), names.end(),
                  [](const auto& name) { return name.starts_with("brindlex_"); }),
        names.end());
}

} // namespace
} // namespace brindlex
