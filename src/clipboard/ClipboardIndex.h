#pragma once

#include "clipboard/ClipboardItems.h"
#include "foundation/Result.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// An index of more bytes is not read and not written.
inline constexpr std::size_t largestClipboardIndex = 512 * 1024 * 1024;

/// The items as JSON, or what is wrong with one of them: a date that is no finite number, or the
/// name of a blob that leads out of the folder of blobs.
Result<std::string, std::string> clipboardIndexText(const ClipboardItems& items);

/// The items of the text in the order that they have there, or what is wrong with it: one item that
/// cannot be read makes the whole unreadable, and so does what `clipboardIndexText` would not
/// write.
Result<ClipboardItems, std::string> clipboardItemsOf(std::string_view text);

/// The items of the file; nothing when there is no such file.
Result<std::optional<ClipboardItems>, std::string> readClipboardIndex(
    const std::filesystem::path& file);

/// Replaces the file, and makes its folder where it is missing, both for the user alone. An index
/// of more bytes than `largest` is not written. Waits for the disk; callable from any thread.
Result<Done, std::string> writeClipboardIndex(const std::filesystem::path& file,
    const ClipboardItems& items, std::size_t largest = largestClipboardIndex);

} // namespace brindlex
