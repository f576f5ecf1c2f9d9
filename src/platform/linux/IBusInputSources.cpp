#include "platform/linux/IBusInputSources.h"

#include "app/Log.h"
#include "foundation/Text.h"
#include "platform/InputSourceIdentifiers.h"
#include "platform/linux/IBusAddress.h"
#include "platform/linux/XkbRegistry.h"

#include <QDBusArgument>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto daemonName = "org.freedesktop.IBus";
constexpr auto daemonPath = "/org/freedesktop/IBus";
constexpr auto configName = "org.freedesktop.IBus.Config";
constexpr auto configPath = "/org/freedesktop/IBus/Config";
constexpr auto busName = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";
constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties";

/// How long an answer is worth anything.
constexpr int callLimitMilliseconds = 5000;
/// How long `select` waits: a warm engine takes 1 to 15 ms, one that has to be started 120 ms.
constexpr auto selectionWait = 30ms;

QString newConnectionName()
{
    static int number = 0;
    return QStringLiteral("brindlex-ibus-%1").arg(++number);
}

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

QVariantList variantsOf(const QVariant& array)
{
    if (array.metaType() != QMetaType::fromType<QDBusArgument>())
        return array.toList();
    const auto argument = array.value<QDBusArgument>();
    QVariantList variants;
    if (argument.currentSignature() != QLatin1String("av"))
        return variants;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant variant;
        argument >> variant;
        variants.append(QVariant::fromValue(variant));
    }
    argument.endArray();
    return variants;
}

bool isPlainLayout(const IBusEngine& engine) { return layoutOfSource(engine.name).has_value(); }

InputSource sourceOf(const IBusEngine& engine)
{
    const auto catalogue = isPlainLayout(engine) ? "xkeyboard-config" : engine.catalogue;
    const auto name = translated(catalogue, engine.longName);
    return {sourceIDOfIBusEngine(engine.name), name.empty() ? engine.name : name};
}

} // namespace

IBusInputSources::IBusInputSources(XkbInputSources& layouts, DBusDeadline deadline)
    : layouts_(layouts), connectionName_(newConnectionName()), bus_(QString())
{
    const auto address = ibusAddress();
    if (!address) {
        problem_ = "its address is not known";
        return;
    }
    // As a peer, since connecting as a client waits for the daemon without a limit.
    bus_
        = QDBusConnection::connectToPeer(QString::fromStdString(address->address), connectionName_);
    if (!bus_.isConnected()) {
        problem_ = bus_.lastError().message().toStdString();
        return;
    }
    whenAnswered(call(busName, busPath, busName, "Hello", {}), deadline, &context_,
        [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage)
                fail(reply);
        });
    listen();
    readCurrent(deadline);
    readEngineList(deadline);
}

IBusInputSources::~IBusInputSources()
{
    signals_.clear();
    QDBusConnection::disconnectFromPeer(connectionName_);
}

bool IBusInputSources::isUsable() const
{
    const bool switches
        = engines_.size() > 1 || (engines_.size() == 1 && !isPlainLayout(engines_.front()));
    return hasAnswered() && switches;
}

std::optional<std::string> IBusInputSources::current()
{
    const auto& engine = target_ ? target_ : engine_;
    if (!engine)
        return {};
    return sourceIDOfIBusEngine(*engine);
}

SelectionStatus IBusInputSources::select(const std::string& id)
{
    if (!isUsable())
        return SelectionStatus::notConnected;
    const auto found = std::find_if(engines_.begin(), engines_.end(),
        [&](const IBusEngine& engine) { return sourceIDOfIBusEngine(engine.name) == id; });
    if (found == engines_.end())
        return SelectionStatus::unknownSource;

    const int groupBefore = layouts_.group();
    const auto group = groupFor(*found);
    if (group && *group != groupBefore)
        layouts_.lockGroup(*group);

    return ask(found->name, groupBefore);
}

SelectionStatus IBusInputSources::ask(const std::string& engine, int groupBefore)
{
    if (!target_ && engine_ == engine)
        return SelectionStatus::done;
    target_ = engine;
    echoes_.push_back(engine);
    const int number = ++selection_;
    const auto pending = call(
        daemonName, daemonPath, daemonName, "SetGlobalEngine", {QString::fromStdString(engine)});
    if (waitForAnswer(pending, std::chrono::steady_clock::now() + selectionWait))
        return finish(number, engine, groupBefore, pending.reply());
    whenAnswered(
        pending, doNotWait, &context_, [this, number, engine, groupBefore](const auto& reply) {
            finish(number, engine, groupBefore, reply);
        });
    return SelectionStatus::done;
}

