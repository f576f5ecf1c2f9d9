#include "platform/linux/applications/KnownApplications.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <string>

namespace brindlex {
namespace {

struct KnownApplication {
    std::string_view name;
    std::string_view identifier;
};

constexpr std::array knownApplications{
    KnownApplication{"google-chrome", "com.google.Chrome"},
    KnownApplication{"google-chrome-stable", "com.google.Chrome"},
    KnownApplication{"com.google.chrome", "com.google.Chrome"},
    KnownApplication{"google-chrome-canary", "com.google.Chrome.canary"},
    KnownApplication{"google-chrome-unstable", "com.google.Chrome.canary"},
    KnownApplication{"com.google.chromedev", "com.google.Chrome.canary"},
    KnownApplication{"com.google.chrome.canary", "com.google.Chrome.canary"},
    KnownApplication{"microsoft-edge", "com.microsoft.edgemac"},
    KnownApplication{"microsoft-edge-stable", "com.microsoft.edgemac"},
    KnownApplication{"com.microsoft.edge", "com.microsoft.edgemac"},
    KnownApplication{"microsoft-edge-canary", "com.microsoft.edgemac.Canary"},
    KnownApplication{"microsoft-edge-dev", "com.microsoft.edgemac.Canary"},
    KnownApplication{"com.microsoft.edgedev", "com.microsoft.edgemac.Canary"},
    KnownApplication{"brave-browser", "com.brave.Browser"},
    KnownApplication{"brave-browser-stable", "com.brave.Browser"},
    KnownApplication{"brave_brave", "com.brave.Browser"},
    KnownApplication{"com.brave.browser", "com.brave.Browser"},
    KnownApplication{"brave-browser-beta", "com.brave.Browser.beta"},
    KnownApplication{"com.brave.browser.beta", "com.brave.Browser.beta"},
    KnownApplication{"opera", "com.operasoftware.Opera"},
    KnownApplication{"opera-stable", "com.operasoftware.Opera"},
    KnownApplication{"opera_opera", "com.operasoftware.Opera"},
    KnownApplication{"com.opera.opera", "com.operasoftware.Opera"},
    KnownApplication{"chromium", "org.chromium.Chromium"},
    KnownApplication{"chromium-browser", "org.chromium.Chromium"},
    KnownApplication{"chromium_chromium", "org.chromium.Chromium"},
    KnownApplication{"org.chromium.chromium", "org.chromium.Chromium"},
    KnownApplication{"firefox", "org.mozilla.firefox"},
    KnownApplication{"firefox-esr", "org.mozilla.firefox"},
    KnownApplication{"firefox_firefox", "org.mozilla.firefox"},
    KnownApplication{"org.mozilla.firefox", "org.mozilla.firefox"},
};

} // namespace

std::optional<std::string_view> knownIdentifier(std::string_view name)
{
    const auto folded = lowercased(name);
    const auto found = std::find_if(knownApplications.begin(), knownApplications.end(),
        [&](const KnownApplication& application) { return application.name == folded; });
    if (found == knownApplications.end())
        return {};
    return found->identifier;
}

} // namespace brindlex
