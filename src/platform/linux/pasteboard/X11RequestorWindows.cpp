#include "platform/linux/pasteboard/X11RequestorWindows.h"

#include <QTimer>

#include <chrono>

namespace brindlex {
namespace {

constexpr std::chrono::seconds grace{5};

} // namespace

xcb_window_t X11RequestorWindows::take()
{
    if (!free_.empty()) {
        const auto window = free_.back();
        free_.pop_back();
        return window;
    }
    auto* const server = connection_.get();
    const auto window = xcb_generate_id(server);
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, connection_.root(), -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    connection_.listenTo(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    return window;
}

void X11RequestorWindows::giveBack(xcb_window_t window, bool isFinished)
{
    if (isFinished) {
        free_.push_back(window);
        return;
    }
    QTimer::singleShot(grace, &context_, [this, window] {
        connection_.stopListeningTo(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
        xcb_destroy_window(connection_.get(), window);
        xcb_flush(connection_.get());
    });
}

} // namespace brindlex
