#include "platform/linux/applications/QtIconRendering.h"

#include "platform/linux/applications/DesktopIcons.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <system_error>

namespace brindlex {
namespace {

constexpr std::uintmax_t largestFile = 16 * 1024 * 1024;
constexpr QSize iconSize(IconRendering::size, IconRendering::size);
constexpr auto anyProgram = "application-x-executable";

/// The picture as large as it fits into an icon. A vector picture is drawn in that size.
QImage pictureIn(const std::filesystem::path& file)
{
    QImageReader reader(QString::fromStdString(file.string()));
    reader.setDecideFormatFromContent(true);
    const auto size = reader.size();
    if (size.isValid() && reader.supportsOption(QImageIOHandler::ScaledSize))
        reader.setScaledSize(size.scaled(iconSize, Qt::KeepAspectRatio));
    const auto picture = reader.read();
    return picture.isNull()
        ? picture
        : picture.scaled(iconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

std::string pngOf(const QImage& picture)
{
    QImage icon(iconSize, QImage::Format_RGBA8888);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.drawImage((iconSize.width() - picture.width()) / 2,
        (iconSize.height() - picture.height()) / 2, picture);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    icon.save(&buffer, "PNG");
    return bytes.toStdString();
}

} // namespace

std::optional<std::string> QtIconRendering::pictureInFile(const std::filesystem::path& file)
{
    std::error_code problem;
    if (!std::filesystem::is_regular_file(file, problem)
        || std::filesystem::file_size(file, problem) > largestFile)
        return {};
    const auto picture = pictureIn(file);
    return picture.isNull() ? std::nullopt : std::optional(pngOf(picture));
}

std::optional<std::string> QtIconRendering::pictureOfApplication(
    const std::filesystem::path& bundle)
{
    const auto entry = entries_.read(bundle);
    if (!entry)
        return {};
    for (const auto& icon : {entry->icon, std::string(anyProgram)})
        if (const auto file = themeIconFile(icon, entries_.dataFolders()))
            if (auto picture = pictureInFile(*file))
                return picture;
    return {};
}

} // namespace brindlex
