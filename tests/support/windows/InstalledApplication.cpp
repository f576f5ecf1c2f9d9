#include "support/windows/InstalledApplication.h"

namespace brindlex {

void installApplication(
    const VirtualDesktop& desktop, const std::string& identifier, const std::string& className)
{
    const auto folder = desktop.dataFolder() / "applications";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    write(folder / (identifier + ".desktop"),
        "[Desktop Entry]\nType=Application\nName=" + className
            + "\nExec=xterm\nStartupWMClass=" + className + "\n");
}

} // namespace brindlex
