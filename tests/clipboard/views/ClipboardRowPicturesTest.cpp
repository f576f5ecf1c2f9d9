#include "clipboard/views/ClipboardRowPictures.h"

#include "clipboard/ClipboardHistoryStoreFixture.h"

#include <QImage>

#include <optional>

namespace brindlex {
namespace {

struct ClipboardRowPicturesTest : ClipboardHistoryStoreTest {
    std::string picture(const std::string& name, const QSize& size = {400, 200}) const
    {
        const auto file = temporary.path() / name;
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        image.save(QString::fromStdString(file));
        return file;
    }

    /// Lets the pictures be made that were asked for.
    void settle()
    {
        pictureQueue.drain();
        mainThread.runUntilIdle();
    }

    QSize sizeOf(const ClipboardItem& item)
    {
        const auto icon = pictures.of(item);
        return icon.isNull() ? QSize() : icon.availableSizes().front();
    }

    ClipboardHistoryStore& history = start();
    SimulatedQueue pictureQueue;
    int asked = 0;
    ClipboardRowPictures pictures{{mainThread, pictureQueue, history, [this](const auto& bundleID) {
                                       ++asked;
                                       QPixmap icon(16, 16);
                                       icon.fill(Qt::red);
                                       return bundleID == "org.editor" ? QIcon(icon) : QIcon();
                                   }}};
    int made = 0;
    Subscription observed = pictures.observe([this] { ++made; });
};

TEST_F(ClipboardRowPicturesTest, areMadeSmallBesideTheMainThread)
{
    const auto item = fileItem({picture("a.png")});
    EXPECT_EQ(sizeOf(item), QSize());
    EXPECT_EQ(made, 0);
    settle();
    EXPECT_EQ(made, 1);
    EXPECT_EQ(sizeOf(item), QSize(64, 32));
}

TEST_F(ClipboardRowPicturesTest, areMadeOnceForOneFile)
{
    const auto item = fileItem({picture("a.png")});
    for (int time = 0; time < 3; ++time)
        pictures.of(item);
    settle();
    EXPECT_EQ(made, 1);
}

TEST_F(ClipboardRowPicturesTest, areThoseOfBlobs)
{
    auto item = imageItem();
    QImage image(10, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(history.writeBlob(*item.imageBlobName, ""));
    image.save(QString::fromStdString(*history.blobURL(item)), "PNG");
    pictures.of(item);
    settle();
    EXPECT_EQ(sizeOf(item), QSize(10, 20));
}

TEST_F(ClipboardRowPicturesTest, areNoneOfWhatIsNoPicture)
{
    const auto missing = fileItem({"/nowhere/a.png"});
    const auto text = fileItem({"/nowhere/a.txt"});
    pictures.of(missing);
    pictures.of(text);
    settle();
    EXPECT_EQ(sizeOf(missing), QSize());
    EXPECT_EQ(sizeOf(text), QSize());
    EXPECT_EQ(made, 0);
}

TEST_F(ClipboardRowPicturesTest, areTheApplicationsOfTexts)
{
    auto item = textItem("text");
    EXPECT_TRUE(pictures.of(item).isNull());
    item.sourceBundleID = "org.editor";
    EXPECT_FALSE(pictures.of(item).isNull());
    EXPECT_FALSE(pictures.of(item).isNull());
    EXPECT_EQ(asked, 1);
    item.sourceBundleID = "org.other";
    EXPECT_TRUE(pictures.of(item).isNull());
}

TEST_F(ClipboardRowPicturesTest, areForgottenBeyondTheLast128)
{
    const auto first = fileItem({picture("first.png")});
    pictures.of(first);
    for (int number = 0; number < 128; ++number)
        pictures.of(fileItem({"/nowhere/" + std::to_string(number) + ".png"}));
    settle();
    EXPECT_EQ(made, 0);
    pictures.of(first);
    settle();
    EXPECT_EQ(made, 1);
}

TEST_F(ClipboardRowPicturesTest, areNotMadeForWhoHasGone)
{
    SimulatedQueue queue;
    std::optional<ClipboardRowPictures> gone(std::in_place,
        ClipboardRowPictures::Abilities{
            mainThread, queue, history, [](const auto&) { return QIcon(); }});
    gone->of(fileItem({picture("a.png")}));
    gone.reset();
    queue.drain();
    mainThread.runUntilIdle();
}

} // namespace
} // namespace brindlex
