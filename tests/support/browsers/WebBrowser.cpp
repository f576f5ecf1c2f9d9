#include "support/browsers/ChromiumBrowser.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> commandFor(const VirtualDesktop& desktop, const LocalWebServer& web)
{
    const auto place = " 127.0.0.1:" + std::to_string(web.port());
    return {"chromium", "--user-data-dir=" + (desktop.home() / "chromium").string(),
        "--host-resolver-rules=MAP *.example.com" + place + ",MAP *.example.org" + place
            + ",MAP * ~NOTFOUND",
        // Root, as in a container, has no sandbox to start.
        "--no-sandbox", "--test-type", "--no-first-run", "--no-default-browser-check",
        "--disable-gpu", "--disable-dev-shm-usage", "--disable-quic", "--disable-sync",
        "--disable-background-networking", "--disable-component-update", "--password-store=basic",
        "--disable-features=HttpsUpgrades,HttpsFirstBalancedModeAutoEnable,Translate"};
}

std::vector<std::string> withPage(std::vector<std::string> command, const std::string& host)
{
    command.push_back("http://" + host + "/");
    return command;
}

} // namespace

ChromiumBrowser::ChromiumBrowser(const VirtualDesktop& desktop, const DesktopWindows& windows,
    const LocalWebServer& web, const std::string& host)
    : windows_(windows), command_(commandFor(desktop, web)),
      browser_({.command = withPage(command_, host), .output = desktop.outputFolder() / "chromium"})
{
    const auto hasWindow = [&] {
        for (const auto window : windows_.managed())
            if (windows_.titleOf(window).starts_with(host))
                window_ = window;
        return window_ != XCB_WINDOW_NONE;
    };
    if (!eventually(hasWindow, 60s))
        fatalError("Chromium did not open.\n" + browser_.output());
}

bool ChromiumBrowser::open(const std::string& host)
{
    // A second start with the same profile hands the page to the browser that runs and ends.
    return run({.command = withPage(command_, host)}, 30s) == ProcessEnd{0, {}} && shows(host);
}

bool ChromiumBrowser::shows(const std::string& host) const
{
    return eventually([&] { return windows_.titleOf(window_).starts_with(host); }, 30s);
}

} // namespace brindlex
