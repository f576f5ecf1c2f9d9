#include "platform/linux/inputsources/IBusInputSources.h"

#include "foundation/Text.h"
#include "log/Log.h"
#include "platform/InputSourceIdentifiers.h"
#include "platform/linux/inputsources/XkbRegistry.h"

#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr IBusConnection::Service daemon{
    "org.freedesktop.IBus", "/org/freedesktop/IBus", "org.freedesktop.IBus"};
constexpr IBusConnection::Service daemonProperties{
    "org.freedesktop.IBus", "/org/freedesktop/IBus", "org.freedesktop.DBus.Properties"};
constexpr IBusConnection::Service settings{
    "org.freedesktop.IBus.Config", "/org/freedesktop/IBus/Config", "org.freedesktop.IBus.Config"};

QStringList textsOf(const QVariant& value)
{
    auto inner = value;
    while (inner.metaType() == QMetaType::fromType<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    return inner.toStringList();
}

QVariant firstOf(const QDBusMessage& message)
{
    return message.arguments().isEmpty() ? QVariant() : message.arguments().first();
}

bool isPlainLayout(const IBusEngine& engine) { return layoutOfSource(engine.name).has_value(); }

InputSource sourceOf(const IBusEngine& engine)
{
    const auto catalogue = isPlainLayout(engine) ? "xkeyboard-config" : engine.catalogue;
    const auto name = translated(catalogue, engine.longName);
    return {sourceIDOfIBusEngine(engine.name), name.empty() ? engine.name : name};
}

} // namespace

IBusInputSources::IBusInputSources(
    XkbInputSources& layouts, const QDBusConnection& sessionBus, DBusDeadline deadline)
    : layouts_(layouts),
      gnomeSettings_(sessionBus, QStringLiteral("/ca/desrt/dconf/Writer/user"),
          QStringLiteral("ca.desrt.dconf.Writer"), QStringLiteral("Notify"), {},
          [this](const QDBusMessage& signal) { followGnome(firstOf(signal).toString()); }),
      problem_(bus_.problem())
{
    if (!bus_.isConnected())
        return;
    bus_.greet(deadline, [this, deadline](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ErrorMessage) {
            fail(reply);
            return;
        }
        listen();
        readCurrent(deadline);
        readEngineList(deadline);
    });
}

IBusInputSources::~IBusInputSources() = default;

bool IBusInputSources::isUsable() const
{
    const bool switches
        = engines_.size() > 1 || (engines_.size() == 1 && !isPlainLayout(engines_.front()));
    return hasReplied() && switches;
}

std::optional<std::string> IBusInputSources::current()
{
    const auto engine = selection_.engine();
    if (!engine)
        return {};
    return sourceIDOfIBusEngine(*engine);
}

SelectionStatus IBusInputSources::select(const std::string& id)
{
    if (!isUsable())
        return SelectionStatus::notConnected;
    const auto found
        = std::find_if(engines_.begin(), engines_.end(), [&](const IBusEngine& engine) {
              return isSameSource(sourceIDOfIBusEngine(engine.name), id);
          });
    if (found == engines_.end())
        return SelectionStatus::unknownSource;

    const int groupBefore = layouts_.group();
    const auto group = groupFor(*found);
    if (group && *group != groupBefore)
        layouts_.lockGroup(*group);

    if (!selection_.request({found->name, groupBefore}))
        return SelectionStatus::done;
    return callForEngine(std::chrono::steady_clock::now() + selectionWait);
}

SelectionStatus IBusInputSources::callForEngine(DBusDeadline deadline)
{
    const auto called = selection_.beginCall();
    const auto pending
        = bus_.call(daemon, "SetGlobalEngine", {QString::fromStdString(called.engine)});
    if (waitForReply(pending, deadline))
        return finish(called, pending.reply());
    onReply(pending, doNotWait, &context_,
        [this, called](const QDBusMessage& reply) { finish(called, reply); });
    return SelectionStatus::done;
}

SelectionStatus IBusInputSources::finish(
    const IBusSelection::Request& called, const QDBusMessage& reply)
{
    const bool isRefused = reply.type() == QDBusMessage::ErrorMessage;
    if (isRefused)
        Log::warn(
            "IBus did not select " + called.engine + ": " + reply.errorMessage().toStdString(),
            logCategory::inputMethod);
    if (!selection_.endCall(isRefused)) {
        callForEngine(doNotWait);
        return SelectionStatus::done;
    }
    if (isRefused)
        layouts_.lockGroup(called.groupBefore);
    notify(isRefused ? SelectionCause::undoing : SelectionCause::choice);
    if (!isRefused)
        return SelectionStatus::done;
    return bus_.isConnected() ? SelectionStatus::refused : SelectionStatus::notConnected;
}

