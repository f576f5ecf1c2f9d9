#pragma once

#include <string_view>

namespace brindlex {

/// How well a window of the accessible tree fits a window of the screen by what they are called.
enum class TitleMatch { none, similar, same };

/// Compares a window's title with a name in the accessible tree.
///
/// Browsers add to the name what the title does not say: "Song - Chromium" is named
/// "Song - Audio playing - Chromium", or "Song - Chromium (Incognito)". Two of them are similar
/// when both begin with the title's part before its last dash, as a whole part.
TitleMatch titleMatch(std::string_view windowTitle, std::string_view accessibleName);

} // namespace brindlex
