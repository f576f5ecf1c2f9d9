#include "platform/linux/panels/QtProgramActivation.h"

#include "platform/linux/windows/WindowsServer.h"
#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

#include <utility>

namespace brindlex {
namespace {

/// Whether the X server gives the keys to a window of the program at this moment.
bool hasKeys()
{
    auto* const server = windowsServer();
    if (!server)
        return true;
    const X11Message<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    const auto* const setup = xcb_get_setup(server);
    return reply && (reply->focus & ~setup->resource_id_mask) == setup->resource_id_base;
}

} // namespace

QtProgramActivation::QtProgramActivation()
{
    QObject::connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, &context_, [this](auto state) {
            const bool isActive = state == Qt::ApplicationActive;
            if (std::exchange(wasActive_, isActive) && !isActive)
                resignObservers_.notify();
            else if (isActive)
                observers_.notify();
        });
}

bool QtProgramActivation::isActive() const
{
    // The focus may have left since the application has heard of it last.
    return QGuiApplication::applicationState() == Qt::ApplicationActive && hasKeys();
}

Subscription QtProgramActivation::observeDidBecomeActive(std::function<void()> handler)
{
    return observers_.add(std::move(handler));
}

Subscription QtProgramActivation::observeDidResignActive(std::function<void()> handler)
{
    return resignObservers_.add(std::move(handler));
}

} // namespace brindlex
