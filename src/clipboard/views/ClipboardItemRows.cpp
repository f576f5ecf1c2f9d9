#include "clipboard/views/ClipboardItemRows.h"

#include "clipboard/ClipboardAge.h"
#include "clipboard/ClipboardItemDescription.h"
#include "clipboard/views/ClipboardAgeWords.h"
#include "ui/controls/Glyph.h"
#include "ui/controls/TableCells.h"

#include <QPainter>
#include <QPixmap>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int swatchSize = 32;
constexpr double swatchRadius = 6;

/// A square in the colour, with an edge that shows it on a ground of the same colour.
QIcon swatch(const Theme& theme, const ClipboardColour& colour)
{
    QPixmap pixmap(swatchSize, swatchSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.colour(&ThemeTokens::edge));
    painter.setBrush(QColor(colour.red, colour.green, colour.blue, colour.alpha));
    painter.drawRoundedRect(
        QRectF(pixmap.rect()).adjusted(2.5, 2.5, -2.5, -2.5), swatchRadius, swatchRadius);
    return {pixmap};
}

Glyph glyphOf(ClipboardItemKind kind)
{
    switch (kind) {
    case ClipboardItemKind::text:
        return Glyph::text;
    case ClipboardItemKind::image:
        return Glyph::picture;
    case ClipboardItemKind::file:
        return Glyph::file;
    }
    return Glyph::none;
}

} // namespace

ClipboardItemRows::ClipboardItemRows(
    const ViewContext& context, ClipboardRowSources sources, QObject* parent)
    : QAbstractListModel(parent), context_(context), sources_(std::move(sources))
{
}

void ClipboardItemRows::show(ClipboardItems items)
{
    beginResetModel();
    items_ = std::move(items);
    endResetModel();
}

int ClipboardItemRows::rowOf(const SharedClipboardItem& item) const
{
    const auto found = std::ranges::find(items_, item);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ClipboardItemRows::showPictures()
{
    if (!items_.empty())
        Q_EMIT dataChanged(index(0), index(rowCount({}) - 1), {Qt::DecorationRole});
}

int ClipboardItemRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant ClipboardItemRows::data(const QModelIndex& index, int role) const
{
    const auto& item = *items_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return titleOf(item);
    case secondLineRole:
        return secondLineOf(item);
    case Qt::DecorationRole:
        return pictureOf(item);
    case trailingTextRole:
        return index.row() < rowsWithDigit ? QString::number(index.row() + 1) : QString();
    default:
        return {};
    }
}

QString ClipboardItemRows::titleOf(const ClipboardItem& item) const
{
    return brindlex::match(
        clipboardItemDescription(item),
        [](const ClipboardItemDescription::Text& text) {
            return QString::fromStdString(text.line);
        },
        [this](const ClipboardItemDescription::Picture&) {
            return context_.text<"clipboard.item.image">();
        },
        [this](const ClipboardItemDescription::Files& files) {
            return files.count < 2
                ? QString::fromStdString(files.name)
                : context_.text<"picker.filesFormat">(files.name, files.count - 1);
        });
}

/// What is known of: the folder of files, the application, the age, and that it is pinned.
QString ClipboardItemRows::secondLineOf(const ClipboardItem& item) const
{
    QStringList parts;
    if (item.pinnedAt)
        parts << context_.text<"picker.pinned">();
    if (item.sourceBundleID)
        parts << sources_.applicationName(*item.sourceBundleID);
    parts << ageInWords(clipboardAge(item.createdAt, sources_.now()), context_.strings.language());
    const auto description = clipboardItemDescription(item);
    if (const auto* const files = std::get_if<ClipboardItemDescription::Files>(&description))
        parts << QString::fromStdString(files->folder);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QIcon ClipboardItemRows::pictureOf(const ClipboardItem& item) const
{
    const auto description = clipboardItemDescription(item);
    const auto* const text = std::get_if<ClipboardItemDescription::Text>(&description);
    if (text && text->colour)
        return swatch(context_.theme, *text->colour);
    const auto picture = sources_.picture(item);
    return picture.isNull() ? glyphIcon(context_.theme, glyphOf(item.kind), &ThemeTokens::subdued)
                            : picture;
}

} // namespace brindlex
