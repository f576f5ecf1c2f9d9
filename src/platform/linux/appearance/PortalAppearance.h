#pragma once

#include "foundation/Observable.h"
#include "platform/linux/system/DBusSignal.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>

namespace brindlex {

/// How the user wants programs to look.
struct DesktopAppearance {
    bool isDark = false;
    /// The accent colour in sRGB, 0x2a66dd; nothing where the desktop has none.
    std::optional<std::uint32_t> accent{};
    /// Whether nothing is to move by itself.
    bool reducesMotion = false;

    bool operator==(const DesktopAppearance&) const = default;
};

/// The appearance of the desktop as its settings portal reports it
/// (`org.freedesktop.portal.Settings`), followed while it changes, also when the portal starts
/// late. Without a portal it is light. Nothing is started by asking, and nothing waits for the
/// reply. Main thread only.
class PortalAppearance : public QObject {
public:
    explicit PortalAppearance(QDBusConnection bus);

    const Observable<DesktopAppearance>& current() const { return current_; }

private:
    void ask();
    void note(const QString& space, const QString& key, const QVariant& value);

    QDBusConnection bus_;
    QDBusServiceWatcher starts_;
    std::unique_ptr<DBusSignal> changes_;
    Observable<DesktopAppearance> current_{DesktopAppearance{}};
};

} // namespace brindlex
