#pragma once

#include "platform/linux/DBusAnswer.h"
#include "platform/linux/DBusSignal.h"
#include "platform/linux/InputSourceBackend.h"
#include "platform/linux/XkbRegistry.h"

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
/// tray item changes, and by `current` when the last answer is older than 50 ms. A selection is
/// read back, and once more 100 ms later: a window that just got the focus may have missed it,
/// which is then repeated once.
class Fcitx5InputSources final : public InputSourceBackend {
public:
    /// Asks the daemon what it has; waits for that until the deadline and goes on from the loop.
    Fcitx5InputSources(QDBusConnection bus, XkbRegistry& registry, DBusDeadline deadline);

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

    QDBusPendingCall call(const char* member, const QVariantList& arguments = {}) const;
    void readGroup(DBusDeadline deadline);
    void readMethods(const QString& group, DBusDeadline deadline);
    void setMethods(const QStringList& enabled, const QDBusMessage& available);
    void readCurrent(DBusDeadline deadline);
    void takeCurrent(const QDBusMessage& reply);
    /// Has a look a moment after the daemon has answered, unless another selection came since. The
    /// window in front may have got its keyboard only then, and a selection before it went to the
    /// window before. An engine that has to be started keeps the daemon from both for a while.
    void recheck(int selection);
    void checkAgain();
    void fail(const QDBusMessage& reply);
    std::optional<std::string> sourceOf(const std::string& method) const;

    QDBusConnection bus_;
    XkbRegistry& registry_;
    QObject context_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    QTimer poll_;
    QTimer recheck_;
    /// In the same order.
    std::vector<std::string> methods_;
    std::vector<InputSource> sources_;
    std::optional<std::string> method_;
    Clock::time_point readAt_{};
    /// The input method selected by this program until it is sure that it stays.
    std::optional<std::string> target_;
    /// The number of the last selection, and of the last question for the current method.
    int selection_ = 0;
    int question_ = 0;
    bool isAsking_ = false;
    bool hasMethods_ = false;
    bool hasCurrent_ = false;
    std::string problem_;
};

} // namespace brindlex
