#pragma once

#include "platform/linux/tray/NotifierValues.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>

#include <functional>

namespace brindlex {

/// The program's icon as an object on the bus, as the interface `org.kde.StatusNotifierItem` has
/// it: hosts read its properties and draw the icon themselves. It is there as long as this object.
///
/// The icon goes as pictures and has no name in a theme, by which hosts would prefer to look it up:
/// so it is the same whether the program is installed or not. Main thread only.
class NotifierItem : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ none CONSTANT)
    Q_PROPERTY(brindlex::NotifierPictures IconPixmap READ pictures CONSTANT)
    Q_PROPERTY(QString IconThemePath READ none CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(brindlex::NotifierPictures OverlayIconPixmap READ noPictures CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(brindlex::NotifierPictures AttentionIconPixmap READ noPictures CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ none CONSTANT)
    Q_PROPERTY(brindlex::NotifierToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    /// `menu` is the path of the menu's object.
    NotifierItem(QDBusConnection bus, const QString& id, const QString& menu);
    ~NotifierItem() override;

    void setTitle(const QString& title);

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    const QString& id() const { return id_; }
    const QString& title() const { return title_; }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString none() const { return {}; }
    NotifierPictures pictures() const;
    NotifierPictures noPictures() const { return {}; }
    NotifierToolTip toolTip() const { return {.title = title_}; }
    bool isMenu() const { return false; }
    QDBusObjectPath menu() const { return QDBusObjectPath(menu_); }

    // What hosts call and hear has the names of the interface.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    void Activate(int x, int y) const;
    void ContextMenu(int x, int y) const;
    // What this item has no use for.
    void SecondaryActivate(int, int) { }
    void Scroll(int, const QString&) { }

Q_SIGNALS:
    void NewTitle();
    void NewToolTip();
    // NOLINTEND(readability-identifier-naming)

public:
    /// Notify of a primary click, and of the request of a host that draws no menus for the menu.
    std::function<void()> onActivate{};
    std::function<void()> onContextMenu{};

private:
    QDBusConnection bus_;
    const QString id_;
    const QString menu_;
    QString title_;
};

} // namespace brindlex
