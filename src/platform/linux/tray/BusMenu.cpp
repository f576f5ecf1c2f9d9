#include "platform/linux/tray/BusMenu.h"

#include <utility>

namespace brindlex {
namespace {

constexpr int menuRoot = 0;

QVariantList menuNodes(const std::vector<StatusMenuEntry>& entries)
{
    QVariantList nodes;
    for (std::size_t place = 0; place < entries.size(); ++place)
        nodes.push_back(QVariant::fromValue(
            MenuNode{menuEntryNumber(entries, place), menuEntryProperties(entries[place]), {}}));
    return nodes;
}

} // namespace

BusMenu::BusMenu(QDBusConnection bus) : bus_(std::move(bus))
{
    registerMenuValues();
    constexpr auto exported = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
        | QDBusConnection::ExportAllProperties;
    bus_.registerObject(path(), this, exported);
}

BusMenu::~BusMenu() { bus_.unregisterObject(path()); }

void BusMenu::setEntries(const std::vector<StatusMenuEntry>& entries)
{
    if (entries == entries_)
        return;
    entries_ = entries;
    ++revision_;
    Q_EMIT LayoutUpdated(revision_, menuRoot);
}

uint BusMenu::GetLayout(int parentId, int recursionDepth, const QStringList&, MenuNode& layout)
{
    refuseIfUnknown(parentId);
    layout = {parentId, propertiesOf(parentId).value_or(QVariantMap()), {}};
    if (parentId == menuRoot && recursionDepth != 0)
        layout.children = menuNodes(entries_);
    return revision_;
}

/// Of all items when none is named.
MenuPropertiesList BusMenu::GetGroupProperties(const QList<int>& ids, const QStringList&)
{
    auto wanted = ids;
    for (std::size_t place = 0; ids.isEmpty() && place < entries_.size(); ++place)
        wanted.push_back(menuEntryNumber(entries_, place));
    MenuPropertiesList found;
    for (const auto id : wanted)
        if (const auto properties = propertiesOf(id))
            found.push_back({id, *properties});
    return found;
}

QDBusVariant BusMenu::GetProperty(int id, const QString& name)
{
    refuseIfUnknown(id);
    const auto value = propertiesOf(id).value_or(QVariantMap()).value(name);
    if (!value.isValid() && calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("No such property"));
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void BusMenu::Event(int id, const QString& event, const QDBusVariant&, uint)
{
    refuseIfUnknown(id);
    if (event == QLatin1String("clicked") && canChoose(entries_, id) && onChoice)
        onChoice(id);
}

QList<int> BusMenu::EventGroup(const MenuEvents& events)
{
    QList<int> unknown;
    for (const auto& [id, event, data, timestamp] : events) {
        if (propertiesOf(id))
            Event(id, event, data, timestamp);
        else
            unknown.push_back(id);
    }
    return unknown;
}

/// What was read of the menu is always up to date.
bool BusMenu::AboutToShow(int id)
{
    refuseIfUnknown(id);
    return false;
}

QList<int> BusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    for (const auto id : ids)
        if (!propertiesOf(id))
            idErrors.push_back(id);
    return {};
}

std::optional<QVariantMap> BusMenu::propertiesOf(int id) const
{
    if (id == menuRoot)
        return menuRootProperties();
    for (std::size_t place = 0; place < entries_.size(); ++place)
        if (menuEntryNumber(entries_, place) == id)
            return menuEntryProperties(entries_[place]);
    return {};
}

void BusMenu::refuseIfUnknown(int id)
{
    if (!propertiesOf(id) && calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("No such item"));
}

} // namespace brindlex
