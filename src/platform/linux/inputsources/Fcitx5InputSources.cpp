#include "platform/linux/inputsources/Fcitx5InputSources.h"

#include "foundation/Text.h"
#include "log/Log.h"
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

constexpr auto daemonName = "org.fcitx.Fcitx5";
constexpr auto controllerPath = "/controller";
constexpr auto controllerInterface = "org.fcitx.Fcitx.Controller1";

constexpr int callLimitMilliseconds = 5000;
constexpr auto pollInterval = 222ms;
constexpr auto firstLookDelay = 100ms;
/// A window that is seen to have the keyboard earlier may be the one that is just losing it.
constexpr auto timeToBeSure = 300ms;
/// An answer takes 0.2 ms, a selection 1 to 3 ms; a daemon that hangs must not hold us up.
constexpr auto answerWait = 20ms;
constexpr auto selectionWait = 30ms;
constexpr auto freshFor = 50ms;

bool isError(const QDBusMessage& reply) { return reply.type() == QDBusMessage::ErrorMessage; }

/// Empty also for a reply that is no text.
QString textOf(const QDBusMessage& reply)
{
    return reply.arguments().isEmpty() ? QString() : reply.arguments().first().toString();
}

/// Empty as long as there is no reply.
QString focusedContext(const QDBusPendingCall& debugInfo)
{
    return debugInfo.isFinished() ? fcitx5FocusedContext(textOf(debugInfo.reply())) : QString();
}

} // namespace

Fcitx5InputSources::Fcitx5InputSources(
    QDBusConnection bus, X11Connection& connection, XkbRegistry& registry, DBusDeadline deadline)
    : bus_(std::move(bus)), connection_(connection), registry_(registry)
{
    signals_.push_back(std::make_unique<DBusSignal>(bus_, QLatin1String(controllerPath),
        QLatin1String(controllerInterface), QStringLiteral("InputMethodGroupsChanged"),
        QStringList(), [this](const QDBusMessage&) { readGroup(doNotWait); }));
    signals_.push_back(std::make_unique<DBusSignal>(bus_, QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("NewIcon"), QStringList(),
        [this](const QDBusMessage&) { ask(); }));

    poll_.setInterval(pollInterval);
    QObject::connect(&poll_, &QTimer::timeout, &context_, [this] { ask(); });
    firstLook_.setSingleShot(true);
    firstLook_.setInterval(firstLookDelay);
    QObject::connect(&firstLook_, &QTimer::timeout, &context_, [this] { look(); });

    readGroup(deadline);
    readCurrent(deadline);
    poll_.start();
}

std::optional<std::string> Fcitx5InputSources::current()
{
    if (wish_)
        return sourceOf(wish_->method);
    if (Clock::now() - readAt_ > freshFor)
        readCurrent(Clock::now() + answerWait);
    if (!method_)
        return {};
    return sourceOf(*method_);
}

SelectionStatus Fcitx5InputSources::select(const std::string& id)
{
    if (!isUsable())
        return SelectionStatus::notConnected;
    const auto found = std::find_if(sources_.begin(), sources_.end(),
        [&](const InputSource& source) { return source.id == id; });
    if (found == sources_.end())
        return SelectionStatus::unknownSource;
    const auto method = methods_[static_cast<std::size_t>(found - sources_.begin())];

    // The daemon answers in this order.
    const auto contexts = call("DebugInfo");
    call("SetCurrentIM", {QString::fromStdString(method)});
    const int question = ++question_;
    const auto pending = call("CurrentInputMethod");
    wish_ = Wish{method, activeWindow(connection_)};
    firstLook_.stop();
    const int selection = ++selection_;
    if (!waitForAnswer(pending, Clock::now() + selectionWait)) {
        whenAnswered(
            pending, doNotWait, &context_, [this, selection, contexts](const QDBusMessage&) {
                if (selection == selection_ && wish_)
                    wish_->context = focusedContext(contexts);
                lookSoon(selection);
            });
        return SelectionStatus::done;
    }
    wish_->context = focusedContext(contexts);
    const auto reply = pending.reply();
    if (question == question_)
        takeCurrent(reply);
    // While no window types through the daemon nothing is selected; the active one may soon do so.
    if (!isError(reply) && (!method_ || method_ == method)) {
        lookSoon(selection);
        return SelectionStatus::done;
    }
    wish_.reset();
    return isError(reply) ? SelectionStatus::notConnected : SelectionStatus::refused;
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
    whenAnswered(call("CurrentInputMethodGroup"), deadline, &context_,
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
    whenAnswered(call("InputMethodGroupInfo", {group}), deadline, &context_,
        [this, deadline, available](const QDBusMessage& reply) {
            if (isError(reply) || reply.arguments().size() < 2) {
                fail(reply);
                return;
            }
            QStringList enabled;
            for (const auto& member : fcitx5GroupMembers(reply.arguments()[1]))
                enabled.append(member.method);
            whenAnswered(available, deadline, &context_,
                [this, enabled](const QDBusMessage& answer) { setMethods(enabled, answer); });
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
    // A daemon that hangs is asked once, and waited for once.
    if (std::exchange(isAsking_, true))
        return;
    whenAnswered(call("CurrentInputMethod"), deadline, &context_,
        [this, question = ++question_](const QDBusMessage& reply) {
            isAsking_ = false;
            if (question == question_)
                takeCurrent(reply);
        });
}

void Fcitx5InputSources::takeCurrent(const QDBusMessage& reply)
{
    if (isError(reply) || reply.arguments().isEmpty()) {
        fail(reply);
        return;
    }
    setCurrent(textOf(reply).toStdString());
}

void Fcitx5InputSources::setCurrent(const std::string& method)
{
    readAt_ = Clock::now();
    const bool isNew = !hasCurrent_ || method_ != method;
    hasCurrent_ = true;
    // Without an input method nothing is said about what the user types with.
    method_ = method.empty() ? std::nullopt : std::optional(method);
    if (isNew)
        notify();
}

void Fcitx5InputSources::ask()
{
    if (wish_)
        look();
    else
        readCurrent(doNotWait);
}

void Fcitx5InputSources::lookSoon(int selection)
{
    if (selection == selection_)
        firstLook_.start();
}

void Fcitx5InputSources::look()
{
    if (!wish_ || std::exchange(isLooking_, true))
        return;
    const auto before = call("DebugInfo");
    const auto current = call("CurrentInputMethod");
    whenAnswered(call("DebugInfo"), doNotWait, &context_,
        [this, before, current, selection = selection_](const QDBusMessage& after) {
            isLooking_ = false;
            const auto context = focusedContext(before);
            // While the keyboard moves, nobody knows whose method was told.
            if (selection == selection_ && wish_ && current.isFinished() && !current.isError()
                && context == fcitx5FocusedContext(textOf(after)))
                judge(textOf(current.reply()).toStdString(), context);
        });
}

void Fcitx5InputSources::judge(const std::string& method, const QString& context)
{
    const auto active = activeWindow(connection_);
    const bool isOver = active != XCB_WINDOW_NONE && active != wish_->window;
    const bool isSure = Clock::now() - wish_->since > timeToBeSure;
    if (context.isEmpty() && !isOver)
        return;
    if (!isOver && method != wish_->method && context != wish_->context) {
        call("SetCurrentIM", {QString::fromStdString(wish_->method)});
        wish_->context = context;
        wish_->since = Clock::now();
    } else if (isOver || isSure || method != wish_->method) {
        wish_.reset();
        setCurrent(method);
        notify();
    }
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
