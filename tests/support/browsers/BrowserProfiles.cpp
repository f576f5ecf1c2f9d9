#include "support/browsers/BrowserProfiles.h"

#include "support/basics/TemporaryFolder.h"

#include <filesystem>

namespace brindlex {

std::vector<std::string> chromiumCommand(const VirtualDesktop& desktop)
{
    return {"chromium", "--user-data-dir=" + (desktop.home() / "chromium").string(),
        // Root, as in a container, has no sandbox to start.
        "--no-sandbox", "--test-type", "--no-first-run", "--no-default-browser-check",
        "--disable-gpu", "--disable-dev-shm-usage", "--disable-quic", "--disable-sync",
        "--disable-background-networking", "--disable-component-update", "--password-store=basic",
        "--disable-features=HttpsUpgrades,HttpsFirstBalancedModeAutoEnable,Translate"};
}

std::vector<std::string> firefoxCommand(const VirtualDesktop& desktop, const std::string& settings)
{
    const auto profile = desktop.home() / "firefox";
    std::filesystem::create_directories(profile);
    write(profile / "user.js",
        "user_pref('browser.aboutwelcome.enabled', false);\n"
        "user_pref('browser.shell.checkDefaultBrowser', false);\n"
        "user_pref('browser.startup.homepage_override.mstone', 'ignore');\n"
        "user_pref('datareporting.policy.dataSubmissionPolicyBypassNotification', true);\n"
        "user_pref('gfx.webrender.software', true);\n"
            + settings);
    return {"firefox-esr", "--profile", profile.string()};
}

} // namespace brindlex
