#pragma once

#include "platform/AppGroupContainer.h"

#include <array>
#include <atomic>

namespace brindlex {

/// A container in a folder of the file system.
///
/// The folder and what is missing above it are made for the user alone. A folder that belongs to
/// another user, that others may write to, or that is none at all is refused, with one ERROR line
/// for each kind of problem in the life of this object. One that the user may only read is handed
/// out all the same, as the folders in it may be writable, with one WARN line.
class PosixAppGroupContainer : public AppGroupContainer {
public:
    explicit PosixAppGroupContainer(std::filesystem::path folder);

    std::optional<std::filesystem::path> appGroupContainerURL() override;

private:
    enum class Problem { cannotBeHad, isNoFolder, isNotTheUsers, isOpenToOthers, isReadOnly };

    void refuse(Problem problem, const std::string& words);
    /// The folder, of which a line says when nothing can be written to it.
    std::filesystem::path usable();
    /// Whether the problem has not been logged yet; it counts as logged from now on.
    bool isNew(Problem problem);

    const std::filesystem::path folder_;
    std::array<std::atomic<bool>, 5> isLogged_{};
};

} // namespace brindlex
