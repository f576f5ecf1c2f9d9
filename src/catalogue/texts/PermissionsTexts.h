#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The permission guide.
inline constexpr auto permissionsTexts = std::to_array<CatalogueRow>({
    {"permissions.accessibility.description",
        "Required for global mouse gestures, custom clicks, and window-edge detection."},
    {"permissions.accessibility.title", "Accessibility"},
    {"permissions.automation.description",
        "Required when website input-method rules read the current browser tab URL."},
    {"permissions.automation.title", "Automation"},
    {"permissions.finderExtension.description",
        "Enable Brindlex in Finder Extensions to show the Finder action menu."},
    {"permissions.finderExtension.title", "Finder Extension"},
    {"permissions.inputMonitoring.description",
        "Required for listening to mouse buttons and scroll events outside Brindlex."},
    {"permissions.inputMonitoring.title", "Input Monitoring"},
    {"permissions.openSettings", "Open Settings"},
    {"permissions.refresh", "Refresh"},
    {"permissions.request", "Request"},
    {"permissions.screenRecording.description",
        "Required by macOS before interactive screenshots can capture the screen."},
    {"permissions.screenRecording.title", "Screen Recording"},
    {"permissions.status.allowed", "Allowed"},
    {"permissions.status.manual", "Check Manually"},
    {"permissions.status.needsSetup", "Needs Setup"},
    {"permissions.subtitle",
        "Enable these macOS permissions so mouse gestures, screenshots, website rules, and Finder "
        "actions can work."},
    {"permissions.title", "Permissions Setup"},
    {"permissions.windowTitle", "Brindlex Permissions"},
});

} // namespace brindlex
