#include "platform/simulated/SimulatedAppGroupContainer.h"

#include <system_error>
#include <utility>

namespace brindlex {

SimulatedAppGroupContainer::SimulatedAppGroupContainer(
    std::optional<std::filesystem::path> folder, SimulatedJournal::Writer journal)
    : journal_(journal), folder_(std::move(folder))
{
}

std::optional<std::filesystem::path> SimulatedAppGroupContainer::appGroupContainerURL()
{
    journal_.add("container");
    const std::lock_guard guard(mutex_);
    if (!folder_)
        return {};
    std::error_code ignored;
    std::filesystem::create_directories(*folder_, ignored);
    if (!std::filesystem::is_directory(*folder_, ignored))
        return {};
    return folder_;
}

void SimulatedAppGroupContainer::setFolder(std::optional<std::filesystem::path> folder)
{
    const std::lock_guard guard(mutex_);
    folder_ = std::move(folder);
}

} // namespace brindlex
