#include "platform/linux/input/X11KeyboardMap.h"

#include <memory>

#include <X11/XKBlib.h>

namespace brindlex {
namespace {

struct CloseDisplay {
    void operator()(Display* display) const { XCloseDisplay(display); }
};

struct FreeKeyboard {
    void operator()(XkbDescPtr keyboard) const
    {
        XkbFreeKeyboard(keyboard, XkbAllComponentsMask, True);
    }
};

/// All names but that of the geometry, which only pictures need.
constexpr unsigned copiedNames = XkbKeycodesNameMask | XkbSymbolsNameMask | XkbTypesNameMask
    | XkbCompatNameMask | XkbKeyTypeNamesMask | XkbKTLevelNamesMask | XkbIndicatorNamesMask
    | XkbKeyNamesMask | XkbKeyAliasesMask | XkbVirtualModNamesMask | XkbGroupNamesMask;

/// A device that has gone in between is none of our business.
int ignoreError(Display*, XErrorEvent*) { return 0; }

} // namespace

bool copyKeyboardMap(const std::string& name, std::uint16_t from, std::uint16_t to)
{
    const std::unique_ptr<Display, CloseDisplay> server(
        XOpenDisplay(name.empty() ? nullptr : name.c_str()));
    if (!server)
        return false;
    auto* const display = server.get();
    const auto previous = XSetErrorHandler(ignoreError);
    const std::unique_ptr<XkbDescRec, FreeKeyboard> map(
        XkbGetMap(display, XkbAllMapComponentsMask, from));
    bool isDone = map && XkbGetNames(display, XkbAllNamesMask, map.get()) == Success
        && XkbGetCompatMap(display, XkbAllCompatMask, map.get()) == Success
        && XkbGetIndicatorMap(display, XkbAllIndicatorsMask, map.get()) == Success;
    if (isDone) {
        map->device_spec = to;
        isDone = XkbSetCompatMap(display, XkbAllCompatMask, map.get(), False)
            && XkbSetMap(display, XkbAllMapComponentsMask, map.get())
            && XkbSetIndicatorMap(display, ~0UL, map.get())
            && XkbSetNames(display, copiedNames, 0, map->map->num_types, map.get());
        XkbStateRec state{};
        if (XkbGetState(display, from, &state) == Success)
            XkbLockGroup(display, to, state.locked_group);
    }
    XSync(display, False);
    XSetErrorHandler(previous);
    return isDone;
}

} // namespace brindlex
