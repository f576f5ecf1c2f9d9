#include "platform/linux/inputsources/DesktopInputSources.h"

#include "log/Log.h"
#include "platform/linux/inputsources/UndoingReason.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto fcitxName = "org.fcitx.Fcitx5";
constexpr auto ibusName = "org.freedesktop.IBus";
constexpr auto busName = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";
constexpr auto startWait = 100ms;
/// A program that keeps a layout for each window may set it twice for one change of the window.
constexpr auto calmTime = 100ms;
/// When to try a daemon again that runs and could not be used: it may still be starting.
constexpr std::array retryDelays{250ms, 500ms, 1000ms, 2000ms, 4000ms, 8000ms};

} // namespace

DesktopInputSources::DesktopInputSources(X11Connection& connection, QDBusConnection sessionBus)
    : connection_(connection), bus_(std::move(sessionBus)), xkb_(connection, registry_),
      backend_(&xkb_), presses_(connection, [this] { causes_.pressed(); })
{
    settleSoon_.setSingleShot(true);
    settleSoon_.setInterval(0);
    QObject::connect(&settleSoon_, &QTimer::timeout, &context_, [this] { settle(); });
    calm_.setSingleShot(true);
    calm_.setInterval(calmTime);
    QObject::connect(&calm_, &QTimer::timeout, &context_,
        [this] { selectionObservers_.notify(std::exchange(unnotified_, SelectionCause::choice)); });
    retry_.setSingleShot(true);
    QObject::connect(&retry_, &QTimer::timeout, &context_, [this] {
        takeFcitx(isFcitxRunning_, doNotWait);
        takeIBus(isIBusRunning_, doNotWait);
    });
    xkbChanges_ = xkb_.observe([this](SelectionCause hint) { changed(hint); });
    activations_ = observeActiveWindow(connection_, [this] {
        causes_.windowCameToFront(std::chrono::steady_clock::now());
        presses_.await();
    });

    if (bus_.isConnected()) {
        for (const auto* daemon : {fcitxName, ibusName})
            signals_.push_back(std::make_unique<DBusSignal>(bus_, QLatin1String(busPath),
                QLatin1String(busName), QStringLiteral("NameOwnerChanged"),
                QStringList{QLatin1String(daemon)}, [this, daemon](const QDBusMessage&) {
                    retries_ = 0;
                    if (daemon == fcitxName)
                        dropFcitx();
                    else
                        dropIBus();
                    findDaemons(doNotWait);
                }));
        signals_.push_back(
            std::make_unique<DBusSignal>(bus_, QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                QStringList(), [this](const QDBusMessage&) { takeFcitx(false, doNotWait); }));
        findDaemons(std::chrono::steady_clock::now() + startWait);
    }
    announce(bestBackend());
    notifiedSources_ = backend_->sources();
    notifiedSelection_ = backend_->current();
}

DesktopInputSources::~DesktopInputSources() = default;

std::optional<InputSourceProperties> DesktopInputSources::current()
{
    const auto id = backend_->current();
    if (!id)
        return {};
    const auto& sources = backend_->sources();
    const auto found = std::find_if(sources.begin(), sources.end(),
        [&](const InputSource& source) { return source.id == *id; });
    return (found == sources.end() ? InputSource{*id, *id} : *found).properties();
}

std::optional<std::vector<InputSourceProperties>> DesktopInputSources::list(
    const InputSourceFilter& filter)
{
    if (!backend_->isUsable())
        return {};
    std::vector<InputSourceProperties> found;
    for (const auto& source : backend_->sources())
        if (source.matches(filter))
            found.push_back(source.properties());
    return found;
}

int DesktopInputSources::select(const InputSourceProperties& source)
{
    const auto id = source.id.value_or("");
    const auto before = backend_->current();
    const auto status = backend_->select(id);
    if (status == SelectionStatus::done) {
        causes_.selected(id, before, std::chrono::steady_clock::now());
        presses_.await();
    }
    settleSoon_.start();
    return static_cast<int>(status);
}

Subscription DesktopInputSources::observeSelectionChanges(SelectionHandler handler)
{
    if (selectionObservers_.isEmpty()) {
        // What has changed while nobody observed is nobody's choice.
        if (fcitx_)
            fcitx_->resume();
        notifiedSelection_ = backend_->current();
    }
    return selectionObservers_.add(std::move(handler));
}

std::string DesktopInputSources::whyUndone() { return undoingReason(connection_); }

Subscription DesktopInputSources::observeEnabledSourcesChanges(std::function<void()> handler)
{
    return enabledSourcesObservers_.add(std::move(handler));
}

void DesktopInputSources::findDaemons(DBusDeadline deadline)
{
    const auto hasOwner = [this](const char* daemon) {
        auto request = QDBusMessage::createMethodCall(QLatin1String(busName),
            QLatin1String(busPath), QLatin1String(busName), QStringLiteral("NameHasOwner"));
        request.setArguments({QLatin1String(daemon)});
        return bus_.asyncCall(request, callLimitMilliseconds);
    };
    const auto isYes = [](const QDBusMessage& reply) {
        return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()
            && reply.arguments().first().toBool();
    };
    const auto ibus = hasOwner(ibusName);
    onReply(hasOwner(fcitxName), deadline, &context_,
        [this, ibus, isYes, deadline](const QDBusMessage& fcitxReply) {
            takeFcitx(isYes(fcitxReply), deadline);
            onReply(
                ibus, deadline, &context_, [this, isYes, deadline](const QDBusMessage& ibusReply) {
                    // Fcitx 5 owns this name too, for programs that speak to IBus.
                    takeIBus(isYes(ibusReply) && !isFcitxRunning_, deadline);
                });
        });
}

