#include "inputmethod/BrowserURLProvider.h"

#include "applications/Browsers.h"
#include "inputmethod/NormalizedDomain.h"

#include <algorithm>

namespace brindlex {
namespace {

const Browser* browserOf(std::string_view bundleID)
{
    const auto found = std::ranges::find(browsers(), bundleID, &Browser::bundleID);
    return found == browsers().end() ? nullptr : &*found;
}

} // namespace

bool BrowserURLProvider::isSupported(std::string_view bundleID)
{
    return browserOf(bundleID) != nullptr;
}

std::optional<std::string> BrowserURLProvider::script(std::string_view bundleID)
{
    const auto* browser = browserOf(bundleID);
    if (!browser || browser->kind == BrowserKind::unscripted)
        return {};
    const std::string tab = browser->kind == BrowserKind::safari ? "current tab" : "active tab";
    return "tell application id \"" + std::string(bundleID) + "\"\n"
        + "    if (count of windows) is 0 then return \"\"\n" + "    return URL of " + tab
        + " of front window\n" + "end tell";
}

std::optional<std::string> BrowserURLProvider::currentHost(
    const std::optional<std::string>& bundleID, BrowserPageReading& pages)
{
    if (!bundleID || !isSupported(*bundleID))
        return {};
    const auto url = pages.currentURL(*bundleID, script(*bundleID).value_or(""));
    if (!url)
        return {};
    return normalizedDomain(*url);
}

} // namespace brindlex
