#pragma once

#include "foundation/Subscribers.h"
#include "platform/MainThread.h"
#include "platform/ProgramWindows.h"
#include "platform/simulated/SimulatedJournal.h"
#include "platform/simulated/SimulatedProgramActivation.h"

#include <map>
#include <set>

namespace brindlex {

/// Windows in memory, of which one at the most is in front, on a desktop that is as slow as a test
/// wants.
class SimulatedProgramWindows : public ProgramWindows {
public:
    SimulatedProgramWindows(MainThread& mainThread, SimulatedProgramActivation& activation,
        SimulatedJournal::Writer journal = {})
        : mainThread_(mainThread), activation_(activation), journal_(journal)
    {
    }

    void addScene(const std::string& scene) { scenes_.insert(scene); }

    bool hasScene(const std::string& scene) const override { return scenes_.contains(scene); }
    std::optional<ProgramWindow> window(const std::string& scene) const override;
    /// The window opens behind the others.
    void open(const std::string& scene) override;
    bool bringForward(ProgramWindow window) override;
    bool isVisible(ProgramWindow window) const override;
    Subscription observeDidOpen(Handler handler) override;
    Subscription observeWillClose(Handler handler) override;

    /// Whether it is visible and has the keys.
    bool isInFront(ProgramWindow window) const { return isVisible(window) && key_ == window; }

    /// The user closes the window.
    void close(ProgramWindow window);
    /// The user minimises the window.
    void minimise(ProgramWindow window);
    /// The user works in another program.
    void goElsewhere();

    /// From now on a window that is to come to the front does so this much later, if ever.
    void setDelay(std::optional<Seconds> delay) { delay_ = delay; }

private:
    struct Open {
        std::string scene{};
        bool isMinimised = false;
    };

    void makeKey(ProgramWindow window);

    MainThread& mainThread_;
    SimulatedProgramActivation& activation_;
    SimulatedJournal::Writer journal_;
    std::set<std::string> scenes_;
    std::map<ProgramWindow, Open> windows_;
    std::optional<ProgramWindow> key_;
    std::uint64_t opened_ = 0;
    std::optional<Seconds> delay_ = 0;
    Subscription coming_;
    Subscribers<Handler> didOpen_;
    Subscribers<Handler> willClose_;
};

} // namespace brindlex
