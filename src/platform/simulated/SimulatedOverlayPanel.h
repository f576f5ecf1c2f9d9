#pragma once

#include "platform/MainThread.h"
#include "platform/OverlayPanel.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// A panel in memory: what is on it, and what was asked of it.
class SimulatedOverlayPanel : public OverlayPanel {
public:
    static constexpr Seconds fadeOutTime = 0.25;

    explicit SimulatedOverlayPanel(MainThread& mainThread, SimulatedJournal::Writer journal = {})
        : mainThread_(mainThread), journal_(journal)
    {
    }

    void show(const std::string& text) override
    {
        fade_.reset();
        text_ = text;
        note("show " + text);
    }

    void fadeOut() override
    {
        note("fadeOut");
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
    void note(const std::string& call)
    {
        journal_.add(call);
        calls_.push_back(call);
    }

    MainThread& mainThread_;
    SimulatedJournal::Writer journal_;
    std::optional<std::string> text_;
    Subscription fade_;
    std::vector<std::string> calls_;
};

} // namespace brindlex
