#include "support/screen/XConnection.h"

#include <cstdlib>
#include <cstring>

namespace brindlex {

void FreeReply::operator()(void* reply) const { std::free(reply); }

XConnection::XConnection() : connection_(xcb_connect(nullptr, nullptr)) { }

XConnection::~XConnection() { xcb_disconnect(connection_); }

bool XConnection::isOpen() const { return xcb_connection_has_error(connection_) == 0; }

const xcb_screen_t& XConnection::screen() const
{
    return *xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

xcb_atom_t XConnection::atom(const std::string& name) const
{
    const auto cookie
        = xcb_intern_atom(connection_, false, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint8_t> XConnection::property(
    xcb_window_t window, const std::string& name, std::uint8_t format) const
{
    const auto cookie = xcb_get_property(
        connection_, false, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1 << 16);
    const XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_, cookie, nullptr));
    if (!reply || reply->format != format)
        return {};
    const auto bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return {bytes, bytes + xcb_get_property_value_length(reply.get())};
}

std::vector<std::uint32_t> XConnection::values(
    xcb_window_t window, const std::string& property) const
{
    const auto bytes = this->property(window, property, 32);
    std::vector<std::uint32_t> values(bytes.size() / sizeof(std::uint32_t));
    if (!values.empty())
        std::memcpy(values.data(), bytes.data(), values.size() * sizeof(std::uint32_t));
    return values;
}

std::string XConnection::text(xcb_window_t window, const std::string& property) const
{
    const auto bytes = this->property(window, property, 8);
    return {bytes.begin(), bytes.end()};
}

void XConnection::ask(
    xcb_window_t window, const std::string& type, const std::vector<std::uint32_t>& data) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    for (std::size_t index = 0; index < data.size() && index < 5; ++index)
        message.data.data32[index] = data[index];
    xcb_send_event(connection_, false, root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&message));
    sync();
}

void XConnection::manage(const std::string& selection, xcb_window_t window) const
{
    xcb_set_selection_owner(connection_, window, atom(selection), XCB_CURRENT_TIME);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = root();
    message.type = atom("MANAGER");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = atom(selection);
    message.data.data32[2] = window;
    xcb_send_event(connection_, false, root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&message));
    sync();
}

void XConnection::sync() const
{
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

} // namespace brindlex
