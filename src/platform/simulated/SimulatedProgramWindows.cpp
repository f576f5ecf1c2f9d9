#include "platform/simulated/SimulatedProgramWindows.h"

#include <utility>

namespace brindlex {

std::optional<ProgramWindow> SimulatedProgramWindows::window(const std::string& scene) const
{
    for (const auto& [window, description] : windows_)
        if (description.scene == scene)
            return window;
    return {};
}

void SimulatedProgramWindows::open(const std::string& scene)
{
    if (!hasScene(scene) || window(scene))
        return;
    journal_.add("open " + scene);
    const ProgramWindow window{++opened_};
    windows_.emplace(window, Open{scene});
    didOpen_.notify(scene, window);
}

bool SimulatedProgramWindows::bringForward(ProgramWindow window)
{
    const auto found = windows_.find(window);
    if (found == windows_.end())
        return false;
    journal_.add("bring forward " + found->second.scene);
    if (isInFront(window))
        return true;
    if (delay_ && *delay_ > 0)
        coming_ = mainThread_.after(*delay_, [this, window] { makeKey(window); });
    else if (delay_)
        makeKey(window);
    return isInFront(window);
}

bool SimulatedProgramWindows::isVisible(ProgramWindow window) const
{
    const auto found = windows_.find(window);
    return found != windows_.end() && !found->second.isMinimised;
}

Subscription SimulatedProgramWindows::observeDidOpen(Handler handler)
{
    return journal_.addObservation("windows that open", didOpen_.add(std::move(handler)));
}

Subscription SimulatedProgramWindows::observeWillClose(Handler handler)
{
    return journal_.addObservation("windows that close", willClose_.add(std::move(handler)));
}

void SimulatedProgramWindows::close(ProgramWindow window)
{
    const auto found = windows_.find(window);
    if (found == windows_.end())
        return;
    const auto scene = found->second.scene;
    windows_.erase(found);
    willClose_.notify(scene, window);
    if (key_ == window)
        goElsewhere();
}

void SimulatedProgramWindows::minimise(ProgramWindow window)
{
    windows_.at(window).isMinimised = true;
    if (key_ == window)
        goElsewhere();
}

void SimulatedProgramWindows::goElsewhere()
{
    key_.reset();
    activation_.resignActive();
}

void SimulatedProgramWindows::makeKey(ProgramWindow window)
{
    const auto found = windows_.find(window);
    if (found == windows_.end())
        return;
    found->second.isMinimised = false;
    key_ = window;
    if (!activation_.isActive())
        activation_.becomeActive();
}

} // namespace brindlex
