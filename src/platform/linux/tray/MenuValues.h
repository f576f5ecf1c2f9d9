#pragma once

#include "platform/StatusItem.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace brindlex {

/// An item of a menu with those below it, as the interface `com.canonical.dbusmenu` has it:
/// `(ia{sv}av)`.
struct MenuNode {
    int id = 0;
    QVariantMap properties{};
    /// Of menu nodes.
    QVariantList children{};
};

/// The properties of an item: `(ia{sv})`.
struct MenuProperties {
    int id = 0;
    QVariantMap properties{};
};
using MenuPropertiesList = QList<MenuProperties>;

/// What has happened to an item: `(isvu)`.
struct MenuEvent {
    int id = 0;
    QString event{};
    QDBusVariant data{};
    uint timestamp = 0;
};
using MenuEvents = QList<MenuEvent>;

/// The properties of the item that holds all others, whose number is 0.
QVariantMap menuRootProperties();

/// The properties of an entry. An underscore in its label is one, and marks no letter.
QVariantMap menuEntryProperties(const StatusMenuEntry& entry);

/// The number of the entry at that place: the id of an item; a divider, too, has one of its own.
int menuEntryNumber(const std::vector<StatusMenuEntry>& menu, std::size_t place);

/// Makes these types known to the D-Bus library; may be repeated.
void registerMenuValues();

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& properties);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

} // namespace brindlex

Q_DECLARE_METATYPE(brindlex::MenuNode)
Q_DECLARE_METATYPE(brindlex::MenuProperties)
Q_DECLARE_METATYPE(brindlex::MenuEvent)
