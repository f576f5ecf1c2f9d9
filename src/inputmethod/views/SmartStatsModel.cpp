#include "inputmethod/views/SmartStatsModel.h"

#include "applications/views/ApplicationIcon.h"
#include "inputmethod/views/InputSourceOptions.h"
#include "inputmethod/views/WhyWords.h"
#include "ui/controls/TableCells.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

Token dotOf(SmartInputMethodStatus status)
{
    switch (status) {
    case SmartInputMethodStatus::active:
        return &ThemeTokens::success;
    case SmartInputMethodStatus::learning:
        return &ThemeTokens::accentText;
    case SmartInputMethodStatus::disabled:
        return &ThemeTokens::edge;
    }
    return &ThemeTokens::edge;
}

Qt::Alignment alignmentOf(int column)
{
    switch (column) {
    case SmartStatsModel::samples:
    case SmartStatsModel::match:
        return Qt::AlignRight | Qt::AlignVCenter;
    case SmartStatsModel::disabled:
        return Qt::AlignCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

bool hasSameIdentities(const std::vector<SmartInputMethodAppStats>& one,
    const std::vector<SmartInputMethodAppStats>& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
        [](const auto& left, const auto& right) { return left.id == right.id; });
}

} // namespace

SmartStatsModel::SmartStatsModel(
    const ViewContext& context, InputMethodSettings& settings, QObject* parent)
    : QAbstractTableModel(parent), context_(context), settings_(settings),
      stats_(settings.displayedStats())
{
}

void SmartStatsModel::show()
{
    auto stats = settings_.displayedStats();
    if (stats == stats_)
        return;
    // The selection stays where only values have changed.
    const bool isSame = hasSameIdentities(stats, stats_);
    if (!isSame)
        beginResetModel();
    stats_ = std::move(stats);
    if (!isSame)
        endResetModel();
    else
        dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
}

int SmartStatsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(stats_.size());
}

int SmartStatsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant SmartStatsModel::data(const QModelIndex& index, int role) const
{
    const auto& stats = statsAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(stats, index.column());
    case Qt::ToolTipRole:
        return index.column() == app
            ? text(stats, app) + QLatin1Char('\n') + whyInTable(context_, settings_, stats.app)
            : text(stats, index.column());
    case Qt::AccessibleDescriptionRole:
        return index.column() == app ? whyInTable(context_, settings_, stats.app) : QString();
    case Qt::AccessibleTextRole:
        return index.column() == disabled ? headerData(disabled, Qt::Horizontal, Qt::DisplayRole)
                                          : text(stats, index.column());
    case Qt::TextAlignmentRole:
        return int(alignmentOf(index.column()));
    case Qt::UserRole:
        return sortValue(stats, index.column());
    case Qt::DecorationRole:
        return index.column() == app ? QVariant(applicationIcon(context_.theme, stats.app))
                                     : QVariant();
    case dotRole:
        return index.column() == status ? QVariant::fromValue(dotOf(statusOf(stats))) : QVariant();
    case Qt::CheckStateRole:
        if (index.column() == disabled)
            return stats.isDisabled ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool SmartStatsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != disabled)
        return false;
    const auto bundleID = statsAt(index.row()).app.bundleID;
    settings_.setDisabled(bundleID, value.toInt() == Qt::Checked);
    return true;
}

QVariant SmartStatsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(alignmentOf(section));
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case app:
        return context_.text<"inputMethod.smart.header.app">();
    case status:
        return context_.text<"inputMethod.smart.header.status">();
    case inputSource:
        return context_.text<"inputMethod.smart.header.inputSource">();
    case samples:
        return context_.text<"inputMethod.smart.header.samples">();
    case match:
        return context_.text<"inputMethod.smart.header.match">();
    default:
        return context_.text<"inputMethod.smart.header.disabled">();
    }
}

Qt::ItemFlags SmartStatsModel::flags(const QModelIndex& index) const
{
    const auto flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == disabled ? flags | Qt::ItemIsUserCheckable : flags;
}

QString SmartStatsModel::text(const SmartInputMethodAppStats& stats, int column) const
{
    switch (column) {
    case app:
        return QString::fromStdString(stats.app.displayName);
    case status:
        return statusText(statusOf(stats));
    case inputSource:
        return stats.recommendedInputSourceID
            ? QString::fromStdString(inputSourceName(settings_, *stats.recommendedInputSourceID))
            : QString();
    case samples:
        return QString::number(stats.samples.size());
    case match:
        return QString::fromStdString(matchText(stats));
    default:
        return {};
    }
}

QString SmartStatsModel::statusText(SmartInputMethodStatus shown) const
{
    switch (shown) {
    case SmartInputMethodStatus::active:
        return context_.text<"inputMethod.smart.status.active">();
    case SmartInputMethodStatus::disabled:
        return context_.text<"inputMethod.smart.status.disabled">();
    case SmartInputMethodStatus::learning:
        return context_.text<"inputMethod.smart.status.learning">();
    }
    return {};
}

QVariant SmartStatsModel::sortValue(const SmartInputMethodAppStats& stats, int column) const
{
    switch (column) {
    case samples:
        return static_cast<qulonglong>(stats.samples.size());
    case match:
        return static_cast<qlonglong>(stats.recommendationPercent);
    case disabled:
        return stats.isDisabled;
    default:
        return text(stats, column);
    }
}

} // namespace brindlex
