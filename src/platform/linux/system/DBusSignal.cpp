#include "platform/linux/system/DBusSignal.h"

#include <utility>

namespace brindlex {

DBusSignal::DBusSignal(QDBusConnection bus, const QString& path, const QString& interface,
    const QString& member, const QStringList& arguments, Handler handler)
    : bus_(std::move(bus)), path_(path), interface_(interface), member_(member),
      arguments_(arguments), handler_(std::move(handler))
{
    bus_.connect(QString(), path_, interface_, member_, arguments_, QString(), this,
        SLOT(receive(QDBusMessage)));
}

DBusSignal::~DBusSignal()
{
    bus_.disconnect(QString(), path_, interface_, member_, arguments_, QString(), this,
        SLOT(receive(QDBusMessage)));
}

void DBusSignal::receive(const QDBusMessage& signal) { handler_(signal); }

} // namespace brindlex
