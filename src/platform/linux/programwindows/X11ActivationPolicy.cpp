#include "platform/linux/programwindows/X11ActivationPolicy.h"

#include "platform/linux/windows/WindowsServer.h"

#include <QEvent>
#include <QGuiApplication>

namespace brindlex {
namespace {

// The first and the fourth number of a `_NET_WM_STATE` message.
constexpr std::uint32_t removeState = 0;
constexpr std::uint32_t addState = 1;
constexpr std::uint32_t sourceIsApplication = 1;

bool isManaged(const QWindow& window)
{
    const auto type = window.type();
    const bool isPassing = type == Qt::Popup || type == Qt::ToolTip;
    return window.isTopLevel() && window.handle() && !isPassing
        && !window.flags().testFlag(Qt::X11BypassWindowManagerHint);
}

} // namespace

/// Sees each window of the program before the X server shows it.
class X11ActivationPolicy::OpeningWindows : public QObject {
public:
    explicit OpeningWindows(const X11ActivationPolicy& owner) : owner_(owner)
    {
        qGuiApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const window
            = event->type() == QEvent::Show ? qobject_cast<QWindow*>(object) : nullptr;
        if (window)
            owner_.prepare(*window);
        return false;
    }

private:
    const X11ActivationPolicy& owner_;
};

X11ActivationPolicy::X11ActivationPolicy(X11Connection& connection)
    : root_(connection.root()),
      state_(connection.atom("_NET_WM_STATE")), skipping_{connection.atom(
                                                              "_NET_WM_STATE_SKIP_TASKBAR"),
                                                    connection.atom("_NET_WM_STATE_SKIP_PAGER")},
      openingWindows_(std::make_unique<OpeningWindows>(*this))
{
}

X11ActivationPolicy::~X11ActivationPolicy() = default;

void X11ActivationPolicy::setActivationPolicy(ActivationPolicy policy)
{
    if (policy == policy_)
        return;
    policy_ = policy;
    for (auto* window : QGuiApplication::topLevelWindows())
        if (window->isVisible() && isManaged(*window))
            change(*window);
}

/// The window library keeps what stands there, and the window manager takes it over.
void X11ActivationPolicy::prepare(QWindow& window) const
{
    if (policy_ == ActivationPolicy::accessory && isManaged(window))
        xcb_change_property(windowsServer(), XCB_PROP_MODE_REPLACE,
            static_cast<xcb_window_t>(window.winId()), state_, XCB_ATOM_ATOM, 32,
            static_cast<std::uint32_t>(skipping_.size()), skipping_.data());
}

/// Of a window on the screen the window manager alone changes the state.
void X11ActivationPolicy::change(QWindow& window) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = state_;
    auto& data = message.data.data32;
    data[0] = policy_ == ActivationPolicy::accessory ? addState : removeState;
    data[1] = skipping_[0];
    data[2] = skipping_[1];
    data[3] = sourceIsApplication;
    constexpr auto mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    auto* const server = windowsServer();
    xcb_send_event(server, false, root_, mask, reinterpret_cast<const char*>(&message));
    xcb_flush(server);
}

} // namespace brindlex
