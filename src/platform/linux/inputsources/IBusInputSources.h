#pragma once

#include "platform/linux/inputsources/GnomeInputSources.h"
#include "platform/linux/inputsources/IBusConnection.h"
#include "platform/linux/inputsources/IBusEngine.h"
#include "platform/linux/inputsources/IBusSelection.h"
#include "platform/linux/inputsources/InputSourceBackend.h"
#include "platform/linux/inputsources/XkbInputSources.h"
#include "platform/linux/system/DBusReply.h"

#include <QObject>

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The enabled engines of the IBus daemon as input sources, over the daemon's own bus. Where IBus
/// has none enabled they are those that GNOME keeps for it.
///
/// What is selected is followed by the daemon's signals and costs no call. Selecting also selects
/// the X layout of the engine, which IBus leaves to others. An IBus with no more than one engine,
/// and that a plain layout, switches nothing and is not usable. An object serves one life of the
/// daemon: once it has gone, it stays unusable.
class IBusInputSources final : public InputSourceBackend {
public:
    /// Connects to the daemon and requests what it has; waits for that until the deadline and goes
    /// on from the loop. Changes of GNOME's settings come over the session bus.
    IBusInputSources(
        XkbInputSources& layouts, const QDBusConnection& sessionBus, DBusDeadline deadline);
    ~IBusInputSources() override;

    std::string_view name() const override { return "IBus"; }
    bool isUsable() const override;
    std::optional<std::string> current() override;
    const std::vector<InputSource>& sources() override { return sources_; }
    SelectionStatus select(const std::string& id) override;

    /// Whether the daemon has replied to all requests of the beginning, and is still there.
    bool hasReplied() const { return hasEngines_ && hasCurrent_ && !hasGone_; }
    /// Why it is not usable, in the words of the system; empty when nothing went wrong.
    const std::string& problem() const { return problem_; }

private:
    void listen();
    void readEngineList(DBusDeadline deadline);
    void readEngines(const QStringList& names, DBusDeadline deadline);
    void followGnome(const QString& changed);
    void readGnomeEngines();
    void findEngines(const std::vector<GnomeInputSource>& sources);
    void setEngines(const QStringList& names, const QVariant& descriptions);
    void readCurrent(DBusDeadline deadline);
    void become(const std::string& engine);
    SelectionStatus callForEngine(DBusDeadline deadline);
    SelectionStatus finish(const IBusSelection::Request& called, const QDBusMessage& reply);
    void fail(const QDBusMessage& reply);
    /// The group for the engine's layout; nothing when its layout is not among the groups.
    std::optional<int> groupFor(const IBusEngine& engine);

    XkbInputSources& layouts_;
    IBusConnection bus_;
    QObject context_;
    std::vector<IBusEngine> engines_;
    std::vector<InputSource> sources_;
    IBusSelection selection_;
    DBusSignal gnomeSettings_;
    bool hasEngines_ = false;
    bool hasCurrent_ = false;
    bool hasGone_ = false;
    std::string problem_;
};

} // namespace brindlex
