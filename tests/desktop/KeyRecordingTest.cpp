#include "desktop/MouseDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"
#include "support/windows/AccessibleControls.h"
#include "support/windows/EventLogWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// As a virtual key code; the key T.
constexpr std::int64_t keyT = 17;
constexpr std::int64_t keyF5 = 96;

bool storesKey(const ProgramFiles& files, std::int64_t keyCode)
{
    const auto stored = "\"keyCode\":" + std::to_string(keyCode);
    return files.readRecord("mouseConfig").dump().find(stored) != std::string::npos;
}

TEST(KeyRecording, takesAKeyInFrontAndLeavesThoseOfOthersAlone)
{
    MouseDesk desk({.accessibility = true});
    const PlayedInput pointer(desk.server);
    MouseConfig config;
    config.click.bindings
        = {click(MouseButton::button3, {}, MouseAction::SendKeystroke{keyF5, {}})};
    desk.setPreference("selectedMainWindowTab", "Mouse");
    desk.setPreference("AppleLanguages", nlohmann::json::array({"en"}));
    desk.start(config);
    const AccessibleControls controls(desk.program->process());
    const RunningProgram again(desk.desktop, {});
    const auto recorder = controls.find("push button", "Custom Shortcut: F5");
    ASSERT_TRUE(recorder) << controls.report();
    const auto settings = desk.windows.active();
    pointer.click(recorder->centreX(), recorder->centreY());
    ASSERT_TRUE(controls.find("push button", "Custom Shortcut: Press a key")) << controls.report();

    EventLogWindow other("Other", {0, 0, 300, 200});
    ASSERT_TRUE(desk.windows.activate(other.id()));
    // The program has noticed.
    desk.settle();
    desk.keyboard.stroke(keycode::a);
    EXPECT_TRUE(desk.receives(other, {"key 38 down", "key 38 up"})) << desk.program->report();
    EXPECT_TRUE(storesKey(desk.files, keyF5));

    ASSERT_TRUE(desk.windows.activate(settings));
    desk.settle();
    desk.keyboard.stroke(keycode::t);
    EXPECT_TRUE(eventually([&] { return storesKey(desk.files, keyT); })) << desk.program->report();
    EXPECT_TRUE(controls.find("push button", "Custom Shortcut: T")) << controls.report();
}

} // namespace
} // namespace brindlex
