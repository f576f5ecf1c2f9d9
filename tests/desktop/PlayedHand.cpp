#include "desktop/PlayedHand.h"

#include <ranges>
#include <span>

namespace brindlex {

void PlayedHand::pointAt(int x, int y) const
{
    desk_.settle();
    xcb_warp_pointer(desk_.server.get(), XCB_WINDOW_NONE, desk_.server.root(), 0, 0, 0, 0,
        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
    desk_.server.sync();
    // What moves by itself from there begins where the pointer is.
    desk_.mouse.move(1, 0);
    desk_.mouse.move(-1, 0);
    desk_.settle();
}

void PlayedHand::drag(int button, int x, int y) const
{
    constexpr int steps = 10;
    desk_.mouse.press(button);
    waitUntilStill();
    for (int step = 0; step < steps; ++step) {
        desk_.mouse.move(double(x) / steps, double(y) / steps);
        waitUntilStill();
    }
    desk_.mouse.release(button);
}

void PlayedHand::click(int button, int times) const
{
    for (int time = 0; time < times; ++time) {
        desk_.mouse.click(button);
        // A terminal takes a press in the very millisecond of the release before for one that came
        // weeks later.
        waitUntilStill();
    }
}

void PlayedHand::stroke(std::uint8_t key) const
{
    desk_.keyboard.stroke(key);
    desk_.settle();
}

void PlayedHand::chord(const std::vector<std::uint8_t>& keys) const
{
    const std::span held(keys.begin(), keys.end() - 1);
    for (const auto key : held)
        desk_.keyboard.press(key);
    // A window manager whose grab comes after the keys are let go waits for that for ever.
    stroke(keys.back());
    for (const auto key : std::views::reverse(held))
        desk_.keyboard.release(key);
    desk_.settle();
}

void PlayedHand::waitUntilStill() const
{
    constexpr std::chrono::milliseconds moment{15};
    desk_.mouse.settle();
    eventually([&] { return staysTheSame(moment, [&] { return desk_.timesAtRest(); }); });
}

} // namespace brindlex
