#include "platform/linux/inputsources/Fcitx5InputSources.h"

#include "platform/InputSourceIdentifiers.h"
#include "platform/linux/inputsources/Fcitx5Contexts.h"
#include "platform/linux/inputsources/Fcitx5Method.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <algorithm>
#include <map>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto daemonName = "org.fcitx.Fcitx5";
constexpr auto controllerPath = "/controller";
constexpr auto controllerInterface = "org.fcitx.Fcitx.Controller1";

constexpr auto pollInterval = 222ms;
/// A reply takes 0.2 ms, a selection 1 to 3 ms; a daemon that hangs must not hold us up.
constexpr auto readWait = 20ms;

bool isError(const QDBusMessage& reply) { return reply.type() == QDBusMessage::ErrorMessage; }

/// Empty also for a reply that is no text.
QString textOf(const QDBusMessage& reply)
{
    return reply.arguments().isEmpty() ? QString() : reply.arguments().first().toString();
}

/// Empty as long as there is no reply.
std::string focusedContext(const QDBusPendingCall& debugInfo)
{
    return debugInfo.isFinished() ? fcitx5FocusedContext(textOf(debugInfo.reply())).toStdString()
                                  : std::string();
}

/// Absent as long as there is no reply.
std::optional<std::string> methodOf(const QDBusPendingCall& current)
{
    if (!current.isFinished() || current.isError())
        return {};
    return textOf(current.reply()).toStdString();
}

Fcitx5Selection::Observation seenBy(const Fcitx5Look& look, std::uint32_t activeWindow)
{
    return {focusedContext(look.before), focusedContext(look.after), methodOf(look.current),
        activeWindow};
}

SelectionCause causeOf(Fcitx5Selection::Change change)
{
    return change == Fcitx5Selection::Change::context ? SelectionCause::place
                                                      : SelectionCause::choice;
}

} // namespace

Fcitx5InputSources::Fcitx5InputSources(QDBusConnection bus, X11Connection& connection,
    XkbRegistry& registry, std::function<bool()> isObserved, DBusDeadline deadline)
    : bus_(std::move(bus)), connection_(connection), registry_(registry),
      isObserved_(std::move(isObserved))
{
    signals_.push_back(std::make_unique<DBusSignal>(bus_, QLatin1String(controllerPath),
        QLatin1String(controllerInterface), QStringLiteral("InputMethodGroupsChanged"),
        QStringList(), [this](const QDBusMessage&) { readGroup(doNotWait); }));
    signals_.push_back(std::make_unique<DBusSignal>(bus_, QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("NewIcon"), QStringList(),
        [this](const QDBusMessage&) { poll(); }));

    pollTimer_.setInterval(pollInterval);
    QObject::connect(&pollTimer_, &QTimer::timeout, &context_, [this] { tick(); });
    firstCheck_.setSingleShot(true);
    firstCheck_.setInterval(Fcitx5Selection::firstCheckDelay);
    QObject::connect(&firstCheck_, &QTimer::timeout, &context_, [this] { check(); });

    readGroup(deadline);
    readCurrent(deadline);
    pollTimer_.start();
}

std::optional<std::string> Fcitx5InputSources::current()
{
    if (selection_.isStale(Clock::now()))
        readCurrent(Clock::now() + readWait);
    const auto method = selection_.method();
    return method ? sourceOf(*method) : std::nullopt;
}

SelectionStatus Fcitx5InputSources::select(const std::string& id)
{
    if (!isUsable())
        return SelectionStatus::notConnected;
    const auto found = std::find_if(sources_.begin(), sources_.end(),
        [&](const InputSource& source) { return isSameSource(source.id, id); });
    if (found == sources_.end())
        return SelectionStatus::unknownSource;
    const auto method = methods_[static_cast<std::size_t>(found - sources_.begin())];

    resume();
    const auto window = activeWindow(connection_);
    const int selection = selection_.select(method, window, Clock::now());
    firstCheck_.stop();
    const auto before = request(selection, method);
    const auto current = call("CurrentInputMethod");
    if (!waitForReply(current, Clock::now() + selectionWait))
        return SelectionStatus::done;
    takeCurrent({before, current, before});
    return selection_.confirm(current.isError());
}

QDBusPendingCall Fcitx5InputSources::request(int selection, const std::string& method)
{
    // The daemon replies in this order.
    auto before = call("DebugInfo");
    call("SetCurrentIM", {QString::fromStdString(method)});
    const auto after = call("DebugInfo");
    onReply(after, doNotWait, &context_, [this, selection, before, after](const auto&) {
        if (selection_.acknowledge(selection, focusedContext(before), focusedContext(after)))
            firstCheck_.start();
    });
    return before;
}

QDBusPendingCall Fcitx5InputSources::call(const char* member, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createMethodCall(QLatin1String(daemonName),
        QLatin1String(controllerPath), QLatin1String(controllerInterface), QLatin1String(member));
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return bus_.asyncCall(message, callLimitMilliseconds);
}

