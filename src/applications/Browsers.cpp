#include "applications/Browsers.h"

namespace brindlex {
namespace {

using enum BrowserKind;

constexpr std::array rows{
    Browser{"com.apple.Safari", safari},
    Browser{"com.apple.SafariTechnologyPreview", safari},
    Browser{"com.google.Chrome", chromium,
        {"google-chrome", "google-chrome-stable", "com.google.chrome"}},
    Browser{"com.google.Chrome.beta", chromium, {"google-chrome-beta", "com.google.chrome.beta"}},
    Browser{"com.google.Chrome.canary", chromium,
        {"google-chrome-canary", "google-chrome-unstable", "com.google.chromedev",
            "com.google.chrome.canary"}},
    Browser{"com.microsoft.edgemac", chromium,
        {"microsoft-edge", "microsoft-edge-stable", "com.microsoft.edge"}},
    Browser{"com.microsoft.edgemac.Canary", chromium,
        {"microsoft-edge-canary", "microsoft-edge-dev", "com.microsoft.edgedev"}},
    Browser{"com.brave.Browser", chromium,
        {"brave-browser", "brave-browser-stable", "brave_brave", "com.brave.browser"}},
    Browser{"com.brave.Browser.beta", chromium, {"brave-browser-beta", "com.brave.browser.beta"}},
    Browser{"com.operasoftware.Opera", chromium,
        {"opera", "opera-stable", "opera_opera", "com.opera.opera"}},
    Browser{"com.vivaldi.Vivaldi", chromium,
        {"vivaldi", "vivaldi-stable", "vivaldi_vivaldi-stable", "com.vivaldi.vivaldi"}},
    Browser{"company.thebrowser.Browser", chromium},
    Browser{"io.gitlab.librewolf-community", unscripted,
        {"librewolf", "librewolf-default", "io.gitlab.librewolf-community"}},
    Browser{"org.chromium.Chromium", chromium,
        {"chromium", "chromium-browser", "chromium_chromium", "org.chromium.chromium"}},
    Browser{"org.mozilla.firefox", unscripted,
        {"firefox", "firefox-esr", "firefox_firefox", "org.mozilla.firefox", "firefox-beta"}},
    Browser{"org.mozilla.firefoxdeveloperedition", unscripted,
        {"firefox-developer-edition", "firefoxdeveloperedition", "firefox-aurora",
            "org.mozilla.firefoxdeveloperedition"}},
    Browser{"org.mozilla.nightly", unscripted,
        {"firefox-nightly", "org.mozilla.nightly", "org.mozilla.firefox.nightly"}},
};

} // namespace

std::span<const Browser> browsers() { return rows; }

} // namespace brindlex
