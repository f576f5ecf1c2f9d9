#pragma once

#include "eventtap/HotkeyCombo.h"
#include "preferences/PreferenceKey.h"

#include <string>

namespace brindlex {

/// The preferences of screenshots and of the recognition of text in them.
struct ScreenshotPreferenceKeys {
    /// The default is the user's download folder, which only the whole table knows.
    PreferenceKey<std::string> screenshotSaveDirectoryPath{"", "screenshotSaveDirectoryPath"};
    /// Option and the key A.
    PreferenceKey<HotkeyCombo> screenshotHotkey{{0, ModifierSet::option}, "screenshotHotkey"};
    PreferenceKey<std::string> baiduOCRAPIToken{"", "baiduOCRAPIToken"};
};

} // namespace brindlex
