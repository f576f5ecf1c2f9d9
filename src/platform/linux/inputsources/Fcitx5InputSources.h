#pragma once

#include "platform/linux/inputsources/Fcitx5Selection.h"
#include "platform/linux/inputsources/InputSourceBackend.h"
#include "platform/linux/inputsources/XkbRegistry.h"
#include "platform/linux/system/DBusReply.h"
#include "platform/linux/system/DBusSignal.h"
#include "platform/linux/x11/X11Connection.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The replies to come of a look at the daemon, in this order: its contexts, the current method,
/// its contexts again.
struct Fcitx5Look {
    QDBusPendingCall before;
    QDBusPendingCall current;
    QDBusPendingCall after;
};

/// The input methods of the current group of the Fcitx 5 daemon as input sources.
///
/// Fcitx notifies nobody of a selection: what is selected is read 4.5 times a second, at once when
/// its tray item changes, and by `current` when the last reply is older than 50 ms. Each input
/// context has a method of its own unless the user has made them share one: another method in
/// another context is nobody's choice. While nobody wants to know of changes nothing is read by
/// itself.
///
/// A selection goes to the input context of the window that has the keyboard, and each window may
/// have a method of its own. A window that has just come to the front may get the keyboard only
/// later, when its program has found the time. So a selection is checked 100 ms later and then
/// instead of each read, as long as the same window is active, until its program has had the
/// keyboard with it for a while: one that missed it is given it, once. What else is selected
/// meanwhile is the choice of the user.
class Fcitx5InputSources final : public InputSourceBackend {
public:
    /// Requests what the daemon has; waits for that until the deadline and goes on from the loop.
    /// `isObserved` returns whether anybody wants to know of changes; `resume` follows when
    /// somebody does so again.
    Fcitx5InputSources(QDBusConnection bus, X11Connection& connection, XkbRegistry& registry,
        std::function<bool()> isObserved, DBusDeadline deadline);

    std::string_view name() const override { return "Fcitx 5"; }
    bool isUsable() const override { return hasReplied() && !sources_.empty(); }
    std::optional<std::string> current() override;
    const std::vector<InputSource>& sources() override { return sources_; }
    SelectionStatus select(const std::string& id) override;

    /// Reads by itself again.
    void resume();

    /// Whether the daemon has replied to all requests of the beginning.
    bool hasReplied() const { return hasMethods_ && selection_.hasRead(); }
    /// Why it is not usable, in the words of the daemon; empty when nothing went wrong.
    const std::string& problem() const { return problem_; }

private:
    QDBusPendingCall call(const char* member, const QVariantList& arguments = {}) const;
    void readGroup(DBusDeadline deadline);
    void readMethods(const QString& group, DBusDeadline deadline);
    void setMethods(const QStringList& enabled, const QDBusMessage& available);
    void readCurrent(DBusDeadline deadline);
    Fcitx5Look beginLook() const;
    void takeCurrent(const Fcitx5Look& look);
    /// Requests the method of a selection; returns what is pending of the contexts before it.
    QDBusPendingCall request(int selection, const std::string& method);
    void tick();
    void poll();
    void check();
    void endCheck(int selection, const Fcitx5Selection::Observation& seen);
    void fail(const QDBusMessage& reply);
    std::optional<std::string> sourceOf(const std::string& method) const;

    QDBusConnection bus_;
    X11Connection& connection_;
    XkbRegistry& registry_;
    std::function<bool()> isObserved_;
    QObject context_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    QTimer pollTimer_;
    QTimer firstCheck_;
    /// In the same order.
    std::vector<std::string> methods_;
    std::vector<InputSource> sources_;
    Fcitx5Selection selection_;
    bool hasMethods_ = false;
    std::string problem_;
};

} // namespace brindlex
