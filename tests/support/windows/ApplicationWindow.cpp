#include "support/windows/ApplicationWindow.h"

#include <utility>

namespace brindlex {

ApplicationWindow::ApplicationWindow(const XConnection& server, const Description& description)
    : server_(server), id_(xcb_generate_id(server.get()))
{
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, id_, server.root(), 50, 50, 300, 200, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, server.screen().root_visual, 0, nullptr);
    if (!description.instance.empty() || !description.className.empty())
        setText("WM_CLASS", "STRING", description.instance + '\0' + description.className + '\0');
    if (description.process)
        setValues("_NET_WM_PID", "CARDINAL", {*description.process});
    if (!description.machine.empty())
        setText("WM_CLIENT_MACHINE", "STRING", description.machine);
    if (!description.title.empty())
        setText("_NET_WM_NAME", "UTF8_STRING", description.title);
    server_.sync();
}

ApplicationWindow::~ApplicationWindow() { vanish(); }

void ApplicationWindow::show() const
{
    xcb_map_window(server_.get(), id_);
    server_.sync();
}

void ApplicationWindow::vanish()
{
    if (!std::exchange(exists_, false))
        return;
    xcb_destroy_window(server_.get(), id_);
    server_.sync();
}

void ApplicationWindow::setText(
    const std::string& property, const std::string& type, const std::string& bytes) const
{
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, id_, server_.atom(property),
        server_.atom(type), 8, static_cast<std::uint32_t>(bytes.size()), bytes.data());
    server_.sync();
}

void ApplicationWindow::setValues(const std::string& property, const std::string& type,
    const std::vector<std::uint32_t>& values) const
{
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, id_, server_.atom(property),
        server_.atom(type), 32, static_cast<std::uint32_t>(values.size()), values.data());
    server_.sync();
}

} // namespace brindlex
