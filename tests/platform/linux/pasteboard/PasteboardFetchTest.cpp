#include "platform/linux/pasteboard/PasteboardFetch.h"

#include "platform/simulated/SimulatedImageConverting.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Names = std::vector<std::string>;

struct PasteboardFetchTest : testing::Test {
    /// Lets the fetch request what it wants of the contents, by target; those it does not find are
    /// refused.
    PasteboardState fetch(const std::map<std::string, std::string>& contents, Names targets = {})
    {
        if (targets.empty())
            for (const auto& [target, bytes] : contents)
                targets.push_back(target);
        PasteboardFetch fetch(targets, images);
        requested.clear();
        while (const auto target = fetch.target()) {
            requested.push_back(*target);
            const auto found = contents.find(*target);
            fetch.receive(found == contents.end() ? std::nullopt : std::optional(found->second));
        }
        return fetch.state();
    }

    SimulatedImageConverting images;
    Names requested;
};

TEST_F(PasteboardFetchTest, takesTheBestTextAndNoOther)
{
    const auto state = fetch({{"UTF8_STRING", "é"}, {"STRING", "\xE9"}, {"text/html", "<b>é</b>"}});
    EXPECT_EQ(state.text, "é");
    EXPECT_EQ(requested, Names{"UTF8_STRING"});
    EXPECT_EQ(state.types, (Names{"public.utf8-plain-text", "public.html"}));
}

TEST_F(PasteboardFetchTest, takesTheNextTextOfOneThatIsRefused)
{
    const auto state = fetch({{"STRING", "caf\xE9"}}, {"UTF8_STRING", "text/plain", "STRING"});
    EXPECT_EQ(state.text, "café");
    EXPECT_EQ(requested, (Names{"UTF8_STRING", "text/plain", "STRING"}));
}

TEST_F(PasteboardFetchTest, hasTypesAndNothingElseOfWhatRefusesAll)
{
    const auto state = fetch({}, {"UTF8_STRING", "text/plain"});
    EXPECT_EQ(state, (PasteboardState{.types = {"public.utf8-plain-text"}}));
}

TEST_F(PasteboardFetchTest, takesFilesAndNothingElse)
{
    const auto state = fetch({{"x-special/gnome-copied-files", "copy\nfile:///a"},
        {"text/uri-list", "file:///other\r\n"}, {"UTF8_STRING", "/a"}, {"image/png", "icon"}});
    EXPECT_EQ(state.filePaths, Names{"/a"});
    EXPECT_EQ(state.text, std::nullopt);
    EXPECT_TRUE(state.data.empty());
    EXPECT_EQ(requested, Names{"x-special/gnome-copied-files"});
}

TEST_F(PasteboardFetchTest, takesTheTextOfAListWithoutLocalFiles)
{
    const auto state
        = fetch({{"text/uri-list", "https://example.org\r\n"}, {"UTF8_STRING", "a link"}});
    EXPECT_EQ(state.filePaths, Names{});
    EXPECT_EQ(state.text, "a link");
    EXPECT_EQ(requested, (Names{"text/uri-list", "UTF8_STRING"}));
}

TEST_F(PasteboardFetchTest, takesAPngAndNoOtherPictureAndNoText)
{
    const auto state
        = fetch({{"image/png", "PNG"}, {"image/jpeg", "JPEG"}, {"UTF8_STRING", "the picture"}});
    EXPECT_EQ(state.data, (std::map<std::string, std::string, std::less<>>{{"public.png", "PNG"}}));
    EXPECT_EQ(state.text, std::nullopt);
    EXPECT_EQ(requested, Names{"image/png"});
}

TEST_F(PasteboardFetchTest, takesTiffAndJpegWhereThereIsNoPng)
{
    const auto state = fetch({{"image/tiff", "TIFF"}, {"image/jpeg", "JPEG"}},
        {"image/bmp", "image/jpeg", "image/tiff", "image/png"});
    EXPECT_EQ(state.data,
        (std::map<std::string, std::string, std::less<>>{
            {"public.jpeg", "JPEG"}, {"public.tiff", "TIFF"}}));
    EXPECT_EQ(requested, (Names{"image/png", "image/tiff", "image/jpeg"}));
}

TEST_F(PasteboardFetchTest, makesAPngOfPicturesThatOnlyThisSystemKnows)
{
    images.pngs.emplace("BMP", std::string("PNG of the BMP"));
    const auto state = fetch({{"image/bmp", "BMP"}, {"image/x-bmp", "BMP"}, {"STRING", "text"}});
    EXPECT_EQ(state.types, (Names{"public.utf8-plain-text", "public.png"}));
    EXPECT_EQ(state.data,
        (std::map<std::string, std::string, std::less<>>{{"public.png", "PNG of the BMP"}}));
    EXPECT_EQ(requested, Names{"image/bmp"});
}

TEST_F(PasteboardFetchTest, triesTheNextOfThosePicturesThatCannotBeRead)
{
    images.pngs.emplace("BMP", std::string("PNG of the BMP"));
    const auto state = fetch({{"image/webp", "damaged"}, {"image/bmp", "BMP"}});
    EXPECT_EQ(state.data.at("public.png"), "PNG of the BMP");
    EXPECT_EQ(fetch({{"image/webp", "damaged"}}).data.size(), 0U);
}

TEST_F(PasteboardFetchTest, requestsNothingOfASecret)
{
    const std::map<std::string, std::string> password{
        {"UTF8_STRING", "password"}, {"x-kde-passwordManagerHint", "secret"}};
    EXPECT_EQ(fetch(password),
        (PasteboardState{.types = {"public.utf8-plain-text", "org.nspasteboard.ConcealedType"}}));
    EXPECT_EQ(requested, Names{"x-kde-passwordManagerHint"});

    EXPECT_EQ(fetch({{"UTF8_STRING", "password"}}, {"UTF8_STRING", "x-kde-passwordManagerHint"})
                  .types.back(),
        "org.nspasteboard.ConcealedType")
        << "a hint that cannot be read";
    EXPECT_EQ(requested, Names{"x-kde-passwordManagerHint"});

    for (const auto* const mark : {"org.nspasteboard.ConcealedType",
             "application/x-nspasteboard-transient-type", "org.nspasteboard.AutoGeneratedType"}) {
        EXPECT_EQ(fetch({{"UTF8_STRING", "text"}, {mark, ""}}).text, std::nullopt) << mark;
        EXPECT_EQ(requested, Names{}) << mark;
    }
}

TEST_F(PasteboardFetchTest, takesWhatAPasswordManagerSaysIsNoSecret)
{
    const auto state
        = fetch({{"UTF8_STRING", "user name"}, {"x-kde-passwordManagerHint", "public"}});
    EXPECT_EQ(state.text, "user name");
    EXPECT_EQ(state.types, Names{"public.utf8-plain-text"});
}

TEST_F(PasteboardFetchTest, isCompleteAtOnceWhereNothingIsOffered)
{
    EXPECT_EQ(fetch({}), PasteboardState{});
    EXPECT_EQ(requested, Names{});
    EXPECT_EQ(fetch({{"application/x-unknown", "bytes"}}).types, Names{"application/x-unknown"});
    EXPECT_EQ(requested, Names{});
}

} // namespace
} // namespace brindlex
