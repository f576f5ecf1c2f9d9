#include "support/windows/PrimarySelection.h"

#include "support/basics/Eventually.h"

namespace brindlex {

std::string primarySelection(const XConnection& server)
{
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        server.get(), xcb_get_selection_owner(server.get(), XCB_ATOM_PRIMARY), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return "nothing";
    const auto window = xcb_generate_id(server.get());
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(server.get(), window, XCB_ATOM_PRIMARY, XCB_ATOM_STRING,
        server.atom("BRINDLEX_TEXT"), XCB_CURRENT_TIME);
    server.sync();
    std::string selected;
    eventually(
        [&] {
            selected = server.text(window, "BRINDLEX_TEXT");
            return !selected.empty();
        },
        std::chrono::milliseconds(200));
    xcb_destroy_window(server.get(), window);
    // GTK 4 sends the end of the text, too.
    return selected.substr(0, selected.find('\0'));
}

} // namespace brindlex
