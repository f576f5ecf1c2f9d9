#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>

#include <functional>
#include <string>

namespace brindlex {

/// The overview of all windows that some desktops have themselves: GNOME Shell and KWin.
class DesktopOverview {
public:
    /// Says why the desktop does not show its overview; from the loop.
    using Refused = std::function<void(const std::string& reason)>;

    /// Requests the overview; false where the desktop has none. That it was requested does not mean
    /// that it comes: KWin without compositing has no effects, one that it has may be unable to
    /// run, and a shell may hang or refuse. Then `refused` is called, half a second later where the
    /// desktop replies, else within five seconds.
    bool request(Refused refused);

private:
    using Reply = std::function<void(const QDBusMessage& reply)>;

    void requestOfShell(const Refused& refused);
    void requestOfKWin(const Refused& refused);
    void pressShortcutOfKWin(const Refused& refused, bool wasShown);
    void askWhetherKWinShowsIt(const Refused& refused, std::function<void(bool isShown)> reply);
    void ask(const QDBusMessage& question, const Refused& refused, Reply reply);

    /// Connected with the first request to a bus that replies.
    QDBusConnection bus_{QString()};
    /// For replies that come after its end.
    QObject context_;
};

} // namespace brindlex
