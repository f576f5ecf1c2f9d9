#include "shell/AuxiliaryWindowPresenter.h"

#include "shell/WindowScenes.h"

#include <utility>

namespace brindlex {

AuxiliaryWindowPresenter::AuxiliaryWindowPresenter(
    ProgramWindows& windows, MainThread& mainThread, std::function<void()> reapplyDockPolicy)
    : windows_(windows), mainThread_(mainThread), reapplyDockPolicy_(std::move(reapplyDockPolicy)),
      windowClosing_(windows.observeWillClose(
          [this](const std::string& scene, ProgramWindow) { noteClosing(scene); }))
{
}

void AuxiliaryWindowPresenter::present(const std::string& id)
{
    auto& task = pending_.try_emplace(id, mainThread_).first->second;
    task.cancel();
    if (!windows_.window(id))
        windows_.open(id);
    if (!bringForward(id))
        task.start(showDelays, [this, id] { return !bringForward(id); });
}

bool AuxiliaryWindowPresenter::bringForward(const std::string& id)
{
    const auto window = windows_.window(id);
    return window && windows_.bringForward(*window);
}

void AuxiliaryWindowPresenter::noteClosing(const std::string& id)
{
    if (!isAuxiliaryScene(id))
        return;
    if (const auto task = pending_.find(id); task != pending_.end())
        task->second.cancel();
    reapplyDockPolicy_();
}

} // namespace brindlex
