#include "platform/linux/applications/QtIconRendering.h"

#include "support/basics/TemporaryFolder.h"

#include <QImage>

#include <gtest/gtest.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

class QtIconRenderingTest : public testing::Test {
protected:
    fs::path made(const std::string& name, const std::string& content) const
    {
        const auto file = folder.path() / name;
        fs::create_directories(file.parent_path());
        write(file, content);
        return file;
    }

    fs::path madePicture(const std::string& name, QSize size, QColor colour) const
    {
        const auto file = folder.path() / name;
        fs::create_directories(file.parent_path());
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        EXPECT_TRUE(picture.save(QString::fromStdString(file.string())));
        return file;
    }

    fs::path entry(const std::string& icon) const
    {
        return made("applications/pad.desktop",
            "[Desktop Entry]\nType=Application\nName=Pad\nIcon=" + icon + "\n");
    }

    static QImage decoded(const std::optional<std::string>& png)
    {
        return QImage::fromData(QByteArray::fromStdString(png.value_or("")), "PNG");
    }

    TemporaryFolder folder;
    DesktopEntries entries{{folder.path()}, {}};
    QtIconRendering icons{entries};
};

TEST_F(QtIconRenderingTest, drawsPngsOf64PixelsWithFourSamplesOfEightBits)
{
    const auto png = icons.pictureInFile(madePicture("red.png", {200, 200}, Qt::red));
    ASSERT_TRUE(png);

    // The header of a PNG has the width, the height, the bits of a sample and what a pixel has.
    EXPECT_EQ(png->substr(16, 10), std::string("\0\0\0\x40\0\0\0\x40\x08\x06", 10));
    const auto icon = decoded(png);
    EXPECT_EQ(icon.size(), QSize(64, 64));
    for (const auto& corner : {QPoint(0, 0), QPoint(63, 63)})
        EXPECT_EQ(icon.pixelColor(corner), QColor(Qt::red));
}

TEST_F(QtIconRenderingTest, drawsAVectorPictureInItsOwnSize)
{
    const auto icon = decoded(icons.pictureInFile(made("drawing.svg",
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="4">
<rect width="2" height="4" fill="#0000ff"/></svg>)")));
    EXPECT_EQ(icon.size(), QSize(64, 64));
    EXPECT_EQ(icon.pixelColor(31, 32), QColor(Qt::blue)) << "A small picture was blown up.";
    EXPECT_EQ(icon.pixelColor(32, 32).alpha(), 0);
}

TEST_F(QtIconRenderingTest, keepsTheProportionsOfAPictureInTheMiddle)
{
    const auto icon = decoded(icons.pictureInFile(madePicture("wide.png", {40, 20}, Qt::green)));
    EXPECT_EQ(icon.pixelColor(0, 15).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(0, 16), QColor(Qt::green));
    EXPECT_EQ(icon.pixelColor(63, 47), QColor(Qt::green));
    EXPECT_EQ(icon.pixelColor(63, 48).alpha(), 0);
}

TEST_F(QtIconRenderingTest, readsAPictureByItsContent)
{
    const auto file = madePicture("red.png", {64, 64}, Qt::red);
    fs::rename(file, folder.path() / "red.xpm");
    EXPECT_TRUE(icons.pictureInFile(folder.path() / "red.xpm"));
}

TEST_F(QtIconRenderingTest, readsNoFileThatIsTooLarge)
{
    const auto file = madePicture("red.png", {64, 64}, Qt::red);
    fs::resize_file(file, 16 * 1024 * 1024 + 1);
    EXPECT_EQ(icons.pictureInFile(file), std::nullopt);
}

TEST_F(QtIconRenderingTest, takesTheIconOfAnApplicationFromWhateverThemeHasIt)
{
    madePicture("icons/Breeze/apps/48/pad.png", {48, 48}, Qt::red);
    EXPECT_EQ(decoded(icons.pictureOfApplication(entry("pad"))).pixelColor(9, 9), QColor(Qt::red));
}

TEST_F(QtIconRenderingTest, takesTheIconOfAnyProgramForAnApplicationWithoutOne)
{
    EXPECT_EQ(icons.pictureOfApplication(entry("")), std::nullopt) << "There is no theme.";
    madePicture("icons/T/48x48/mimetypes/application-x-executable.png", {48, 48}, Qt::blue);
    for (const auto* icon : {"", "missing", "/no/such/icon.png"})
        EXPECT_EQ(
            decoded(icons.pictureOfApplication(entry(icon))).pixelColor(9, 9), QColor(Qt::blue))
            << icon;
}

} // namespace
} // namespace brindlex
