#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The menu of the tray icon.
inline constexpr auto menubarTexts = std::to_array<CatalogueRow>({
    {"menubar.captureScreenshot", "Capture Screenshot"},
    {"menubar.captureScreenshotOCR", "Screenshot OCR"},
    {"menubar.checkForUpdates", "Check for Updates…"},
    {"menubar.openApp", "Open Brindlex"},
    {"menubar.quitApp", "Quit Brindlex"},
});

} // namespace brindlex
