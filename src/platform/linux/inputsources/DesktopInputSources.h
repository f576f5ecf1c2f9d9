#pragma once

#include "foundation/Subscribers.h"
#include "platform/KeyboardInputSources.h"
#include "platform/linux/inputsources/Fcitx5InputSources.h"
#include "platform/linux/inputsources/IBusInputSources.h"
#include "platform/linux/inputsources/SelectionCauses.h"
#include "platform/linux/inputsources/X11Presses.h"
#include "platform/linux/inputsources/XkbInputSources.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The input sources of a Linux desktop, from the program that switches them there: Fcitx 5 when it
/// runs, else IBus when it runs and has something to switch, else the X server's keyboard groups.
///
/// No daemon is started by a request. One that comes, goes or changes what it offers is followed,
/// also a restart. Each change is notified once, from the loop; changes that follow each other
/// within one turn of the loop count as one. Whose doing a change was is told by whether a hand has
/// pressed something since the window came to the front or the source was selected, and by what the
/// daemons know: Fcitx 5 of the field that has the keyboard. The status numbers of `select` are
/// those of `SelectionStatus`.
class DesktopInputSources final : public KeyboardInputSources {
public:
    /// Waits up to 100 ms for the daemons; one that is slower is taken up when it has replied.
    DesktopInputSources(X11Connection& connection, QDBusConnection sessionBus);
    ~DesktopInputSources() override;

    std::optional<InputSourceProperties> current() override;
    std::optional<std::vector<InputSourceProperties>> list(
        const InputSourceFilter& filter) override;
    int select(const InputSourceProperties& source) override;
    Subscription observeSelectionChanges(SelectionHandler handler) override;
    Subscription observeEnabledSourcesChanges(std::function<void()> handler) override;

    /// By the window manager and the processes that run now.
    std::string whyUndone() override;

    /// The name of the program that switches now.
    std::string_view backendName() const { return backend_->name(); }

private:
    void findDaemons(DBusDeadline deadline);
    void takeFcitx(bool isRunning, DBusDeadline deadline);
    void takeIBus(bool isRunning, DBusDeadline deadline);
    void dropFcitx();
    void dropIBus();
    /// Logs that the backend has gone, and goes on with the server's groups, if it is in use.
    void leave(const InputSourceBackend* backend);
    void changed(SelectionCause hint);
    void settle();
    void announce(InputSourceBackend& backend);
    bool hasOtherSources() const;
    void notifyOfSelection(SelectionCause hint);
    void notifyOnceCalm(SelectionCause cause);
    void tryAgainLater();
    InputSourceBackend& bestBackend();

    X11Connection& connection_;
    QDBusConnection bus_;
    QObject context_;
    XkbRegistry registry_;
    XkbInputSources xkb_;
    std::unique_ptr<IBusInputSources> ibus_;
    std::unique_ptr<Fcitx5InputSources> fcitx_;
    InputSourceBackend* backend_;
    std::vector<InputSource> notifiedSources_;
    std::optional<std::string> notifiedSelection_;
    QTimer settleSoon_;
    /// Until the desktop has made all its changes.
    QTimer calm_;
    QTimer retry_;
    std::size_t retries_ = 0;
    std::string_view announced_{};
    std::string lastProblem_;
    bool isFcitxRunning_ = false;
    bool isIBusRunning_ = false;
    SelectionCauses causes_;
    SelectionCause hint_ = SelectionCause::choice;
    SelectionCause unnotified_ = SelectionCause::choice;
    X11Presses presses_;
    Subscribers<SelectionHandler> selectionObservers_;
    Subscribers<std::function<void()>> enabledSourcesObservers_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    Subscription activations_;
    Subscription xkbChanges_;
    Subscription ibusChanges_;
    Subscription fcitxChanges_;
};

} // namespace brindlex
