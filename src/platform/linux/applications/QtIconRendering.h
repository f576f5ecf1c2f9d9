#pragma once

#include "platform/IconRendering.h"
#include "platform/linux/applications/DesktopEntries.h"

namespace brindlex {

/// Icons drawn by Qt, from every format that it has a plugin for, SVG among them.
///
/// A picture keeps its proportions, in the middle of the icon. Files of more than 16 MiB are not
/// read. Of an application the desktop shows the icon that its entry names, from whatever theme has
/// it, else that of programs in general.
class QtIconRendering final : public IconRendering {
public:
    explicit QtIconRendering(const DesktopEntries& entries) : entries_(entries) { }

    std::optional<std::string> pictureInFile(const std::filesystem::path& file) override;
    std::optional<std::string> pictureOfApplication(const std::filesystem::path& bundle) override;

private:
    const DesktopEntries& entries_;
};

} // namespace brindlex