SelectionStatus IBusInputSources::finish(
    int number, const std::string& engine, int groupBefore, const QDBusMessage& reply)
{
    const bool isLatest = number == selection_;
    if (isLatest)
        target_.reset();
    if (reply.type() == QDBusMessage::ErrorMessage) {
        std::erase(echoes_, engine);
        Log::warn("IBus did not select " + engine + ": " + reply.errorMessage().toStdString(),
            logCategory::inputMethod);
        if (isLatest)
            layouts_.lockGroup(groupBefore);
        notify();
        return bus_.isConnected() ? SelectionStatus::refused : SelectionStatus::notConnected;
    }
    if (isLatest)
        engine_ = engine;
    notify();
    return SelectionStatus::done;
}

QDBusPendingCall IBusInputSources::call(const char* service, const char* path,
    const char* interface, const char* member, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(path),
        QLatin1String(interface), QLatin1String(member));
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return bus_.asyncCall(message, callLimitMilliseconds);
}

void IBusInputSources::listen()
{
    const auto follow = [this](const char* path, const char* interface, const char* member,
                            DBusSignal::Handler handler) {
        signals_.push_back(std::make_unique<DBusSignal>(bus_, QLatin1String(path),
            QLatin1String(interface), QLatin1String(member), QStringList(), std::move(handler)));
        // A peer does not ask the bus for signals by itself.
        call(busName, busPath, busName, "AddMatch",
            {QStringLiteral("type='signal',path='%1',interface='%2',member='%3'")
                    .arg(QLatin1String(path), QLatin1String(interface), QLatin1String(member))});
    };
    follow(daemonPath, daemonName, "GlobalEngineChanged",
        [this](const QDBusMessage& signal) { become(firstOf(signal).toString().toStdString()); });
    follow(configPath, configName, "ValueChanged", [this](const QDBusMessage& signal) {
        const auto& arguments = signal.arguments();
        if (arguments.size() >= 3 && arguments[0] == QLatin1String("general")
            && arguments[1] == QLatin1String("preload-engines"))
            readEngines(textsOf(arguments[2]), doNotWait);
    });
    signals_.push_back(std::make_unique<DBusSignal>(bus_,
        QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
        QStringLiteral("Disconnected"), QStringList(), [this](const QDBusMessage&) {
            hasGone_ = true;
            problem_ = "the connection has ended";
            notify();
        }));
}

void IBusInputSources::readEngineList(DBusDeadline deadline)
{
    const QVariantList arguments{QStringLiteral("general"), QStringLiteral("preload-engines")};
    whenAnswered(call(configName, configPath, configName, "GetValue", arguments), deadline,
        &context_, [this, deadline](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage)
                fail(reply);
            else
                readEngines(textsOf(firstOf(reply)), deadline);
        });
}

void IBusInputSources::readEngines(const QStringList& names, DBusDeadline deadline)
{
    whenAnswered(call(daemonName, daemonPath, daemonName, "GetEnginesByNames", {names}), deadline,
        &context_, [this, names](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ErrorMessage) {
                fail(reply);
                return;
            }
            setEngines(names, firstOf(reply));
        });
}

void IBusInputSources::setEngines(const QStringList& names, const QVariant& descriptions)
{
    std::vector<IBusEngine> engines;
    for (const auto& description : variantsOf(descriptions))
        if (auto engine = ibusEngine(description))
            engines.push_back(std::move(*engine));
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
    const QVariantList arguments{QLatin1String(daemonName), QStringLiteral("GlobalEngine")};
    whenAnswered(call(daemonName, daemonPath, propertiesInterface, "Get", arguments), deadline,
        &context_, [this](const QDBusMessage& reply) {
            // A daemon in which nothing was selected yet answers with this error.
            const bool hasNone = reply.type() == QDBusMessage::ErrorMessage
                && reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.Failed");
            if (reply.type() == QDBusMessage::ErrorMessage && !hasNone) {
                fail(reply);
                return;
            }
            if (const auto engine = ibusEngine(firstOf(reply)))
                engine_ = engine->name;
            hasCurrent_ = true;
            notify();
        });
}

void IBusInputSources::become(const std::string& engine)
{
    const auto echo = std::find(echoes_.begin(), echoes_.end(), engine);
    echoes_.erase(echoes_.begin(), echo == echoes_.end() ? echo : echo + 1);
    // Another selection of ours came after this one, and its own signal is on the way.
    if (!echoes_.empty())
        return;
    engine_ = engine;
    notify();
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
