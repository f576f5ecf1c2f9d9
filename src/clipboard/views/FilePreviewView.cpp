#include "clipboard/views/FilePreviewView.h"

#include "clipboard/FilePreview.h"
#include "ui/controls/Glyph.h"
#include "ui/controls/TextLabel.h"
#include "ui/controls/TextSize.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QFrame>
#include <QImageReader>
#include <QLocale>
#include <QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int margin = 16;
constexpr int gap = 12;
constexpr int cardWidth = 280;
constexpr int cardHeight = 160;
constexpr int cardGlyph = 64;
constexpr QSize textSize(520, 420);
/// A larger picture is not decoded for a look at it.
constexpr int mostMegabytes = 256;

/// The picture in the file, no larger than the room; null for what is none.
QImage pictureIn(const std::filesystem::path& file, const QSize& room)
{
    if (!std::filesystem::is_regular_file(file))
        return {};
    QImageReader reader(QString::fromStdString(file.string()));
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(mostMegabytes);
    const auto size = reader.size();
    if (size.isValid() && (size.width() > room.width() || size.height() > room.height()))
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio));
    return reader.read();
}

QLabel* pictureLabel(const QImage& picture)
{
    auto* const label = new QLabel;
    label->setPixmap(QPixmap::fromImage(picture));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QWidget* textSheet(const std::string& text, const QSize& room)
{
    auto* const sheet = new QPlainTextEdit(QString::fromStdString(text));
    sheet->setReadOnly(true);
    sheet->setFocusPolicy(Qt::NoFocus);
    sheet->setFont(fixedWidthFont(sheet->font()));
    sheet->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sheet->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sheet->setFixedSize(textSize.boundedTo(room));
    return sheet;
}

QWidget* card(const ViewContext& context, Glyph glyph, const QString& words)
{
    auto* const frame = new QWidget;
    frame->setFixedSize(cardWidth, cardHeight);
    auto* const layout = new QVBoxLayout(frame);
    auto* const picture = new QLabel;
    picture->setPixmap(glyphPixmap(
        glyph, context.theme.colour(&ThemeTokens::subdued), cardGlyph, frame->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture, 1);
    if (!words.isEmpty())
        layout->addWidget(new TextLabel(context.theme, TextRole::body, words), 0, Qt::AlignHCenter);
    return frame;
}

/// The size and the day of a file.
QString factsOf(const ViewContext& context, const std::filesystem::path& file)
{
    const QFileInfo facts(QString::fromStdString(file.string()));
    const QLocale locale(QString::fromStdString(context.strings.language()));
    QStringList parts;
    if (facts.isFile())
        parts << locale.formattedDataSize(facts.size());
    parts << locale.toString(facts.lastModified(), QLocale::ShortFormat);
    return parts.join(QStringLiteral(" · "));
}

} // namespace

FilePreviewView::FilePreviewView(const ViewContext& context,
    const std::vector<std::filesystem::path>& files, const QSize& most, Naming naming)
    : naming_(std::move(naming))
{
    setObjectName("window");
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    const auto count = std::min(files.size(), mostPanes);
    const auto columns = static_cast<int>(std::max<std::size_t>(count, 1));
    const QSize room((most.width() - 2 * margin - (columns - 1) * gap) / columns,
        most.height() - 2 * margin - grownWithText(cardGlyph));
    for (std::size_t index = 0; index < count; ++index)
        layout->addWidget(makePane(context, files[index], room));
    if (files.size() > count)
        layout->addWidget(new TextLabel(context.theme, TextRole::heading,
            QLatin1Char('+') + QString::number(files.size() - count)));
}

QWidget* FilePreviewView::makePane(
    const ViewContext& context, const std::filesystem::path& file, const QSize& most)
{
    auto* const pane = new QWidget;
    auto* const layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    layout->addWidget(makeContent(context, file, most), 1, Qt::AlignCenter);
    layout->addWidget(makeCaption(context, file));
    return pane;
}

QWidget* FilePreviewView::makeContent(
    const ViewContext& context, const std::filesystem::path& file, const QSize& most)
{
    if (const auto picture = pictureIn(file, most); !picture.isNull())
        return pictureLabel(picture);
    return match(
        filePreview(file),
        [&](const FilePreview::Text& text) -> QWidget* { return textSheet(text.text, most); },
        [&](const FilePreview::Folder& folder) -> QWidget* {
            const auto words = context.text<"picker.entriesFormat">(folder.entries);
            const bool isAll = folder.entries < mostPreviewEntries;
            return card(context, Glyph::files, isAll ? words : words + QLatin1Char('+'));
        },
        [&](const FilePreview::Other&) -> QWidget* { return card(context, Glyph::file, {}); });
}

QString FilePreviewView::name(const std::filesystem::path& file) const
{
    const auto given = naming_ ? naming_(file) : QString();
    return given.isEmpty() ? QString::fromStdString(file.filename().string()) : given;
}

QWidget* FilePreviewView::makeCaption(const ViewContext& context, const std::filesystem::path& file)
{
    auto* const caption = new QWidget;
    auto* const layout = new QVBoxLayout(caption);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    auto* const title = new TextLabel(context.theme, TextRole::body, name(file));
    title->setAlignment(Qt::AlignHCenter);
    auto* const facts = new TextLabel(context.theme, TextRole::value, factsOf(context, file));
    facts->setAlignment(Qt::AlignHCenter);
    layout->addWidget(title);
    layout->addWidget(facts);
    return caption;
}

} // namespace brindlex
