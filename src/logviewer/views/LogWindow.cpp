#include "logviewer/views/LogWindow.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/TableCells.h"
#include "ui/controls/TextSize.h"
#include "ui/controls/WindowKeys.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr QSize leastTable{560, 288};
constexpr int rowHeight = 26;
constexpr int headHeight = 28;
constexpr int barHeight = 48;
constexpr int footHeight = 24;
constexpr int margin = 12;
constexpr int gap = 8;

QFrame* makeStrip(const char* name, int height)
{
    auto* const strip = new QFrame;
    strip->setObjectName(QLatin1String(name));
    strip->setMinimumHeight(height);
    auto* const layout = new QHBoxLayout(strip);
    layout->setContentsMargins(margin, 0, margin, 0);
    layout->setSpacing(gap);
    return strip;
}

} // namespace

LogWindow::LogWindow(const ViewContext& context, MainThread& mainThread,
    std::function<void(const std::filesystem::path& file)> reveal)
    : context_(context), reveal_(std::move(reveal)), screen_(mainThread, context.strings),
      model_(new LogTableModel(context, screen_, this)), table_(new QTableView),
      levels_(new LogLevelsButton(
          context, [this](const std::set<LogLevel>& levels) { setLevels(levels); })),
      middle_(new QStackedWidget),
      detail_(new LogDetail(context, [this] { return screen_.selectedEntry(); }))
{
    setObjectName("window");
    setWindowTitle(context.text<"logs.windowTitle">());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeBar());
    makeTable();
    middle_->addWidget(table_);
    middle_->addWidget(makeEmpty());
    // The strips above and below need what their words need.
    middle_->setMinimumSize(leastTable);
    layout->addWidget(middle_, 1);
    layout->addWidget(detail_);
    layout->addWidget(makeFoot());
    context.theme.dress(*this);
    levels_->show(screen_.filter().levels);
    setFocus();
    screen_.appear();
    changes_ = screen_.visible().subscribe([this](const auto&) { showEntries(); });
}

void LogWindow::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        QWidget::keyPressEvent(event);
}

QWidget* LogWindow::makeBar()
{
    auto* const bar = makeStrip("bar", barHeight);
    auto* const layout = bar->layout();
    layout->addWidget(makeSubsystems());
    layout->addWidget(levels_);
    auto* const search
        = new SearchField(context_.theme, context_.text<"logs.search.placeholder">());
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this,
        [this](const QString& text) { screen_.setQuery(text.toStdString()); });
    layout->addWidget(search);
    follow_ = makeButton(
        context_.theme, ButtonRole::plain, context_.text<"logs.follow">(), {}, Glyph::follow);
    follow_->setCheckable(true);
    follow_->setChecked(screen_.autoScroll());
    follow_->setToolTip(context_.text<"logs.follow.help">());
    connect(follow_, &QPushButton::toggled, this, [this](bool isOn) { follow(isOn); });
    layout->addWidget(follow_);
    layout->addWidget(makeGlyphButton(context_.theme, Glyph::reload,
        context_.text<"logs.reload.help">(), [this] { screen_.reload(); }));
    layout->addWidget(makeGlyphButton(context_.theme, Glyph::files,
        context_.text<"logs.revealInFinder.help">(), [this] { this->reveal(); }));
    layout->addWidget(makeGlyphButton(context_.theme, Glyph::trash,
        context_.text<"logs.clearCurrent.help">(), [this] { askToClear(); }));
    setFocusProxy(search);
    return bar;
}

QWidget* LogWindow::makeSubsystems()
{
    auto* const segments = new QFrame;
    segments->setObjectName("segments");
    auto* const layout = new QHBoxLayout(segments);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(0);
    const auto add = [&](LogDisplaySubsystem subsystem, const QString& name) {
        auto* const button = makeButton(
            context_.theme, ButtonRole::segment, name, [this, subsystem] { show(subsystem); });
        button->setAutoExclusive(true);
        button->setChecked(subsystem == screen_.subsystem());
        layout->addWidget(button);
    };
    add(LogDisplaySubsystem::app, context_.text<"logs.subsystem.app">());
    add(LogDisplaySubsystem::finder, context_.text<"logs.subsystem.finder">());
    return segments;
}

void LogWindow::makeTable()
{
    table_->setObjectName("ground");
    table_->setModel(model_);
    table_->setItemDelegate(new TableCells(context_.theme, table_));
    table_->setAccessibleName(context_.text<"logs.windowTitle">());
    table_->setShowGrid(false);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    auto* const head = table_->horizontalHeader();
    head->setHighlightSections(false);
    head->setSectionResizeMode(LogTableModel::message, QHeaderView::Stretch);
    followTextSize(*table_, [this] { sizeTable(); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex& current) { selectRow(current); });
    // Who scrolls up wants to stay there.
    connect(table_->verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] {
        const auto* const bar = table_->verticalScrollBar();
        if (bar->sliderPosition() < bar->value())
            follow_->setChecked(false);
    });
}

