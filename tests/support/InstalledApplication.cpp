#include "support/InstalledApplication.h"

namespace brindlex {

std::string identifierOf(const std::string& className) { return "com.example." + className; }

std::string installApplication(const VirtualDesktop& desktop, const std::string& className)
{
    const auto identifier = identifierOf(className);
    const auto folder = desktop.dataFolder() / "applications";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    write(folder / (identifier + ".desktop"),
        "[Desktop Entry]\nType=Application\nName=" + className
            + "\nExec=xterm\nStartupWMClass=" + className + "\n");
    return identifier;
}

} // namespace brindlex
