#include "platform/linux/input/PasteWay.h"

#include "platform/Event.h"
#include "platform/VirtualKey.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr PasteWay usual{virtualKey::v, eventFlag::control};
constexpr PasteWay ofTerminals{virtualKey::v, eventFlag::control | eventFlag::shift};
constexpr PasteWay ofTheMouse{virtualKey::help, eventFlag::shift, true};

TEST(PasteWay, isControlVWhereNothingElseIsKnown)
{
    EXPECT_EQ(pasteWayOf("gedit", "Gedit"), usual);
    EXPECT_EQ(pasteWayOf("", ""), usual);
}

TEST(PasteWay, hasShiftInTerminals)
{
    EXPECT_EQ(pasteWayOf("gnome-terminal-server", "Gnome-terminal"), ofTerminals);
    EXPECT_EQ(pasteWayOf("xfce4-terminal", "Xfce4-terminal"), ofTerminals);
    EXPECT_EQ(pasteWayOf("konsole", "konsole"), ofTerminals);
    EXPECT_EQ(pasteWayOf("Alacritty", "Alacritty"), ofTerminals);
    EXPECT_EQ(pasteWayOf("kitty", "kitty"), ofTerminals);
    EXPECT_EQ(pasteWayOf("kgx", "org.gnome.Console"), ofTerminals);
}

TEST(PasteWay, isOfTheMouseSelectionInTerminalsOfOld)
{
    EXPECT_EQ(pasteWayOf("xterm", "XTerm"), ofTheMouse);
    EXPECT_EQ(pasteWayOf("uxterm", "UXTerm"), ofTheMouse);
    EXPECT_EQ(pasteWayOf("urxvt", "URxvt"), ofTheMouse);
    // One that was given a name of its own.
    EXPECT_EQ(pasteWayOf("notes", "XTerm"), ofTheMouse);
    EXPECT_EQ(pasteWayOf("xterm", "Notes"), ofTheMouse);
}

TEST(PasteWay, isShiftInsertOfWhatWasCopiedInEmacs)
{
    EXPECT_EQ(pasteWayOf("emacs", "Emacs"), (PasteWay{virtualKey::help, eventFlag::shift, false}));
}

} // namespace
} // namespace brindlex
