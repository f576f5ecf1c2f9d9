#include "platform/linux/accessibility/AccessibilityBus.h"

#include "log/Log.h"
#include "platform/linux/accessibility/AccessibilityInterfaces.h"
#include "platform/linux/accessibility/AccessibilityReply.h"
#include "platform/linux/bus/BusReachability.h"
#include "platform/linux/bus/SessionBusAddress.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <algorithm>
#include <atomic>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using accessibilityInterface::accessible;
using accessibilityInterface::properties;

// Names and numbers of https://gitlab.gnome.org/GNOME/at-spi2-core/-/tree/main/xml.
const QString rootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString nullPath = QStringLiteral("/org/a11y/atspi/null");
constexpr unsigned relationEmbeds = 13;
constexpr unsigned stateActive = 1;
constexpr int stateShowing = 25;
constexpr int roleDocumentWeb = 95;
constexpr int matchAll = 1;
constexpr int matchAny = 2;
constexpr unsigned inTheOrderOfTheTree = 1;

/// The launcher starts the bus itself on the first question for its address.
constexpr auto timeForAddress = 200ms;

QString nextConnectionName()
{
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("brindlex-accessibility-%1").arg(++count);
}

QDBusMessage question(const QString& service, const QString& path, const QString& interface,
    const QString& member, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

/// A connection to the bus, which is not connected when the bus does not let this process in. Left
/// to itself the library would keep the address for the life of the process, start a bus where
/// there is none, and wait for ever for one that says nothing.
QDBusConnection connectTo(const std::string& address, const QString& name)
{
    if (!isBusReplying(address, timeForAddress))
        return QDBusConnection(name);
    return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

QDBusMessage launcherQuestion(
    const QString& interface, const QString& member, const QVariantList& arguments = {})
{
    return question(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"), interface,
        member, arguments);
}

/// A set of numbers below 32 times the count of words.
void appendBits(QDBusArgument& argument, int bit, int words)
{
    argument.beginArray(QMetaType::fromType<int>());
    for (int word = 0; word < words; ++word)
        argument << static_cast<int>(word == bit / 32 ? 1U << (bit % 32) : 0U);
    argument.endArray();
}

/// States, attributes, roles and interfaces that an object must have, each with how it must.
QVariant ruleForShowingDocuments()
{
    QDBusArgument rule;
    rule.beginStructure();
    appendBits(rule, stateShowing, 2);
    rule << matchAll;
    rule.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QString>());
    rule.endMap();
    rule << matchAll;
    appendBits(rule, roleDocumentWeb, 4);
    rule << matchAny << QStringList() << matchAll << false;
    rule.endStructure();
    return QVariant::fromValue(rule);
}

} // namespace

bool AccessibleObject::isNull() const
{
    return service.isEmpty() || path.isEmpty() || path == nullPath;
}

AccessibilityBus::AccessibilityBus(const AccessibilityLimits& limits, const Loss& loss)
    : limits_(limits), loss_(loss), connectionName_(nextConnectionName()),
      sessionConnectionName_(connectionName_ + QStringLiteral("-session")),
      connection_(connectionName_)
{
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(connectionName_);
    QDBusConnection::disconnectFromBus(sessionConnectionName_);
}

bool AccessibilityBus::begin(std::optional<std::chrono::milliseconds> time)
{
    const bool isThere = connection_.isConnected() || connect();
    deadline_ = std::chrono::steady_clock::now() + time.value_or(limits_.perReading);
    return isThere;
}

bool AccessibilityBus::connect()
{
    QDBusConnection::disconnectFromBus(connectionName_);
    const auto found = address();
    if (found)
        connection_ = connectTo(found->toStdString(), connectionName_);
    if (!found || !connection_.isConnected()) {
        logOnce(isAbsenceLogged_, std::string("No accessibility bus: ") + loss_.withoutBus);
        return false;
    }
    isAbsenceLogged_ = false;
    return true;
}

