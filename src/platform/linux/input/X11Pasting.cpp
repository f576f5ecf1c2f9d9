#include "platform/linux/input/X11Pasting.h"

#include "platform/PasteKeystroke.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <utility>

namespace brindlex {

X11Pasting::X11Pasting(
    X11Connection& connection, EventPosting& posting, SharingWithMouse shareWithMouse)
    : connection_(connection), posting_(posting), shareWithMouse_(std::move(shareWithMouse))
{
}

void X11Pasting::postPaste()
{
    const auto way = this->way();
    if (!way.isOfMouseSelection)
        return post(way);
    shareWithMouse_([this, way, alive = lifetime_.watch()] {
        if (!alive.expired())
            post(way);
    });
}

PasteWay X11Pasting::way() const
{
    const auto description = describe(connection_, {activeWindow(connection_)}).front();
    return description ? pasteWayOf(description->instance, description->className)
                       : pasteWayOf({}, {});
}

void X11Pasting::post(const PasteWay& way)
{
    for (const auto& event : pasteKeystroke(way.keyCode, way.flags))
        posting_.post(event);
}

} // namespace brindlex
