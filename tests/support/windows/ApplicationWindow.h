#pragma once

#include "support/screen/XConnection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A window that says of itself what a test wants.
class ApplicationWindow {
public:
    struct Description {
        std::string instance{};
        std::string className{};
        std::optional<std::uint32_t> process{};
        std::string machine{};
        std::string title{};
    };

    ApplicationWindow(const XConnection& server, const Description& description);
    ~ApplicationWindow();
    ApplicationWindow(const ApplicationWindow&) = delete;
    ApplicationWindow& operator=(const ApplicationWindow&) = delete;

    xcb_window_t id() const { return id_; }

    void show() const;
    /// Destroys the window; may be repeated.
    void vanish();

    void setText(
        const std::string& property, const std::string& type, const std::string& bytes) const;
    void setValues(const std::string& property, const std::string& type,
        const std::vector<std::uint32_t>& values) const;

private:
    const XConnection& server_;
    xcb_window_t id_;
    bool exists_ = true;
};

} // namespace brindlex