void DesktopInputSources::takeFcitx(bool isRunning, DBusDeadline deadline)
{
    isFcitxRunning_ = isRunning;
    if (!isRunning) {
        dropFcitx();
    } else if (!fcitx_ || !fcitx_->hasReplied()) {
        dropFcitx();
        fcitx_ = std::make_unique<Fcitx5InputSources>(
            bus_, connection_, registry_, [this] { return !selectionObservers_.isEmpty(); },
            deadline);
        fcitxChanges_ = fcitx_->observe([this](SelectionCause hint) { changed(hint); });
    }
    settleSoon_.start();
}

void DesktopInputSources::takeIBus(bool isRunning, DBusDeadline deadline)
{
    isIBusRunning_ = isRunning;
    if (!isRunning) {
        dropIBus();
    } else if (!ibus_ || !ibus_->hasReplied()) {
        dropIBus();
        ibus_ = std::make_unique<IBusInputSources>(xkb_, bus_, deadline);
        ibusChanges_ = ibus_->observe([this](SelectionCause hint) { changed(hint); });
    }
    settleSoon_.start();
}

void DesktopInputSources::dropFcitx()
{
    leave(fcitx_.get());
    fcitxChanges_.reset();
    fcitx_.reset();
    settleSoon_.start();
}

void DesktopInputSources::dropIBus()
{
    leave(ibus_.get());
    ibusChanges_.reset();
    ibus_.reset();
    settleSoon_.start();
}

void DesktopInputSources::leave(const InputSourceBackend* backend)
{
    if (!backend || backend != backend_)
        return;
    Log::warn(std::string(backend->name()) + " has gone", logCategory::inputMethod);
    backend_ = &xkb_;
}

InputSourceBackend& DesktopInputSources::bestBackend()
{
    if (fcitx_ && fcitx_->isUsable())
        return *fcitx_;
    if (ibus_ && ibus_->isUsable())
        return *ibus_;
    return xkb_;
}

void DesktopInputSources::tryAgainLater()
{
    std::string problem;
    if (fcitx_ && !fcitx_->hasReplied() && !fcitx_->problem().empty())
        problem = "Fcitx 5 cannot be used: " + fcitx_->problem();
    else if (ibus_ && !ibus_->hasReplied() && !ibus_->problem().empty())
        problem = "IBus cannot be used: " + ibus_->problem();
    if (problem.empty() || retry_.isActive())
        return;
    if (std::exchange(lastProblem_, problem) != problem)
        Log::warn(problem, logCategory::inputMethod);
    retry_.start(retryDelays[std::min(retries_, retryDelays.size() - 1)]);
    ++retries_;
}

void DesktopInputSources::changed(SelectionCause hint)
{
    if (hint != SelectionCause::choice)
        hint_ = hint;
    // What a daemon notifies of may have come of a press that has arrived meanwhile.
    presses_.catchUp();
    settleSoon_.start();
}

void DesktopInputSources::settle()
{
    // Its connection may end before the bus notifies that its name has no owner any more.
    if (ibus_ && !ibus_->hasReplied())
        leave(ibus_.get());
    announce(bestBackend());
    tryAgainLater();
    const bool areOthers = hasOtherSources();
    if (areOthers) {
        notifiedSources_ = backend_->sources();
        enabledSourcesObservers_.notify();
    }
    notifyOfSelection(areOthers ? SelectionCause::place : SelectionCause::choice);
}

void DesktopInputSources::announce(InputSourceBackend& backend)
{
    backend_ = &backend;
    if (std::exchange(announced_, backend.name()) != backend.name())
        Log::info(
            "Input sources come from " + std::string(backend.name()), logCategory::inputMethod);
}

bool DesktopInputSources::hasOtherSources() const
{
    return backend_->isUsable() && backend_->sources() != notifiedSources_;
}

void DesktopInputSources::notifyOfSelection(SelectionCause hint)
{
    const auto current = backend_->current();
    // The backend may just have learned more.
    const auto known = std::exchange(hint_, SelectionCause::choice);
    if (!current || (current == notifiedSelection_ && !causes_.isLost(*current)))
        return;
    notifiedSelection_ = current;
    const auto cause = causes_.changed(
        *current, known == SelectionCause::choice ? hint : known, std::chrono::steady_clock::now());
    if (cause != SelectionCause::choice) {
        notifyOnceCalm(cause);
        return;
    }
    calm_.stop();
    unnotified_ = SelectionCause::choice;
    selectionObservers_.notify(cause);
}

void DesktopInputSources::notifyOnceCalm(SelectionCause cause)
{
    if (unnotified_ != SelectionCause::undoing)
        unnotified_ = cause;
    calm_.start();
}

} // namespace brindlex
