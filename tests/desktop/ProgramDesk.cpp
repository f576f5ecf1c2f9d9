#include "desktop/ProgramDesk.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto longEnough = 400ms;

void installApplication(const VirtualDesktop& desktop, const std::string& className)
{
    const auto folder = desktop.dataFolder() / "applications";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    write(folder / (identifierOf(className) + ".desktop"),
        "[Desktop Entry]\nType=Application\nName=" + className
            + "\nExec=xterm\nStartupWMClass=" + className + "\n");
}

} // namespace

const VirtualDesktop::Options ProgramDesk::usual{.keyboardLayouts = "us,de,ru"};

std::string identifierOf(const std::string& className) { return "com.example." + className; }

ProgramDesk::ProgramDesk(const VirtualDesktop::Options& options)
    : desktop(options), windows(server), input(server), files(desktop)
{
    for (const auto className : {"Alpha", "Beta", "Gamma"})
        installApplication(desktop, className);
}

bool ProgramDesk::usesGroup(int group) const
{
    return eventually([&] { return keyboardGroup(server) == group; });
}

bool ProgramDesk::keepsGroup(int group) const
{
    return throughout(longEnough, [&] { return keyboardGroup(server) == group; });
}

} // namespace brindlex
