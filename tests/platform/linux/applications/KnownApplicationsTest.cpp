#include "platform/linux/applications/KnownApplications.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(KnownApplications, areTheBrowsersOfLinux)
{
    const std::pair<const char*, const char*> rows[] = {
        {"google-chrome", "com.google.Chrome"},
        {"com.google.Chrome", "com.google.Chrome"},
        {"google-chrome-beta", "com.google.Chrome.beta"},
        {"google-chrome-unstable", "com.google.Chrome.canary"},
        {"google-chrome-canary", "com.google.Chrome.canary"},
        {"microsoft-edge", "com.microsoft.edgemac"},
        {"com.microsoft.Edge", "com.microsoft.edgemac"},
        {"microsoft-edge-canary", "com.microsoft.edgemac.Canary"},
        {"microsoft-edge-dev", "com.microsoft.edgemac.Canary"},
        {"brave-browser", "com.brave.Browser"},
        {"brave_brave", "com.brave.Browser"},
        {"com.brave.Browser", "com.brave.Browser"},
        {"brave-browser-beta", "com.brave.Browser.beta"},
        {"opera", "com.operasoftware.Opera"},
        {"com.opera.Opera", "com.operasoftware.Opera"},
        {"vivaldi-stable", "com.vivaldi.Vivaldi"},
        {"Vivaldi-stable", "com.vivaldi.Vivaldi"},
        {"librewolf", "io.gitlab.librewolf-community"},
        {"LibreWolf", "io.gitlab.librewolf-community"},
        {"chromium", "org.chromium.Chromium"},
        {"Chromium-browser", "org.chromium.Chromium"},
        {"org.chromium.Chromium", "org.chromium.Chromium"},
        {"firefox", "org.mozilla.firefox"},
        {"firefox-esr", "org.mozilla.firefox"},
        {"firefox_firefox", "org.mozilla.firefox"},
        {"org.mozilla.firefox", "org.mozilla.firefox"},
        {"firefox-beta", "org.mozilla.firefox"},
        {"firefox-developer-edition", "org.mozilla.firefoxdeveloperedition"},
        {"firefox-nightly", "org.mozilla.nightly"},
    };
    for (const auto& [name, identifier] : rows)
        EXPECT_EQ(knownIdentifier(name), identifier) << name;
    for (const auto* name : {"", "google-chrome-other", "xterm", "chromium2"})
        EXPECT_EQ(knownIdentifier(name), std::nullopt) << name;
}

} // namespace
} // namespace brindlex
