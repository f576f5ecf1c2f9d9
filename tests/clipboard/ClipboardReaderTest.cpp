#include "clipboard/ClipboardReader.h"

#include "clipboard/ClipboardHistoryStoreFixture.h"
#include "platform/simulated/SimulatedImageConverting.h"
#include "platform/simulated/SimulatedPasteboard.h"

namespace brindlex {
namespace {

struct ClipboardReaderTest : ClipboardHistoryStoreTest {
    using Offer = SimulatedPasteboard::Offer;

    /// The picture that is read of the data, by type.
    std::string png(const std::map<std::string, std::string, std::less<>>& data)
    {
        Offer offer{.data = data};
        for (const auto& [type, bytes] : data)
            offer.types.push_back(type);
        pasteboard.copy(offer);
        const auto read = ClipboardReader::imagePNGData(pasteboard, images);
        return read ? *read : "none";
    }

    /// What is on the pasteboard once the item has been written to it, over something else.
    Offer written(const ClipboardItem& item)
    {
        pasteboard.copyText("something else");
        ClipboardReader::write(item, *store, pasteboard);
        return pasteboard.offer();
    }

    SimulatedPasteboard pasteboard{mainThread};
    const Subscription observed = pasteboard.observeChanges([] {});
    SimulatedImageConverting images;
};

TEST_F(ClipboardReaderTest, takesAPngAsItIs)
{
    EXPECT_EQ(
        png({{"public.png", "no picture at all"}, {"public.tiff", "TIFF"}}), "no picture at all");
    EXPECT_TRUE(images.asked.empty());
}

TEST_F(ClipboardReaderTest, convertsATiff)
{
    images.pngs.emplace("TIFF", std::string("PNG of the TIFF"));
    EXPECT_EQ(png({{"public.tiff", "TIFF"}, {"public.jpeg", "JPEG"}}), "PNG of the TIFF");
    EXPECT_EQ(images.asked, Texts{"TIFF"});
    EXPECT_EQ(png({{"public.png", ""}, {"public.tiff", "TIFF"}}), "PNG of the TIFF");
}

TEST_F(ClipboardReaderTest, convertsAJpegWithoutATiffOrWithOneThatIsNoPicture)
{
    images.pngs.emplace("JPEG", std::string("PNG of the JPEG"));
    EXPECT_EQ(png({{"public.jpeg", "JPEG"}}), "PNG of the JPEG");
    EXPECT_EQ(png({{"public.tiff", "damaged"}, {"public.jpeg", "JPEG"}}), "PNG of the JPEG");
}

TEST_F(ClipboardReaderTest, looksForNoOtherFormWhereThePngCannotBeWritten)
{
    images.pngs.emplace("TIFF", fail(ImageProblem::notWritten));
    images.pngs.emplace("JPEG", std::string("PNG of the JPEG"));
    EXPECT_EQ(png({{"public.tiff", "TIFF"}, {"public.jpeg", "JPEG"}}), "none");
    EXPECT_EQ(images.asked, Texts{"TIFF"});
}

TEST_F(ClipboardReaderTest, hasNoPictureOfWhatIsNone)
{
    EXPECT_EQ(png({}), "none");
    EXPECT_EQ(png({{"public.gif", "GIF"}}), "none");
    EXPECT_EQ(png({{"public.tiff", "damaged"}}), "none");
    EXPECT_EQ(png({{"public.tiff", "damaged"}, {"public.jpeg", "damaged too"}}), "none");
}

TEST_F(ClipboardReaderTest, writesText)
{
    start();
    EXPECT_EQ(
        written(textItem("hello")), (Offer{.types = {"public.utf8-plain-text"}, .text = "hello"}));
}

TEST_F(ClipboardReaderTest, writesPaths)
{
    start();
    EXPECT_EQ(written(fileItem({"/a b", "/c"})),
        (Offer{.types = {"public.file-url"}, .filePaths = {"/a b", "/c"}}));
}

TEST_F(ClipboardReaderTest, writesPicturesFromTheirBlob)
{
    const std::string bytes("PNG\0\xFF bytes", 11);
    const auto picture = imageItem();
    ASSERT_TRUE(start().writeBlob(*picture.imageBlobName, bytes));
    EXPECT_EQ(written(picture), (Offer{.types = {"public.png"}, .data = {{"public.png", bytes}}}));
}

TEST_F(ClipboardReaderTest, leavesNothingWhereTheContentIsMissing)
{
    start();
    auto text = textItem("hello");
    text.text.reset();
    auto files = fileItem({"/a"});
    files.fileURLStrings->clear();
    auto outside = imageItem();
    outside.imageBlobName = "../index.json";
    auto nameless = imageItem();
    nameless.imageBlobName.reset();
    for (const auto& item : {text, files, imageItem(), outside, nameless})
        EXPECT_EQ(written(item), Offer{});
    files.fileURLStrings.reset();
    EXPECT_EQ(written(files), Offer{});
}

} // namespace
} // namespace brindlex
