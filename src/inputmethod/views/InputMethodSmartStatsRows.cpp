#include "inputmethod/views/InputMethodSmartStatsRows.h"

#include "inputmethod/views/WhyWords.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/TableCells.h"
#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr int rowHeight = 36;
constexpr int headHeight = 28;
constexpr int belowTable = 6;
/// With two lines of words, which come and go with the selection.
constexpr int actionsHeight = 52;
/// Of the columns behind the first, which takes what is left.
constexpr std::array columnWidths{std::pair{SmartStatsModel::status, 104},
    std::pair{SmartStatsModel::inputSource, 120}, std::pair{SmartStatsModel::samples, 74},
    std::pair{SmartStatsModel::match, 66}, std::pair{SmartStatsModel::disabled, 84}};

} // namespace

InputMethodSmartStatsRows::InputMethodSmartStatsRows(
    Page& page, const ViewContext& context, InputMethodSettings& settings)
    : page_(page), context_(context), settings_(settings), card_(page.section()),
      table_(new QTableView), model_(new SmartStatsModel(context, settings, table_)),
      sorted_(new QSortFilterProxyModel(table_))
{
    empty_ = new EmptyState(
        context.theme, Glyph::keyboard, context.text<"inputMethod.smart.stats.empty.message">());
    card_.add(empty_);
    makeTable();
    makeActions();
    show();
}

void InputMethodSmartStatsRows::show()
{
    model_->show();
    const bool hasRows = model_->rowCount() > 0;
    empty_->setVisible(!hasRows);
    table_->setVisible(hasRows);
    actions_->setVisible(hasRows);
    fit();
    noteSelection();
}

void InputMethodSmartStatsRows::makeTable()
{
    sorted_->setSourceModel(model_);
    sorted_->setSortRole(Qt::UserRole);
    sorted_->setSortLocaleAware(true);
    table_->setModel(sorted_);
    table_->setItemDelegate(new TableCells(context_.theme, table_));
    table_->setAccessibleName(context_.text<"inputMethod.smart.title">());
    table_->setShowGrid(false);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->verticalHeader()->hide();
    auto* const head = table_->horizontalHeader();
    head->setHighlightSections(false);
    head->setSectionResizeMode(SmartStatsModel::app, QHeaderView::Stretch);
    followTextSize(*table_, [this] { sizeTable(); });
    table_->setSortingEnabled(true);
    head->setSortIndicator(-1, Qt::AscendingOrder);
    head->setSortIndicatorClearable(true);
    card_.add(table_);
    QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, table_,
        [this] { noteSelection(); });
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(table_, &QWidget::customContextMenuRequested, table_,
        [this](const QPoint& place) { openMenu(place); });
    makeShortcut(Qt::Key_Delete, &InputMethodSmartStatsRows::deleteStats);
    // The key for menus opens it by itself; not every keyboard has one.
    makeShortcut(Qt::SHIFT | Qt::Key_F10, &InputMethodSmartStatsRows::openMenuOfCurrentRow);
}

void InputMethodSmartStatsRows::makeShortcut(
    const QKeySequence& keys, void (InputMethodSmartStatsRows::*action)())
{
    QObject::connect(new QShortcut(keys, table_, nullptr, nullptr, Qt::WidgetShortcut),
        &QShortcut::activated, table_, [this, action] { (this->*action)(); });
}

void InputMethodSmartStatsRows::makeActions()
{
    clear_ = makeButton(context_.theme, ButtonRole::plain,
        context_.text<"inputMethod.smart.clearStats">(), [this] { clearStats(); });
    delete_ = makeButton(context_.theme, ButtonRole::danger,
        context_.text<"inputMethod.smart.deleteStats">(), [this] { deleteStats(); });
    actions_ = new Row(context_.theme);
    actions_->words({}).end(clear_).end(delete_);
    actions_->setMinimumHeight(actionsHeight);
    card_.add(static_cast<QWidget*>(actions_));
}

/// For the words of the moment.
void InputMethodSmartStatsRows::sizeTable()
{
    auto* const head = table_->horizontalHeader();
    head->setFont(scaledFont(QApplication::font(), textScale::second));
    head->setFixedHeight(grownWithText(headHeight));
    table_->verticalHeader()->setDefaultSectionSize(grownWithText(rowHeight));
    for (const auto& [column, width] : columnWidths)
        table_->setColumnWidth(column, grownWithText(width));
    fit();
}

/// The page scrolls, not the table.
void InputMethodSmartStatsRows::fit()
{
    table_->setFixedHeight(
        grownWithText(headHeight) + grownWithText(rowHeight) * model_->rowCount() + belowTable);
}

void InputMethodSmartStatsRows::noteSelection()
{
    const auto* const stats = selected();
    clear_->setEnabled(stats);
    delete_->setEnabled(stats);
    actions_->setTitle(stats ? context_.text<"why.title">() : QString());
    actions_->setSecond(stats ? whyInTable(context_, settings_, stats->app) : QString());
}

const SmartInputMethodAppStats* InputMethodSmartStatsRows::selected() const
{
    const auto rows = table_->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return nullptr;
    return &model_->statsAt(sorted_->mapToSource(rows.front()).row());
}

void InputMethodSmartStatsRows::openMenuOfCurrentRow()
{
    openMenu(table_->visualRect(table_->currentIndex()).center());
}

/// For the row at the place, which is selected with it.
void InputMethodSmartStatsRows::openMenu(const QPoint& place)
{
    const auto index = table_->indexAt(place);
    if (!index.isValid())
        return;
    table_->selectRow(index.row());
    auto* const menu = new QMenu(table_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* const disabled = menu->addAction(context_.text<"inputMethod.smart.header.disabled">(),
        menu, [this](bool isOn) { switchSelected(isOn); });
    disabled->setCheckable(true);
    disabled->setChecked(selected()->isDisabled);
    menu->addSeparator();
    menu->addAction(
        context_.text<"inputMethod.smart.clearStats">(), menu, [this] { clearStats(); });
    menu->addAction(
        context_.text<"inputMethod.smart.deleteStats">(), menu, [this] { deleteStats(); });
    menu->popup(table_->viewport()->mapToGlobal(place));
}

void InputMethodSmartStatsRows::switchSelected(bool isDisabled)
{
    if (const auto* const stats = selected())
        settings_.setDisabled(std::string(stats->app.bundleID), isDisabled);
}

void InputMethodSmartStatsRows::clearStats()
{
    if (const auto* const stats = selected())
        settings_.clearStats(Uuid(stats->id));
}

void InputMethodSmartStatsRows::deleteStats()
{
    const auto* const stats = selected();
    if (!stats)
        return;
    const auto name = QString::fromStdString(stats->app.displayName);
    page_.offerUndo(name, settings_.deleteStats(Uuid(stats->id)));
}

} // namespace brindlex
