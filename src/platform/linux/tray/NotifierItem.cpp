#include "platform/linux/tray/NotifierItem.h"

#include <utility>

namespace brindlex {
namespace {

/// Larger ones are for windows.
constexpr int largestOfPanels = 64;

/// Where hosts look for an item of which they know the bus name alone.
QString notifierPath() { return QStringLiteral("/StatusNotifierItem"); }

} // namespace

NotifierItem::NotifierItem(QDBusConnection bus, const QString& id, const QString& menu)
    : bus_(std::move(bus)), id_(id), menu_(menu)
{
    registerNotifierValues();
    constexpr auto exported = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
        | QDBusConnection::ExportAllProperties;
    bus_.registerObject(notifierPath(), this, exported);
}

NotifierItem::~NotifierItem() { bus_.unregisterObject(notifierPath()); }

void NotifierItem::setTitle(const QString& title)
{
    if (title == title_)
        return;
    title_ = title;
    Q_EMIT NewTitle();
    Q_EMIT NewToolTip();
}

NotifierPictures NotifierItem::pictures() const
{
    NotifierPictures pictures;
    for (const auto& picture : iconPictures())
        if (picture.size <= largestOfPanels)
            pictures.push_back(notifierPicture(picture));
    return pictures;
}

void NotifierItem::Activate(int, int) const
{
    if (onActivate)
        onActivate();
}

void NotifierItem::ContextMenu(int, int) const
{
    if (onContextMenu)
        onContextMenu();
}

} // namespace brindlex
