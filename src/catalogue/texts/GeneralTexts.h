#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The general settings.
inline constexpr auto generalTexts = std::to_array<CatalogueRow>({
    {"general.baiduOCRAPIToken", "Baidu OCR API Token"},
    {"general.baiduOCRAPITokenDescription",
        "Used by Screenshot OCR when calling Baidu AI Studio PaddleOCR"},
    {"general.baiduOCRAPITokenGetLink", "Get token"},
    {"general.chooseScreenshotDirectory", "Choose Folder"},
    {"general.language", "Language"},
    {"general.language.systemDefault", "System Default"},
    {"general.launchAtLogin", "Launch at Login"},
    {"general.launchAtLoginDescription", "Automatically start when you log in to your Mac"},
    {"general.openPermissionsGuide", "Open Guide"},
    {"general.permissionsGuide", "Permissions"},
    {"general.permissionsGuideDescription", "Open the setup guide for permissions Brindlex needs"},
    {"general.resetScreenshotDirectory", "Reset"},
    {"general.screenshotHotkey", "Capture Screenshot Shortcut"},
    {"general.screenshotSaveDirectory", "Screenshot Folder"},
    {"general.screenshotSaveDirectoryDescription",
        "Interactive screenshots are saved here and copied as files to the clipboard"},
    {"general.showsDockIcon", "Show in Dock"},
    {"general.showsDockIconDescription", "Display Brindlex's icon in the Dock"},
});

} // namespace brindlex
