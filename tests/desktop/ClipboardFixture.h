#pragma once

#include "desktop/MouseDesk.h"
#include "support/clipboard/SelectionOwner.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A desktop on which the program keeps what is copied.
class Clipboard : public testing::Test {
protected:
    explicit Clipboard(const VirtualDesktop::Options& options = {}) : desk(options)
    {
        desk.setPreference("AppleLanguages", nlohmann::json::array({"en"}));
        desk.start({});
    }

    /// An application copies it, and stays; waits until the history on disk has it.
    testing::AssertionResult copies(const std::string& text)
    {
        return copies(SelectionOwner::Offer{.contents = {{"UTF8_STRING", text}}}, text);
    }
    testing::AssertionResult copies(SelectionOwner::Offer offer, const std::string& kept)
    {
        owner.reset();
        owner = std::make_unique<SelectionOwner>(std::move(offer));
        if (eventually([&] { return index().find(kept) != std::string::npos; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << index() << desk.program->report();
    }

    std::filesystem::path folder() const
    {
        return desk.desktop.dataFolder() / "Brindlex/ClipboardHistory";
    }
    std::string index() const
    {
        std::ifstream file(folder() / "index.json");
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    std::optional<xcb_window_t> picker() const
    {
        const auto own = desk.windows.unmanagedOf(desk.program->process());
        return own.empty() ? std::nullopt : std::optional(own.front());
    }

    /// Presses the hotkey and waits until the picker stands there and has the keys.
    testing::AssertionResult opens()
    {
        chord({keycode::super, keycode::shift}, keyOf('v'));
        if (!eventually([&] { return picker().has_value(); }))
            return testing::AssertionFailure() << desk.program->report();
        desk.settle();
        return testing::AssertionSuccess();
    }
    /// Presses the hotkey until the picker comes: the program may be about to listen again.
    bool opensInTime()
    {
        return eventually([&] {
            chord({keycode::super, keycode::shift}, keyOf('v'));
            desk.settle();
            return picker().has_value();
        });
    }
    bool isGone() const
    {
        return eventually([&] { return !picker(); });
    }

    void chord(const std::vector<std::uint8_t>& modifiers, std::uint8_t key) const
    {
        for (const auto modifier : modifiers)
            desk.keyboard.press(modifier);
        desk.keyboard.settle();
        desk.keyboard.stroke(key);
        desk.keyboard.settle();
        for (const auto modifier : modifiers)
            desk.keyboard.release(modifier);
        desk.keyboard.settle();
    }
    void type(std::string_view text) const
    {
        for (const auto character : text)
            desk.keyboard.stroke(keyOf(character));
        desk.keyboard.settle();
    }

    MouseDesk desk;
    std::unique_ptr<SelectionOwner> owner;
};

} // namespace brindlex
