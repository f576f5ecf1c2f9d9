#pragma once

#include "platform/linux/inputsources/InputSourceBackend.h"
#include "platform/linux/inputsources/XkbRegistry.h"
#include "platform/linux/system/DBusAnswer.h"
#include "platform/linux/system/DBusSignal.h"
#include "platform/linux/x11/X11Connection.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The input methods of the current group of the Fcitx 5 daemon as input sources.
///
/// Fcitx tells of no change: what is selected is asked for 4.5 times a second, at once when its
/// tray item changes, and by `current` when the last answer is older than 50 ms.
///
/// A selection goes to the input context of the window that has the keyboard, and each window may
/// have a method of its own. A window that has just come to the front may get the keyboard only
/// later, when its program has found the time. So a selection is looked at 100 ms later and then
/// with each question, as long as the same window is active, until its program has had the keyboard
/// with it for a while: one that missed it is given it, once. What else is selected meanwhile is
/// the choice of the user.
class Fcitx5InputSources final : public InputSourceBackend {
public:
    /// Asks the daemon what it has; waits for that until the deadline and goes on from the loop.
    Fcitx5InputSources(QDBusConnection bus, X11Connection& connection, XkbRegistry& registry,
        DBusDeadline deadline);

    std::string_view name() const override { return "Fcitx 5"; }
    bool isUsable() const override { return hasAnswered() && !sources_.empty(); }
    std::optional<std::string> current() override;
    const std::vector<InputSource>& sources() override { return sources_; }
    SelectionStatus select(const std::string& id) override;

    /// Whether the daemon has answered all that was asked at the beginning.
    bool hasAnswered() const { return hasMethods_ && hasCurrent_; }
    /// Why it is not usable, in the words of the daemon; empty when nothing went wrong.
    const std::string& problem() const { return problem_; }

private:
    using Clock = std::chrono::steady_clock;
    struct Wish {
        std::string method{};
        /// The window that was active when it was selected: the wish ends when another is.
        xcb_window_t window = 0;
        /// The input context that had the keyboard when it was selected; empty for none.
        QString context{};
        /// When it was last asked for.
        Clock::time_point since = Clock::now();
    };

    QDBusPendingCall call(const char* member, const QVariantList& arguments = {}) const;
    void readGroup(DBusDeadline deadline);
    void readMethods(const QString& group, DBusDeadline deadline);
    void setMethods(const QStringList& enabled, const QDBusMessage& available);
    void readCurrent(DBusDeadline deadline);
    void takeCurrent(const QDBusMessage& reply);
    void setCurrent(const std::string& method);
    /// What there is to be known now: the current method, or what has become of the wish.
    void ask();
    /// Looks a moment after the daemon has answered, unless another selection came since: an engine
    /// that has to be started keeps the daemon from giving anybody the keyboard.
    void lookSoon(int selection);
    void look();
    /// What has become of the wish; `context` has the keyboard, or nobody when that is empty.
    void judge(const std::string& method, const QString& context);
    void fail(const QDBusMessage& reply);
    std::optional<std::string> sourceOf(const std::string& method) const;

    QDBusConnection bus_;
    X11Connection& connection_;
    XkbRegistry& registry_;
    QObject context_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    QTimer poll_;
    QTimer firstLook_;
    /// In the same order.
    std::vector<std::string> methods_;
    std::vector<InputSource> sources_;
    std::optional<std::string> method_;
    Clock::time_point readAt_{};
    /// The selection by this program until it is sure that it stays.
    std::optional<Wish> wish_;
    /// The number of the last selection, and of the last question for the current method.
    int selection_ = 0;
    int question_ = 0;
    bool isAsking_ = false;
    bool isLooking_ = false;
    bool hasMethods_ = false;
    bool hasCurrent_ = false;
    std::string problem_;
};

} // namespace brindlex
