#pragma once

#include "platform/MainThread.h"
#include "platform/OverlayPanel.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// A panel in memory: what is on it, and what it was told.
class SimulatedOverlayPanel : public OverlayPanel {
public:
    static constexpr Seconds fadeOutTime = 0.25;

    explicit SimulatedOverlayPanel(MainThread& mainThread) : mainThread_(mainThread) { }

    void show(const std::string& text) override
    {
        fade_.reset();
        text_ = text;
        calls_.push_back("show " + text);
    }

    void fadeOut() override
    {
        calls_.push_back("fadeOut");
        if (text_ && !isFading())
            fade_ = mainThread_.after(fadeOutTime, [this] {
                fade_.reset();
                text_.reset();
            });
    }

    /// What is on the screen, until the end of its fading; nothing when the panel is off it.
    const std::optional<std::string>& text() const { return text_; }
    bool isFading() const { return fade_.isActive(); }

    /// "show <text>" and "fadeOut", in the order of the calls.
    const std::vector<std::string>& calls() const { return calls_; }

private:
    MainThread& mainThread_;
    std::optional<std::string> text_;
    Subscription fade_;
    std::vector<std::string> calls_;
};

} // namespace brindlex
