#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace brindlex {

/// What the settings manager of a screen has set, by name: numbers and texts. Colours are left out.
using XSettings = std::map<std::string, std::variant<std::int32_t, std::string>, std::less<>>;

/// The settings in the content of `_XSETTINGS_SETTINGS` (XSETTINGS 0.5), in either order of bytes.
///
/// Whoever manages the screen is not to be trusted: of content that is cut off or damaged, what
/// stands before the damage counts. Bytes that are not UTF-8 become U+FFFD.
XSettings xSettingsOf(std::string_view content);

/// The text that is set under the name.
std::optional<std::string> textOf(const XSettings& settings, std::string_view name);
/// The number that is set under the name.
std::optional<std::int32_t> numberOf(const XSettings& settings, std::string_view name);

} // namespace brindlex
