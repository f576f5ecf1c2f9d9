#include "platform/linux/tray/TrayMenu.h"

#include <QCursor>

#include <utility>

namespace brindlex {
namespace {

void addEntry(QMenu& menu, const StatusMenuEntry& entry, const std::function<void(int id)>& chosen)
{
    if (entry.isDivider()) {
        menu.addSeparator();
        return;
    }
    auto label = QString::fromStdString(entry.label);
    label.replace(QLatin1Char('&'), QStringLiteral("&&"));
    auto* const action = menu.addAction(label);
    action->setEnabled(entry.isEnabled);
    QObject::connect(
        action, &QAction::triggered, &menu, [chosen, id = entry.id] { chosen(id); },
        Qt::QueuedConnection);
}

} // namespace

TrayMenu::~TrayMenu() = default;

void TrayMenu::open(const std::vector<StatusMenuEntry>& entries, std::function<void(int id)> chosen)
{
    close();
    menu_ = std::make_unique<QMenu>();
    for (const auto& entry : entries)
        addEntry(*menu_, entry, chosen);
    // It hides before it says what was chosen.
    QObject::connect(
        menu_.get(), &QMenu::aboutToHide, menu_.get(), [this] { close(); }, Qt::QueuedConnection);
    menu_->popup(QCursor::pos());
}

/// A menu that is just handling an event may have its choice to report still.
void TrayMenu::close()
{
    if (auto* const menu = menu_.release()) {
        menu->hide();
        menu->deleteLater();
    }
}

} // namespace brindlex
