#include "platform/linux/tray/MenuValues.h"

#include <QDBusMetaType>

namespace brindlex {
namespace {

/// Above the id of any item.
constexpr int firstDivider = 1'000'000;

} // namespace

QVariantMap menuRootProperties()
{
    return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
}

QVariantMap menuEntryProperties(const StatusMenuEntry& entry)
{
    if (entry.isDivider())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    auto label = QString::fromStdString(entry.label);
    label.replace(QLatin1Char('_'), QStringLiteral("__"));
    return {{QStringLiteral("label"), label}, {QStringLiteral("enabled"), entry.isEnabled}};
}

int menuEntryNumber(const std::vector<StatusMenuEntry>& menu, std::size_t place)
{
    const auto& entry = menu.at(place);
    return entry.isDivider() ? firstDivider + static_cast<int>(place) : entry.id;
}

void registerMenuValues()
{
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<MenuPropertiesList>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<MenuEvents>();
    qDBusRegisterMetaType<QList<int>>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node)
{
    argument.beginStructure();
    argument << node.id << node.properties << node.children;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node)
{
    argument.beginStructure();
    argument >> node.id >> node.properties >> node.children;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& properties)
{
    argument.beginStructure();
    argument << properties.id << properties.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& properties)
{
    argument.beginStructure();
    argument >> properties.id >> properties.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event)
{
    argument.beginStructure();
    argument << event.id << event.event << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event)
{
    argument.beginStructure();
    argument >> event.id >> event.event >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

} // namespace brindlex
