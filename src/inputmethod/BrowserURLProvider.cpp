#include "inputmethod/BrowserURLProvider.h"

#include "inputmethod/NormalizedDomain.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

/// The family of a browser decides what it calls its current tab.
enum class BrowserKind { safari, chromium };

struct Browser {
    std::string_view bundleID;
    BrowserKind kind;
};

constexpr std::array browsers{
    Browser{"com.apple.Safari", BrowserKind::safari},
    Browser{"com.apple.SafariTechnologyPreview", BrowserKind::safari},
    Browser{"com.google.Chrome", BrowserKind::chromium},
    Browser{"com.google.Chrome.canary", BrowserKind::chromium},
    Browser{"com.microsoft.edgemac", BrowserKind::chromium},
    Browser{"com.microsoft.edgemac.Canary", BrowserKind::chromium},
    Browser{"com.brave.Browser", BrowserKind::chromium},
    Browser{"com.brave.Browser.beta", BrowserKind::chromium},
    Browser{"com.operasoftware.Opera", BrowserKind::chromium},
    Browser{"company.thebrowser.Browser", BrowserKind::chromium},
    Browser{"org.chromium.Chromium", BrowserKind::chromium},
    Browser{"org.mozilla.firefox", BrowserKind::chromium},
};

std::optional<BrowserKind> kindOf(std::string_view bundleID)
{
    const auto found = std::ranges::find(browsers, bundleID, &Browser::bundleID);
    if (found == browsers.end())
        return {};
    return found->kind;
}

} // namespace

bool BrowserURLProvider::isSupported(std::string_view bundleID)
{
    return kindOf(bundleID).has_value();
}

std::optional<std::string> BrowserURLProvider::script(std::string_view bundleID)
{
    const auto kind = kindOf(bundleID);
    if (!kind)
        return {};
    const std::string tab = *kind == BrowserKind::safari ? "current tab" : "active tab";
    return "tell application id \"" + std::string(bundleID) + "\"\n"
        + "    if (count of windows) is 0 then return \"\"\n" + "    return URL of " + tab
        + " of front window\n" + "end tell";
}

std::optional<std::string> BrowserURLProvider::currentHost(
    const std::optional<std::string>& bundleID, BrowserPageReading& pages)
{
    if (!bundleID)
        return {};
    const auto question = script(*bundleID);
    if (!question)
        return {};
    const auto url = pages.currentURL(*bundleID, *question);
    if (!url)
        return {};
    return normalizedDomain(*url);
}

} // namespace brindlex
