#include "platform/linux/pasteboard/QtImageConverting.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Three pixels of different colours, one of them seen through.
QImage someImage()
{
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(255, 0, 0));
    image.setPixelColor(1, 0, QColor(0, 0, 255, 128));
    image.setPixelColor(2, 0, QColor(255, 255, 255));
    return image;
}

std::string bytesOf(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes.toStdString();
}

/// The picture of the bytes once they have become a PNG; none when they could not.
QImage converted(std::string_view bytes)
{
    const auto png = QtImageConverting().pngOf(bytes);
    return png ? QImage::fromData(QByteArray::fromStdString(*png), "PNG") : QImage();
}

TEST(QtImageConverting, keepsThePixels)
{
    const auto image = someImage();
    for (const auto* const format : {"TIFF", "PNG"})
        EXPECT_EQ(converted(bytesOf(image, format)).convertToFormat(image.format()), image)
            << format;
    const auto opaque = image.convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(converted(bytesOf(opaque, "BMP")).convertToFormat(opaque.format()), opaque);
    for (const auto* const format : {"WEBP", "JPEG"})
        EXPECT_EQ(converted(bytesOf(opaque, format)).size(), image.size()) << format;
}

TEST(QtImageConverting, refusesWhatIsNoPicture)
{
    const auto whole = bytesOf(someImage(), "TIFF");
    for (const auto& bytes :
        {std::string(), std::string("no picture"), std::string(4096, '\0'), whole.substr(0, 8)}) {
        const auto png = QtImageConverting().pngOf(bytes);
        ASSERT_FALSE(png);
        EXPECT_EQ(png.error(), ImageProblem::noPicture);
    }
}

TEST(QtImageConverting, refusesAPictureThatClaimsToBeGigantic)
{
    auto bytes = bytesOf(someImage(), "BMP");
    // The width and the height in the header.
    for (const std::size_t place : {18, 22})
        bytes.replace(place, 4, std::string("\xFF\xFF\xFF\x3F", 4));
    EXPECT_FALSE(QtImageConverting().pngOf(bytes));
}

} // namespace
} // namespace brindlex
