#pragma once

#include "foundation/Subscribers.h"
#include "platform/KeyablePanel.h"
#include "platform/MainThread.h"

#include <string>
#include <vector>

namespace brindlex {

/// A panel in memory, and what was asked of it. Main thread only.
class SimulatedKeyablePanel final : public KeyablePanel {
public:
    static constexpr Seconds fadeTime = 0.15;

    explicit SimulatedKeyablePanel(MainThread& mainThread) : mainThread_(mainThread) { }

    bool isVisible() const override { return isVisible_; }
    double alpha() const override { return alpha_; }
    void setAlpha(double alpha) override;
    Rect frame() const override { return frame_; }
    void setFrame(const Rect& frame) override;
    void orderFront() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;
    void displayIfNeeded() override;
    /// Half of the way is done at once, and the rest at the end.
    void fadeIn() override;
    Subscription observeDidResignKey(Handler handler) override;
    Subscription observePressOutside(Handler handler) override;

    bool isKey() const { return isKey_; }
    bool isFading() const { return fade_.isActive(); }
    /// Whether somebody wants to know of presses outside.
    bool isWatchingPresses() const { return !pressesOutside_.isEmpty(); }

    /// Another window takes the keys.
    void resignKey();
    /// The user presses a button of the mouse somewhere else.
    void pressOutside();

    /// What was asked so far, in order, such as "alpha 0" and "order out"; begins afresh.
    std::vector<std::string> takeCalls();

private:
    MainThread& mainThread_;
    bool isVisible_ = false;
    bool isKey_ = false;
    double alpha_ = 1;
    Rect frame_{};
    Subscription fade_;
    Subscribers<Handler> resignations_;
    Subscribers<Handler> pressesOutside_;
    std::vector<std::string> calls_;
};

} // namespace brindlex
