#pragma once

#include "foundation/Observable.h"
#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/system/DBusSignal.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>

namespace brindlex {

/// What the desktop's settings portal (`org.freedesktop.portal.Settings`) says of the appearance,
/// followed while it changes, also when the portal starts late. Nothing is started by asking, and
/// nothing waits for the reply.
///
/// Values that stand for no preference say nothing, and so do animations that are enabled, which is
/// what portals report of desktops that they know nothing of. Main thread only.
class PortalAppearance : public QObject {
public:
    explicit PortalAppearance(QDBusConnection bus);

    const Observable<StatedAppearance>& current() const { return current_; }

private:
    void ask();
    void note(const QString& space, const QString& key, const QVariant& value);

    QDBusConnection bus_;
    QDBusServiceWatcher starts_;
    std::unique_ptr<DBusSignal> changes_;
    Observable<StatedAppearance> current_{StatedAppearance{}};
};

} // namespace brindlex
