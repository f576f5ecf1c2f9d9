#include "platform/PasteboardState.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(PasteboardState, isWhatWasWritten)
{
    EXPECT_EQ(stateOf(PasteboardContent::Nothing{}), PasteboardState{});
    EXPECT_EQ(stateOf(PasteboardContent::Text{"é"}),
        (PasteboardState{.types = {"public.utf8-plain-text"}, .text = "é"}));
    EXPECT_EQ(stateOf(PasteboardContent::Files{{"/a b", "/c"}}),
        (PasteboardState{.types = {"public.file-url"}, .filePaths = {"/a b", "/c"}}));
    const std::string bytes("PNG\0\xFF", 5);
    EXPECT_EQ(stateOf(PasteboardContent::Data{"public.png", bytes}),
        (PasteboardState{.types = {"public.png"}, .data = {{"public.png", bytes}}}));
}

TEST(PasteboardState, hasOnlyWellFormedText)
{
    EXPECT_EQ(stateOf(PasteboardContent::Text{"a\xFFz"}).text, "a\uFFFDz");
    EXPECT_EQ(stateOf(PasteboardContent::Text{}).text, "");
}

} // namespace
} // namespace brindlex
