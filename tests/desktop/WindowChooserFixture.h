#pragma once

#include "desktop/PlayedHand.h"
#include "support/hardware/Keycodes.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The rows of the list, as a user sees them.
inline constexpr int rowHeight = 44;
inline constexpr int padding = 10;

/// A desktop without an overview, on which the middle button asks for one.
class WindowChooser : public testing::Test {
protected:
    WindowChooser()
    {
        auto config = everything();
        config.click.bindings
            = {brindlex::click(MouseButton::button3, {}, MouseAction::Plain::missionControl)};
        desk.start(config);
    }

    /// Opens a window and leaves it the active one.
    const PlainWindow& open(const std::string& title, const std::string& className = "Editor")
    {
        opened.push_back(std::make_unique<PlainWindow>(
            desk.server, PlainWindow::Claims{.wmClass = wmClass(className), .title = title}));
        EXPECT_TRUE(desk.windows.activate(opened.back()->window()));
        return *opened.back();
    }

    std::optional<xcb_window_t> list() const
    {
        const auto own = desk.windows.unmanagedOf(desk.program->process());
        return own.empty() ? std::nullopt : std::optional(own.front());
    }

    /// Asks for the list and waits until it has the keys.
    testing::AssertionResult opens()
    {
        desk.mouse.click(middleButton);
        if (!eventually([&] { return list().has_value(); }))
            return testing::AssertionFailure() << desk.program->report();
        desk.settle();
        return testing::AssertionSuccess();
    }

    bool isGone() const
    {
        return eventually([&] { return !list(); });
    }
    bool isActive(const PlainWindow& window) const
    {
        return eventually([&] { return desk.windows.active() == window.window(); });
    }

    MouseDesk desk;
    PlayedHand hand{desk};
    std::vector<std::unique_ptr<PlainWindow>> opened;
};

} // namespace brindlex
