#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The targets of X11 selections that the program knows.
namespace selectionTarget {

inline constexpr std::string_view utf8Text = "UTF8_STRING";
inline constexpr std::string_view plainUtf8Text = "text/plain;charset=utf-8";
inline constexpr std::string_view plainText = "text/plain";
inline constexpr std::string_view latin1Text = "STRING";
inline constexpr std::string_view uriList = "text/uri-list";
inline constexpr std::string_view copiedFiles = "x-special/gnome-copied-files";
inline constexpr std::string_view png = "image/png";
inline constexpr std::string_view tiff = "image/tiff";
inline constexpr std::string_view jpeg = "image/jpeg";
/// Holds "secret" when password managers offer it.
inline constexpr std::string_view secretHint = "x-kde-passwordManagerHint";

} // namespace selectionTarget

/// The program's name for what is offered as the target; nothing for what says how to transfer and
/// not what, and for `secretHint`, which means something only by its content. Targets that the
/// program does not know keep their name.
std::optional<std::string> pasteboardTypeOf(std::string_view target);

/// The program's names for the targets, each once, in the order in which they are offered.
std::vector<std::string> pasteboardTypesOf(const std::vector<std::string>& targets);

/// Of the targets those of files, of pictures and of texts, each with the one to be requested first
/// in front.
std::vector<std::string> fileTargets(const std::vector<std::string>& targets);
std::vector<std::string> pictureTargets(const std::vector<std::string>& targets);
std::vector<std::string> textTargets(const std::vector<std::string>& targets);

} // namespace brindlex
