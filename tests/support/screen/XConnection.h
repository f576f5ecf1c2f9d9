#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace brindlex {

/// A test's own connection to the X server that `DISPLAY` names.
///
/// A test looks on as another program would: what it asks about may be gone, so a question about a
/// missing window gives what one about a missing property does.
class XConnection {
public:
    XConnection();
    ~XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    xcb_connection_t* get() const { return connection_; }
    /// Whether the server replied; it may have gone since.
    bool isOpen() const;
    const xcb_screen_t& screen() const;
    xcb_window_t root() const { return screen().root; }

    xcb_atom_t atom(const std::string& name) const;

    /// The 32-bit values of a property; none when there is no such property.
    std::vector<std::uint32_t> values(xcb_window_t window, const std::string& property) const;
    /// The bytes of a property; empty when there is no such property.
    std::string text(xcb_window_t window, const std::string& property) const;

    /// Sends the window manager a client message about a window.
    void ask(
        xcb_window_t window, const std::string& type, const std::vector<std::uint32_t>& data) const;

    /// Makes the window the owner of a selection by which it manages something for all programs,
    /// and announces it to whoever waits for one.
    void manage(const std::string& selection, xcb_window_t window) const;

    /// Waits until the server has done all that was asked.
    void sync() const;

private:
    std::vector<std::uint8_t> property(
        xcb_window_t window, const std::string& name, std::uint8_t format) const;

    xcb_connection_t* connection_;
};

/// What the X library hands out to be freed.
struct FreeReply {
    void operator()(void* reply) const;
};
template <typename Reply>
using XReply = std::unique_ptr<Reply, FreeReply>;

} // namespace brindlex
