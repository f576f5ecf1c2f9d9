#pragma once

#include "platform/AutomationPermission.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>

namespace brindlex {

/// The desktop's accessibility as a whole: browsers tell what they show while it is on, most of
/// them when it was on before they were started.
///
/// It is `org.a11y.Status.IsEnabled` of the session's accessibility launcher, which keeps what is
/// set in the user's desktop settings (`org.gnome.desktop.interface toolkit-accessibility`).
/// Without the launcher, which a question starts, it is unavailable. Main thread only; nothing
/// waits.
class AccessibilitySwitch : public AutomationPermission {
public:
    explicit AccessibilitySwitch(QDBusConnection bus) : bus_(std::move(bus)) { }

    const Observable<State>& state() const override { return state_; }
    void refresh() override;
    void request() override;

private:
    void ask(const QDBusMessage& question, std::function<void(const QDBusMessage& reply)> handler);

    QDBusConnection bus_;
    Observable<State> state_{State::unknown};
    /// Replies are for as long as it is there.
    QObject context_;
};

} // namespace brindlex