/// For the words of the moment.
void LogWindow::sizeTable()
{
    const auto font = QApplication::font();
    const QFontMetrics fixed(fixedWidthFont(font));
    auto* const head = table_->horizontalHeader();
    head->setFont(scaledFont(font, textScale::second));
    head->setFixedHeight(grownWithText(headHeight));
    table_->verticalHeader()->setDefaultSectionSize(grownWithText(rowHeight));
    table_->setColumnWidth(
        LogTableModel::time, fixed.horizontalAdvance(QStringLiteral("00:00:00.000")) + 28);
    table_->setColumnWidth(
        LogTableModel::level, fixed.horizontalAdvance(QStringLiteral("NOTICE")) + 18);
    table_->setColumnWidth(LogTableModel::category,
        QFontMetrics(font).horizontalAdvance(QStringLiteral("input-method")) + 18);
}

QWidget* LogWindow::makeFoot()
{
    auto* const foot = makeStrip("foot", footHeight);
    count_ = new TextLabel(context_.theme, TextRole::second, {});
    size_ = new TextLabel(context_.theme, TextRole::second, {});
    size_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const layout = static_cast<QHBoxLayout*>(foot->layout());
    layout->setContentsMargins(margin + 4, 3, margin + 4, 3);
    layout->addWidget(count_, 1);
    layout->addWidget(size_, 1);
    return foot;
}

QWidget* LogWindow::makeEmpty()
{
    auto* const page = new QWidget;
    page->setObjectName("page");
    auto* const layout = new QVBoxLayout(page);
    emptyTitle_ = new TextLabel(context_.theme, TextRole::heading, {});
    emptySubtitle_ = new TextLabel(context_.theme, TextRole::second, {});
    layout->addStretch();
    for (auto* const label : {emptyTitle_, emptySubtitle_}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch();
    return page;
}

void LogWindow::show(LogDisplaySubsystem subsystem) { screen_.setSubsystem(subsystem); }

void LogWindow::setLevels(const std::set<LogLevel>& levels)
{
    screen_.setSelectedLevels(levels);
    levels_->show(levels);
}

void LogWindow::showEntries()
{
    model_->show();
    count_->setText(QString::fromStdString(screen_.countLine()));
    size_->setText(QLocale().formattedDataSize(static_cast<qint64>(screen_.fileByteSize())));
    const auto content = screen_.content();
    middle_->setCurrentIndex(content == LogScreen::Content::entries ? 0 : 1);
    switch (content) {
    case LogScreen::Content::entries:
        break;
    case LogScreen::Content::noLogs:
        emptyTitle_->setText(context_.text<"logs.noLogs.title">());
        emptySubtitle_->setText(context_.text<"logs.noLogs.subtitle">());
        break;
    case LogScreen::Content::noMatches:
        emptyTitle_->setText(context_.text<"logs.noMatches.title">());
        emptySubtitle_->setText(context_.text<"logs.noMatches.subtitle">());
        break;
    case LogScreen::Content::cannotRead:
        emptyTitle_->setText(context_.text<"logs.state.cannotRead">());
        emptySubtitle_->setText(QString::fromStdString(screen_.loadError()));
        break;
    }
    if (screen_.autoScroll())
        table_->scrollToBottom();
    showSelection();
}

/// The entry that is selected stays so while the table around it changes.
void LogWindow::showSelection()
{
    const auto* const entry = screen_.selectedEntry();
    detail_->show(entry);
    if (!entry)
        return;
    const auto row = model_->rowOf(entry->id);
    if (row && table_->currentIndex().row() != *row)
        table_->selectRow(*row);
}

void LogWindow::selectRow(const QModelIndex& current)
{
    if (!current.isValid())
        return;
    screen_.select(model_->entryAt(current.row()).id);
    showSelection();
}

void LogWindow::follow(bool isOn)
{
    screen_.setAutoScroll(isOn);
    if (isOn)
        table_->scrollToBottom();
}

void LogWindow::reveal()
{
    if (const auto file = screen_.file())
        reveal_(*file);
}

void LogWindow::askToClear()
{
    screen_.requestClear();
    QMessageBox question(this);
    question.setIcon(QMessageBox::NoIcon);
    question.setWindowTitle(windowTitle());
    question.setText(QString::fromStdString(screen_.clearQuestion()));
    question.setInformativeText(context_.text<"logs.alert.clear.message">());
    auto* const clear = question.addButton(context_.text<"logs.clear">(), QMessageBox::AcceptRole);
    question.addButton(context_.text<"shared.cancel">(), QMessageBox::RejectRole);
    question.exec();
    if (question.clickedButton() == clear)
        screen_.confirmClear();
    else
        screen_.cancelClear();
}

} // namespace brindlex