void IBusInputSources::listen()
{
    bus_.follow(daemon, "GlobalEngineChanged",
        [this](const QDBusMessage& signal) { become(firstOf(signal).toString().toStdString()); });
    bus_.follow(settings, "ValueChanged", [this](const QDBusMessage& signal) {
        const auto& arguments = signal.arguments();
        if (arguments.size() >= 3 && arguments[0] == QLatin1String("general")
            && arguments[1] == QLatin1String("preload-engines"))
            readEngines(textsOf(arguments[2]), doNotWait);
    });
    bus_.whenEnded([this] {
        hasGone_ = true;
        problem_ = "the connection has ended";
        notify();
    });
}

void IBusInputSources::readEngineList(DBusDeadline deadline)
{
    const QVariantList arguments{QStringLiteral("general"), QStringLiteral("preload-engines")};
    onReply(bus_.call(settings, "GetValue", arguments), deadline, &context_,
        [this, deadline](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage)
                fail(reply);
            else
                readEngines(textsOf(firstOf(reply)), deadline);
        });
}

void IBusInputSources::readEngines(const QStringList& names, DBusDeadline deadline)
{
    if (names.isEmpty()) {
        readGnomeEngines();
        return;
    }
    onReply(bus_.call(daemon, "GetEnginesByNames", {names}), deadline, &context_,
        [this, names](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage) {
                fail(reply);
                return;
            }
            setEngines(names, firstOf(reply));
        });
}

void IBusInputSources::followGnome(const QString& changed)
{
    // The key itself, or a folder in which several have changed at once.
    if (QLatin1String(gnomeInputSourcesKey).startsWith(changed) && hasReplied())
        readEngineList(doNotWait);
}

void IBusInputSources::readGnomeEngines()
{
    readGnomeInputSources(&context_, [this](const auto& sources) { findEngines(sources); });
}

void IBusInputSources::findEngines(const std::vector<GnomeInputSource>& sources)
{
    if (sources.empty()) {
        setEngines(QStringList(), QVariant());
        return;
    }
    onReply(bus_.call(daemon, "ListEngines", {}), doNotWait, &context_,
        [this, sources](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage)
                fail(reply);
            else
                setEngines(enginesFor(sources, ibusEngines(firstOf(reply))), firstOf(reply));
        });
}

void IBusInputSources::setEngines(const QStringList& names, const QVariant& descriptions)
{
    const auto engines = ibusEngines(descriptions);
    engines_.clear();
    sources_.clear();
    for (const auto& name : names) {
        const auto found = std::find_if(engines.begin(), engines.end(),
            [&](const IBusEngine& engine) { return engine.name == name.toStdString(); });
        if (found == engines.end())
            continue;
        engines_.push_back(*found);
        sources_.push_back(sourceOf(*found));
    }
    hasEngines_ = true;
    notify();
}

void IBusInputSources::readCurrent(DBusDeadline deadline)
{
    const QVariantList arguments{QLatin1String(daemon.interface), QStringLiteral("GlobalEngine")};
    onReply(bus_.call(daemonProperties, "Get", arguments), deadline, &context_,
        [this](const QDBusMessage& reply) {
            // A daemon in which nothing was selected yet returns this error.
            const bool hasNone = reply.type() == QDBusMessage::ErrorMessage
                && reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.Failed");
            if (reply.type() == QDBusMessage::ErrorMessage && !hasNone) {
                fail(reply);
                return;
            }
            if (const auto engine = ibusEngine(firstOf(reply)))
                selection_.start(engine->name);
            hasCurrent_ = true;
            notify();
        });
}

void IBusInputSources::become(const std::string& engine)
{
    const auto signal = selection_.follow(engine);
    if (signal != IBusSelection::Signal::echo)
        notify(
            signal == IBusSelection::Signal::late ? SelectionCause::place : SelectionCause::choice);
}

void IBusInputSources::fail(const QDBusMessage& reply)
{
    problem_ = reply.errorMessage().toStdString();
    notify();
}

std::optional<int> IBusInputSources::groupFor(const IBusEngine& engine)
{
    const auto& layouts = layouts_.layouts();
    if (layouts.empty())
        return {};
    // An engine for whichever layout composes text from Latin letters: the first is the user's own.
    if (engine.layout.empty() || engine.layout == "default")
        return 0;
    const auto found
        = std::find(layouts.begin(), layouts.end(), XkbLayout{engine.layout, engine.variant});
    if (found == layouts.end())
        return {};
    return static_cast<int>(found - layouts.begin());
}

} // namespace brindlex
