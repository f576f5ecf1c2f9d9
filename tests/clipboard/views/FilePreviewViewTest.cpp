#include "clipboard/views/FilePreviewView.h"

#include "support/basics/TemporaryFolder.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace brindlex {
namespace {

constexpr QSize screen(1024, 640);

struct FilePreviewViewTest : testing::Test {
    void show(const std::vector<std::filesystem::path>& files)
    {
        view = std::make_unique<FilePreviewView>(ViewContext{theme, strings}, files, screen);
        theme.dress(*view);
        view->show();
        QApplication::processEvents();
    }

    std::filesystem::path text(const std::string& name, const std::string& bytes) const
    {
        const auto file = folder.path() / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    std::filesystem::path picture(const QSize& size) const
    {
        const auto file = folder.path() / "picture.png";
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(QString::fromStdString(file));
        return file;
    }

    QSize pictureSize() const
    {
        for (const auto* const label : view->findChildren<QLabel*>())
            if (!label->pixmap().isNull())
                return label->pixmap().size();
        return {};
    }

    QString sheet() const { return view->findChild<QPlainTextEdit*>()->toPlainText(); }
    bool says(const QString& words) const
    {
        for (const auto* const label : view->findChildren<QLabel*>())
            if (label->text() == words)
                return true;
        return false;
    }

    TemporaryFolder folder;
    StringCatalogue strings{"en"};
    Theme theme;
    std::unique_ptr<FilePreviewView> view;
};

TEST_F(FilePreviewViewTest, showsASmallPictureAsItIs)
{
    show({picture({40, 30})});
    EXPECT_EQ(pictureSize(), QSize(40, 30));
    EXPECT_TRUE(says("picture.png"));
}

TEST_F(FilePreviewViewTest, fitsALargePictureIntoTheScreen)
{
    show({picture({4000, 1000})});
    EXPECT_LE(view->sizeHint().width(), screen.width());
    EXPECT_LE(view->sizeHint().height(), screen.height());
    EXPECT_EQ(pictureSize().width(), 4 * pictureSize().height());
}

TEST_F(FilePreviewViewTest, showsTheBeginningOfAText)
{
    show({text("notes.txt", "one\ntwo")});
    EXPECT_EQ(sheet(), "one\ntwo");
    EXPECT_TRUE(says("notes.txt"));
}

TEST_F(FilePreviewViewTest, showsWordsOfAMarkupAsTheyAre)
{
    show({text("page.html", "<b>bold</b>")});
    EXPECT_EQ(sheet(), "<b>bold</b>");
}

TEST_F(FilePreviewViewTest, countsTheEntriesOfAFolder)
{
    text("a", "a");
    text("b", "b");
    show({folder.path()});
    EXPECT_TRUE(says("Entries: 2"));
}

TEST_F(FilePreviewViewTest, saysWhatAnythingElseIs)
{
    show({text("archive.bin", std::string("\0\1\2", 3))});
    EXPECT_TRUE(says("archive.bin"));
}

TEST_F(FilePreviewViewTest, callsFilesByOtherNames)
{
    const auto file = text("0815.txt", "text");
    view = std::make_unique<FilePreviewView>(ViewContext{theme, strings},
        std::vector{file, text("b.txt", "text")}, screen,
        [&](const auto& named) { return named == file ? QString("Image") : QString(); });
    EXPECT_TRUE(says("Image"));
    EXPECT_TRUE(says("b.txt"));
}

TEST_F(FilePreviewViewTest, countsTheFilesThatHaveNoRoom)
{
    std::vector<std::filesystem::path> files;
    for (int number = 0; number < 6; ++number)
        files.push_back(text(std::to_string(number), "text"));
    show(files);
    EXPECT_TRUE(says("0"));
    EXPECT_TRUE(says("3"));
    EXPECT_FALSE(says("4"));
    EXPECT_TRUE(says("+2"));
    EXPECT_LE(view->sizeHint().width(), screen.width() + 100);
}

} // namespace
} // namespace brindlex
