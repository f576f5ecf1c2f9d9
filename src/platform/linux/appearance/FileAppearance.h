#pragma once

#include "foundation/Observable.h"
#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/files/FollowedFile.h"

#include <filesystem>
#include <string_view>

namespace brindlex {

/// What a file of a desktop says of the appearance, followed while it changes. Files larger than
/// 256 kB say nothing. Main thread only.
class FileAppearance {
public:
    /// What a content says.
    using Reading = StatedAppearance (*)(std::string_view content);

    FileAppearance(const std::filesystem::path& file, Reading reading);

    const Observable<StatedAppearance>& current() const { return current_; }

private:
    Observable<StatedAppearance> current_{StatedAppearance{}};
    FollowedFile file_;
};

} // namespace brindlex
