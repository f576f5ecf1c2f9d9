#include "logviewer/views/LogTableModel.h"

#include "logviewer/views/LogLevelNames.h"
#include "ui/controls/TableCells.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// What is drawn of a message at the most: nobody reads more of it in a row, and a line of the log
/// may be of any length.
constexpr qsizetype mostCharacters = 1'000;

QString formatted(const LogEntry& entry, const QString& format)
{
    if (!entry.timestamp)
        return QString::fromStdString(entry.timestampString);
    const auto milliseconds = std::llround(entry.timestamp->unixTime() * 1000.0);
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString(format);
}

Token inkOf(LogLevel level)
{
    switch (level) {
    case LogLevel::info:
    case LogLevel::raw:
        return &ThemeTokens::subdued;
    case LogLevel::notice:
        return &ThemeTokens::accentText;
    case LogLevel::warn:
        return &ThemeTokens::warning;
    case LogLevel::error:
        return &ThemeTokens::danger;
    }
    return &ThemeTokens::text;
}

QString beginningOf(const std::string& text)
{
    return QString::fromUtf8(
        text.data(), std::min(static_cast<qsizetype>(text.size()), mostCharacters));
}

} // namespace

QString timeOf(const LogEntry& entry) { return formatted(entry, QStringLiteral("HH:mm:ss.zzz")); }

QString dayAndTimeOf(const LogEntry& entry)
{
    return formatted(entry, QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
}

LogTableModel::LogTableModel(const ViewContext& context, const LogScreen& screen, QObject* parent)
    : QAbstractTableModel(parent), context_(context), screen_(screen)
{
    remember();
}

void LogTableModel::show()
{
    const int shown = static_cast<int>(screen_.visible().value().size());
    if (!hasOnlyGrown()) {
        beginResetModel();
        remember();
        endResetModel();
    } else if (shown > rows_) {
        beginInsertRows({}, rows_, shown - 1);
        remember();
        endInsertRows();
    }
}

const LogEntry& LogTableModel::entryAt(int row) const
{
    return screen_.entries()[screen_.visible().value()[static_cast<std::size_t>(row)]];
}

std::optional<int> LogTableModel::rowOf(const std::string& entryID) const
{
    for (int row = 0; row < rows_; ++row)
        if (entryAt(row).id == entryID)
            return row;
    return {};
}

int LogTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int LogTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant LogTableModel::data(const QModelIndex& index, int role) const
{
    const auto& entry = entryAt(index.row());
    if (role == fixedWidthRole)
        return index.column() == time || index.column() == level;
    if (role == inkRole)
        return QVariant::fromValue(index.column() == message ? &ThemeTokens::text
                : index.column() == level                    ? inkOf(entry.level)
                                                             : &ThemeTokens::subdued);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case time:
        return timeOf(entry);
    case level:
        return nameOf(entry.level);
    case category:
        return beginningOf(entry.category);
    default:
        return beginningOf(entry.message);
    }
}

QVariant LogTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case time:
        return context_.text<"logTable.time">();
    case level:
        return context_.text<"logTable.level">();
    case category:
        return context_.text<"logTable.category">();
    default:
        return context_.text<"logTable.message">();
    }
}

/// Whether what is in the table is the beginning of what is shown now.
bool LogTableModel::hasOnlyGrown() const
{
    const auto shown = static_cast<int>(screen_.visible().value().size());
    return rows_ > 0 && shown >= rows_ && entryAt(0).id == firstID_
        && entryAt(rows_ - 1).id == lastID_;
}

void LogTableModel::remember()
{
    rows_ = static_cast<int>(screen_.visible().value().size());
    firstID_ = rows_ > 0 ? entryAt(0).id : std::string();
    lastID_ = rows_ > 0 ? entryAt(rows_ - 1).id : std::string();
}

} // namespace brindlex
