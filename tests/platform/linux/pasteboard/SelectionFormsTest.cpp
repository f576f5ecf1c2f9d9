#include "platform/linux/pasteboard/SelectionForms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Names = std::vector<std::string>;

/// Every form that is offered, by its target.
std::map<std::string, std::string> formsOf(const PasteboardState& state)
{
    std::map<std::string, std::string> forms;
    for (const auto& target : selectionTargetsOf(state))
        forms.emplace(target, selectionForm(state, target).value_or("missing"));
    return forms;
}

TEST(SelectionForms, areThoseOfAText)
{
    EXPECT_EQ(formsOf(stateOf(PasteboardContent::Text{"café"})),
        (std::map<std::string, std::string>{{"UTF8_STRING", "café"},
            {"text/plain;charset=utf-8", "café"}, {"text/plain", "café"}, {"STRING", "caf\xE9"}}));
    EXPECT_EQ(selectionTargetsOf(stateOf(PasteboardContent::Text{"漢"})),
        (Names{"UTF8_STRING", "text/plain;charset=utf-8", "text/plain"}));
}

TEST(SelectionForms, areThoseOfFiles)
{
    EXPECT_EQ(formsOf(stateOf(PasteboardContent::Files{{"/a b", "/ü"}})),
        (std::map<std::string, std::string>{
            {"x-special/gnome-copied-files", "copy\nfile:///a%20b\nfile:///%C3%BC"},
            {"text/uri-list", "file:///a%20b\r\nfile:///%C3%BC\r\n"}, {"UTF8_STRING", "/a b\n/ü"},
            {"text/plain;charset=utf-8", "/a b\n/ü"}, {"text/plain", "/a b\n/ü"},
            {"STRING", "/a b\n/\xFC"}}));
}

TEST(SelectionForms, areThoseOfPictures)
{
    const std::string bytes("PNG\0\xFF", 5);
    EXPECT_EQ(formsOf(stateOf(PasteboardContent::Data{"public.png", bytes})),
        (std::map<std::string, std::string>{{"image/png", bytes}}));
    const PasteboardState both{.data = {{"public.jpeg", "JPEG"}, {"public.tiff", "TIFF"}}};
    EXPECT_EQ(selectionTargetsOf(both), (Names{"image/tiff", "image/jpeg"}));
}

TEST(SelectionForms, areNoneOfWhatIsNotThere)
{
    EXPECT_EQ(selectionTargetsOf({}), Names{});
    for (const auto* const target :
        {"UTF8_STRING", "STRING", "image/png", "text/uri-list", "x-special/gnome-copied-files"})
        EXPECT_EQ(selectionForm({}, target), std::nullopt) << target;
    EXPECT_EQ(selectionForm(stateOf(PasteboardContent::Text{"text"}), "image/png"), std::nullopt);
    EXPECT_EQ(selectionForm(stateOf(PasteboardContent::Text{"漢"}), "STRING"), std::nullopt);
    EXPECT_EQ(selectionForm(stateOf(PasteboardContent::Text{"text"}), "text/html"), std::nullopt);
}

} // namespace
} // namespace brindlex