void Fcitx5InputSources::readGroup(DBusDeadline deadline)
{
    onReply(call("CurrentInputMethodGroup"), deadline, &context_,
        [this, deadline](const QDBusMessage& reply) {
            if (isError(reply) || reply.arguments().isEmpty())
                fail(reply);
            else
                readMethods(reply.arguments().first().toString(), deadline);
        });
}

void Fcitx5InputSources::readMethods(const QString& group, DBusDeadline deadline)
{
    const auto available = call("AvailableInputMethods");
    onReply(call("InputMethodGroupInfo", {group}), deadline, &context_,
        [this, deadline, available](const QDBusMessage& reply) {
            if (isError(reply) || reply.arguments().size() < 2) {
                fail(reply);
                return;
            }
            QStringList enabled;
            for (const auto& member : fcitx5GroupMembers(reply.arguments()[1]))
                enabled.append(member.method);
            onReply(available, deadline, &context_,
                [this, enabled](const QDBusMessage& methods) { setMethods(enabled, methods); });
        });
}

void Fcitx5InputSources::setMethods(const QStringList& enabled, const QDBusMessage& available)
{
    std::map<QString, QString> names;
    if (!isError(available) && !available.arguments().isEmpty())
        for (const auto& method : fcitx5Methods(available.arguments().first()))
            names.emplace(method.method, method.name);

    methods_.clear();
    std::vector<XkbLayout> layouts;
    for (const auto& method : enabled) {
        methods_.push_back(method.toStdString());
        layouts.push_back(layoutOfFcitxKeyboard(methods_.back()).value_or(XkbLayout{}));
    }
    const auto layoutNames = registry_.names(layouts);
    sources_.clear();
    for (std::size_t index = 0; index < methods_.size(); ++index) {
        const auto name = names[QString::fromStdString(methods_[index])].toStdString();
        const bool isKeyboard = !layouts[index].layout.empty();
        sources_.push_back({sourceIDOfFcitx(methods_[index], layoutNames[index].language),
            isKeyboard         ? layoutNames[index].name
                : name.empty() ? methods_[index]
                               : name});
    }
    hasMethods_ = true;
    notify();
}

void Fcitx5InputSources::readCurrent(DBusDeadline deadline)
{
    // A daemon that hangs gets one request, and is waited for once.
    const auto selection = selection_.beginRead();
    if (!selection)
        return;
    auto look = beginLook();
    onReply(
        look.after, deadline, &context_, [this, look, selection = *selection](const QDBusMessage&) {
            if (selection_.endRead(selection))
                takeCurrent(look);
        });
}

Fcitx5Look Fcitx5InputSources::beginLook() const
{
    auto before = call("DebugInfo");
    auto current = call("CurrentInputMethod");
    return {before, current, call("DebugInfo")};
}

void Fcitx5InputSources::takeCurrent(const Fcitx5Look& look)
{
    if (look.current.isError()) {
        fail(look.current.reply());
        return;
    }
    const auto change = selection_.take(seenBy(look, 0), Clock::now());
    if (change != Fcitx5Selection::Change::none)
        notify(causeOf(change));
}

void Fcitx5InputSources::resume()
{
    if (pollTimer_.isActive())
        return;
    selection_.pause();
    pollTimer_.start();
}

void Fcitx5InputSources::tick()
{
    if (isObserved_() || selection_.isKeeping())
        poll();
    else
        pollTimer_.stop();
}

void Fcitx5InputSources::poll()
{
    if (selection_.isKeeping())
        check();
    else
        readCurrent(doNotWait);
}

void Fcitx5InputSources::check()
{
    const auto selection = selection_.beginCheck();
    if (!selection)
        return;
    auto look = beginLook();
    onReply(look.after, doNotWait, &context_,
        [this, look, selection = *selection](
            const QDBusMessage&) { endCheck(selection, seenBy(look, activeWindow(connection_))); });
}

void Fcitx5InputSources::endCheck(int selection, const Fcitx5Selection::Observation& seen)
{
    using Verdict = Fcitx5Selection::Verdict;
    const auto verdict = selection_.endCheck(selection, seen, Clock::now());
    if (verdict == Verdict::requestAgain)
        request(selection, *selection_.method());
    else if (verdict != Verdict::keep)
        notify(verdict == Verdict::left ? SelectionCause::place : SelectionCause::choice);
}

void Fcitx5InputSources::fail(const QDBusMessage& reply)
{
    problem_ = reply.errorMessage().toStdString();
    notify();
}

std::optional<std::string> Fcitx5InputSources::sourceOf(const std::string& method) const
{
    const auto found = std::find(methods_.begin(), methods_.end(), method);
    if (found == methods_.end())
        return sourceIDOfFcitx(method, "");
    return sources_[static_cast<std::size_t>(found - methods_.begin())].id;
}

} // namespace brindlex
