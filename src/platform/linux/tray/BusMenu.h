#pragma once

#include "platform/linux/tray/MenuValues.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace brindlex {

/// A menu as an object on the bus, as the interface `com.canonical.dbusmenu` has it: hosts read the
/// entries, draw the menu themselves and report what is chosen. It is there as long as this object.
///
/// Whatever a host sends, and whether it goes on or crashes while its menu is open, nothing is kept
/// of it. Main thread only.
class BusMenu : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    explicit BusMenu(QDBusConnection bus);
    ~BusMenu() override;

    static QString path() { return QStringLiteral("/MenuBar"); }

    void setEntries(const std::vector<StatusMenuEntry>& entries);

    uint version() const { return 3; }
    QString status() const { return QStringLiteral("normal"); }
    QString textDirection() const { return QStringLiteral("ltr"); }
    QStringList iconThemePath() const { return {}; }

    // What hosts call and hear has the names of the interface.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
        brindlex::MenuNode& layout);
    brindlex::MenuPropertiesList GetGroupProperties(
        const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& event, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const brindlex::MenuEvents& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    // NOLINTEND(readability-identifier-naming)

public:
    /// Notifies of the item that was chosen, if it can be.
    std::function<void(int id)> onChoice{};

private:
    std::optional<QVariantMap> propertiesOf(int id) const;
    void refuseIfUnknown(int id);

    QDBusConnection bus_;
    std::vector<StatusMenuEntry> entries_;
    uint revision_ = 1;
};

} // namespace brindlex
