#include "platform/linux/pasteboard/QtImageConverting.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

namespace brindlex {
namespace {

QImage pictureOf(std::string_view bytes)
{
    auto raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&raw);
    return QImageReader(&buffer).read();
}

} // namespace

Result<std::string, ImageProblem> QtImageConverting::pngOf(std::string_view picture)
{
    const auto image = pictureOf(picture);
    if (image.isNull())
        return fail(ImageProblem::noPicture);
    QByteArray png;
    QBuffer buffer(&png);
    if (!image.save(&buffer, "PNG"))
        return fail(ImageProblem::notWritten);
    return png.toStdString();
}

} // namespace brindlex
