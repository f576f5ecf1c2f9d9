#include "platform/linux/system/DBusProgramInstances.h"

#include "log/Log.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <optional>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

using ProcessIdentifier = ProgramInstances::ProcessIdentifier;

/// The connections that own the name or queue for it, the owner first.
QStringList connectionsOf(SessionBus& bus, const std::string& name)
{
    const auto reply = bus.ask(QStringLiteral("ListQueuedOwners"), {QString::fromStdString(name)});
    return reply ? reply->arguments().value(0).toStringList() : QStringList();
}

std::optional<ProcessIdentifier> processOf(SessionBus& bus, const QString& connection)
{
    const auto reply = bus.ask(QStringLiteral("GetConnectionUnixProcessID"), {connection});
    if (!reply)
        return {};
    return ProcessIdentifier{reply->arguments().value(0).toUInt()};
}

} // namespace

DBusProgramInstances::DBusProgramInstances(
    SessionBus& bus, const std::string& bundleID, ActivateWindows activateWindows)
    : bus_(bus), bundleID_(bundleID), activateWindows_(std::move(activateWindows))
{
    constexpr unsigned queueForIt = 0;
    const auto reply
        = bus_.ask(QStringLiteral("RequestName"), {QString::fromStdString(bundleID_), queueForIt});
    if (!reply)
        Log::warn("No session bus: other instances are not known", logCategory::lifecycle);
}

ProgramInstances::ProcessIdentifier DBusProgramInstances::current() const
{
    return ProcessIdentity{::getpid()};
}

std::vector<ProgramInstances::ProcessIdentifier> DBusProgramInstances::running(
    const std::string& bundleID)
{
    std::vector<ProcessIdentifier> instances;
    for (const auto& connection : connectionsOf(bus_, bundleID)) {
        if (connection == bus_.connection().baseService())
            break;
        // One that has ended since has no process any more.
        if (const auto process = processOf(bus_, connection))
            instances.push_back(*process);
    }
    if (bundleID == bundleID_)
        instances.push_back(current());
    return instances;
}

void DBusProgramInstances::terminate()
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace brindlex
