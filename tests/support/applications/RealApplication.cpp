#include "support/applications/RealApplication.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"
#include "support/browsers/BrowserProfiles.h"

#include <charconv>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// Browsers take their time on a busy machine.
constexpr auto timeToStart = 60s;

std::string page(const std::string& name, const std::string& content)
{
    return "<!DOCTYPE html><meta charset=utf-8><title>" + name + " x=0 y=0</title>"
        + "<style>* {margin: 0} a, p {display: block; width: 6000px; height: 6000px}</style>"
        + content + "<script>onscroll = () => document.title = '" + name
        + " x=' + Math.round(scrollX) + ' y=' + Math.round(scrollY);</script>";
}

std::filesystem::path writePages(const VirtualDesktop& desktop)
{
    const auto folder = desktop.home() / "pages";
    std::filesystem::create_directories(folder);
    write(folder / "one.html", page("one", "<a href=two.html></a>"));
    write(folder / "two.html", page("two", "<p></p>"));
    return folder / "one.html";
}

} // namespace

RealApplication::RealApplication(
    const VirtualDesktop& desktop, const DesktopWindows& windows, const Start& start)
    : windows_(windows), process_({.command = start.command,
                             .output = desktop.outputFolder() / "application",
                             .environment = start.environment})
{
    const auto hasWindow = [&] {
        for (const auto window : windows_.managed())
            if (windows_.titleOf(window).starts_with(start.titleBegins))
                window_ = window;
        return window_ != XCB_WINDOW_NONE;
    };
    if (!eventually(hasWindow, timeToStart) || !windows_.activate(window_))
        fatalError("The application did not open.\n" + process_.output());
}

std::optional<int> RealApplication::number(const std::string& name) const
{
    const auto text = title();
    const auto start = text.find(name + "=");
    if (start == std::string::npos)
        return {};
    int value = 0;
    const auto* const first = text.data() + start + name.size() + 1;
    const auto [end, error] = std::from_chars(first, text.data() + text.size(), value);
    return error == std::errc{} ? std::optional(value) : std::nullopt;
}

bool RealApplication::shows(const std::string& titleBegins) const
{
    return eventually([&] { return title().starts_with(titleBegins); });
}

RealApplication::Start toolkitWindow(const std::string& toolkit)
{
    return {.command = {"/usr/bin/python3", TOOLKIT_WINDOW, toolkit},
        .environment = {{"GSK_RENDERER", "cairo"}, {"QT_QPA_PLATFORM", "xcb"}},
        .titleBegins = "x=0 y=0"};
}

RealApplication::Start browserWindow(const VirtualDesktop& desktop, const std::string& browser)
{
    auto command = browser == "firefox" ? firefoxCommand(desktop) : chromiumCommand(desktop);
    command.push_back("file://" + writePages(desktop).string());
    return {.command = std::move(command), .environment = {}, .titleBegins = "one"};
}

} // namespace brindlex
