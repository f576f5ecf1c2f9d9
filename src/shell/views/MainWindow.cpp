#include "shell/views/MainWindow.h"

#include "shell/ShellPreferenceKeys.h"
#include "shell/views/TabPlaceholder.h"
#include "ui/controls/WindowKeys.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr QSize leastSize{560, 420};

struct TabFace {
    MainWindowTab tab;
    Glyph glyph;
    QString name;
};

/// In the order in which they stand there.
std::vector<TabFace> visibleTabs(const ViewContext& context)
{
    return {
        {MainWindowTab::general, Glyph::general, context.text<"tab.general">()},
        {MainWindowTab::finder, Glyph::files, context.text<"tab.finder">()},
        {MainWindowTab::keyboard, Glyph::keyboard, context.text<"tab.keyboard">()},
        {MainWindowTab::mouse, Glyph::mouse, context.text<"tab.mouse">()},
        {MainWindowTab::clipboard, Glyph::clipboard, context.text<"tab.clipboard">()},
        {MainWindowTab::dictation, Glyph::dictation, context.text<"tab.dictation">()},
        {MainWindowTab::about, Glyph::about, context.text<"tab.about">()},
    };
}

} // namespace

MainWindow::MainWindow(const ViewContext& context, UserDefaults& defaults, Screens screens)
    : context_(context), defaults_(defaults), screens_(std::move(screens)),
      tabs_(new TabStrip(context.theme)), stack_(new QStackedWidget),
      changes_(defaults.observeChanges([this] { select(selection()); }))
{
    setObjectName("window");
    setWindowTitle(QStringLiteral("Brindlex"));
    setMinimumSize(leastSize);
    auto* const bar = new QFrame;
    bar->setObjectName("bar");
    auto* const middle = new QHBoxLayout(bar);
    middle->setContentsMargins(0, 0, 0, 1);
    middle->addWidget(tabs_, 0, Qt::AlignHCenter);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(stack_, 1);
    addTabs();
    context.theme.dress(*this);
    select(selection());
    showScreen(tabs_->currentIndex());
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) {
        const auto tab = visibleTabs(context_)[static_cast<std::size_t>(index)].tab;
        writePreference(defaults_, ShellPreferenceKeys{}.selectedMainWindowTab, tab);
        showScreen(index);
    });
}

MainWindowTab MainWindow::selection() const
{
    return readPreference(defaults_, ShellPreferenceKeys{}.selectedMainWindowTab);
}

void MainWindow::select(MainWindowTab tab) { tabs_->setCurrentIndex(static_cast<int>(tab)); }

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        QWidget::keyPressEvent(event);
}

void MainWindow::addTabs()
{
    for (const auto& face : visibleTabs(context_))
        tabs_->addTab(face.glyph, face.name);
    tabs_->setAccessibleName(windowTitle());
}

void MainWindow::showScreen(int index)
{
    auto& screen = made_[index];
    if (!screen) {
        screen = makeScreen(visibleTabs(context_)[static_cast<std::size_t>(index)].tab);
        stack_->addWidget(screen);
    }
    stack_->setCurrentWidget(screen);
}

QWidget* MainWindow::makeScreen(MainWindowTab tab) const
{
    const auto found = screens_.find(tab);
    return found == screens_.end() ? new TabPlaceholder(context_) : found->second();
}

} // namespace brindlex
