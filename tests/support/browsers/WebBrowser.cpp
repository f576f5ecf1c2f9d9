#include "support/browsers/WebBrowser.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/browsers/BrowserProfiles.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> chromiumFor(const VirtualDesktop& desktop, const LocalWebServer& web)
{
    const auto place = " 127.0.0.1:" + std::to_string(web.port());
    auto command = chromiumCommand(desktop);
    command.push_back("--host-resolver-rules=MAP *.example.com" + place + ",MAP *.example.org"
        + place + ",MAP * ~NOTFOUND");
    return command;
}

std::vector<std::string> firefoxFor(const VirtualDesktop& desktop, const LocalWebServer& web)
{
    return firefoxCommand(desktop,
        "user_pref('dom.security.https_first', false);\n"
        "user_pref('network.proxy.type', 1);\n"
        "user_pref('network.proxy.http', '127.0.0.1');\n"
        "user_pref('network.proxy.http_port', "
            + std::to_string(web.port()) + ");\n");
}

std::vector<std::string> withPage(std::vector<std::string> command, const std::string& host)
{
    command.push_back("http://" + host + "/");
    return command;
}

} // namespace

WebBrowser::WebBrowser(const VirtualDesktop& desktop, const DesktopWindows& windows,
    const LocalWebServer& web, const std::string& program, const std::string& host)
    : windows_(windows),
      command_(program == "firefox" ? firefoxFor(desktop, web) : chromiumFor(desktop, web)),
      browser_({.command = withPage(command_, host), .output = desktop.outputFolder() / program})
{
    const auto hasWindow = [&] {
        for (const auto window : windows_.managed())
            if (windows_.titleOf(window).starts_with(host))
                window_ = window;
        return window_ != XCB_WINDOW_NONE;
    };
    if (!eventually(hasWindow, 60s))
        fatalError("The browser did not open.\n" + browser_.output());
}

bool WebBrowser::open(const std::string& host)
{
    // A second start with the same profile hands the page to the browser that runs and ends.
    return run({.command = withPage(command_, host)}, 30s) == ProcessEnd{0, {}} && shows(host);
}

bool WebBrowser::takesKeys(const PlayedInput& hand) const
{
    const auto before = windows_.titleOf(window_);
    return eventually([&] {
        hand.type("a");
        return windows_.titleOf(window_) != before;
    });
}

bool WebBrowser::shows(const std::string& host) const
{
    return eventually([&] { return windows_.titleOf(window_).starts_with(host); }, 30s);
}

} // namespace brindlex