std::optional<QString> AccessibilityBus::address()
{
    // Kept while there is no accessibility bus, since then every reading comes here.
    auto session = QDBusConnection(sessionConnectionName_);
    if (!session.isConnected()) {
        QDBusConnection::disconnectFromBus(sessionConnectionName_);
        session = connectTo(sessionBusAddress(), sessionConnectionName_);
    }
    const auto reply = session.call(
        launcherQuestion(QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")),
        QDBus::Block, static_cast<int>(timeForAddress.count()));
    const auto found = text(reply.arguments().value(0));
    if (reply.type() != QDBusMessage::ReplyMessage || !found || found->isEmpty())
        return {};

    const auto isEnabled
        = session.call(launcherQuestion(properties, QStringLiteral("Get"),
                           {QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled")}),
            QDBus::Block, static_cast<int>(timeForAddress.count()));
    const auto flag = unpacked(isEnabled.arguments().value(0));
    if (flag.metaType() == QMetaType::fromType<bool>() && !flag.toBool())
        logOnce(isDisabledLogged_,
            std::string("Accessibility is off: ") + loss_.whileOff
                + "; it is switched on by \"gsettings set org.gnome.desktop.interface "
                  "toolkit-accessibility true\", before they are started");
    QDBusConnection::disconnectFromBus(sessionConnectionName_);
    return *found;
}

AccessibilityResult<std::vector<AccessibleObject>> AccessibilityBus::applications()
{
    return children({QStringLiteral("org.a11y.atspi.Registry"), rootPath});
}

AccessibilityResult<std::int64_t> AccessibilityBus::processIdentifier(const QString& service)
{
    const AccessibleObject bus{
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus")};
    const auto reply = ask(bus, QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("GetConnectionUnixProcessID"), {service});
    if (!reply)
        return fail(reply.error());
    if (reply->metaType() != QMetaType::fromType<unsigned>())
        return fail(AccessibilityProblem::refused);
    return std::int64_t{reply->toUInt()};
}

AccessibilityResult<std::vector<AccessibleObject>> AccessibilityBus::children(
    const AccessibleObject& object)
{
    return askForObjects(object, accessible, QStringLiteral("GetChildren"));
}

AccessibilityResult<QString> AccessibilityBus::name(const AccessibleObject& object)
{
    const auto reply
        = ask(object, properties, QStringLiteral("Get"), {accessible, QStringLiteral("Name")});
    if (!reply)
        return fail(reply.error());
    return text(unpacked(*reply));
}

AccessibilityResult<bool> AccessibilityBus::isActive(const AccessibleObject& object)
{
    const auto reply = ask(object, accessible, QStringLiteral("GetState"));
    if (!reply)
        return fail(reply.error());
    const auto words = container(*reply, "au");
    if (!words)
        return fail(AccessibilityProblem::refused);
    words->beginArray();
    unsigned first = 0;
    if (!words->atEnd())
        *words >> first;
    words->endArray();
    return ((first >> stateActive) & 1U) != 0;
}

AccessibilityResult<std::vector<AccessibleObject>> AccessibilityBus::embedded(
    const AccessibleObject& object)
{
    const auto reply = ask(object, accessible, QStringLiteral("GetRelationSet"));
    if (!reply)
        return fail(reply.error());
    const auto relations = container(*reply, "a(ua(so))");
    if (!relations)
        return fail(AccessibilityProblem::refused);
    std::vector<AccessibleObject> found;
    std::size_t count = 0;
    relations->beginArray();
    while (!relations->atEnd() && ++count <= mostListEntries && found.empty()) {
        unsigned type = 0;
        relations->beginStructure();
        *relations >> type;
        auto targets = objects(*relations);
        relations->endStructure();
        if (type == relationEmbeds)
            found = std::move(targets);
    }
    relations->endArray();
    return found;
}

AccessibilityResult<std::vector<AccessibleObject>> AccessibilityBus::showingDocument(
    const AccessibleObject& object)
{
    constexpr int mostMatches = 1;
    constexpr bool goesBelowChildren = true;
    return askForObjects(object, QStringLiteral("org.a11y.atspi.Collection"),
        QStringLiteral("GetMatches"),
        {ruleForShowingDocuments(), inTheOrderOfTheTree, mostMatches, goesBelowChildren});
}

AccessibilityResult<QString> AccessibilityBus::documentAttribute(
    const AccessibleObject& document, const QString& attribute)
{
    const auto reply = ask(document, QStringLiteral("org.a11y.atspi.Document"),
        QStringLiteral("GetAttributeValue"), {attribute});
    if (!reply)
        return fail(reply.error());
    return text(*reply);
}

AccessibilityResult<QVariant> AccessibilityBus::ask(const AccessibleObject& object,
    const QString& interface, const QString& member, const QVariantList& arguments)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline_ - std::chrono::steady_clock::now());
    if (left <= 0ms)
        return fail(AccessibilityProblem::noReply);
    const auto reply
        = connection_.call(question(object.service, object.path, interface, member, arguments),
            QDBus::Block, static_cast<int>(std::min(left, limits_.perQuestion).count()));
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0);
    const auto error = QDBusError(reply).type();
    const bool isLate = error == QDBusError::NoReply || error == QDBusError::Timeout
        || error == QDBusError::TimedOut;
    return fail(isLate ? AccessibilityProblem::noReply : AccessibilityProblem::refused);
}

AccessibilityResult<std::vector<AccessibleObject>> AccessibilityBus::askForObjects(
    const AccessibleObject& object, const QString& interface, const QString& member,
    const QVariantList& arguments)
{
    const auto reply = ask(object, interface, member, arguments);
    if (!reply)
        return fail(reply.error());
    const auto list = container(*reply, "a(so)");
    if (!list)
        return fail(AccessibilityProblem::refused);
    return objects(*list);
}

void AccessibilityBus::logOnce(bool& isLogged, const std::string& message) const
{
    if (!std::exchange(isLogged, true))
        Log::info(message, loss_.category);
}

} // namespace brindlex
