#pragma once

#include "platform/SessionLock.h"
#include "platform/linux/system/DBusSignal.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>
#include <set>
#include <vector>

namespace brindlex {

/// Lockers by what they say on the buses: the `LockedHint` of the session at logind, and
/// `ActiveChanged` of the screen savers of the desktops.
///
/// It is followed, so that `isLocked` asks nobody. A locker that has left the bus counts as open.
/// Where a bus is missing, nothing is heard on it.
class DBusSessionLock : public SessionLock {
public:
    /// `session` is the bus of the user's session, `system` that of the computer.
    DBusSessionLock(QDBusConnection session, QDBusConnection system);

    bool isLocked() override { return isHinted_ || !activeSavers_.empty(); }

private:
    void followSaver(const QString& service, const QString& path);
    void askSaver(const QString& service, const QString& path);
    void setActive(const QString& saver, bool isActive);
    void askHint();

    QDBusConnection session_;
    QDBusConnection system_;
    bool isHinted_ = false;
    std::set<QString> activeSavers_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    /// For replies that come after its end.
    QObject context_;
};

} // namespace brindlex
