#pragma once

#include "clipboard/ClipboardItem.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace brindlex {

class ClipboardHistoryStore;

/// Whether a file whose name does not say so is a picture, by what the system knows of its type.
using IsPictureType = std::function<bool(const std::filesystem::path& file)>;

/// The files in which an item can be looked at, as far as they exist: none of a text, the blob of a
/// picture, the files themselves of files. Waits for the disk.
std::vector<std::filesystem::path> previewFiles(
    const ClipboardItem& item, const ClipboardHistoryStore& store);

/// The first of these files that is a picture, by its name or by its type.
std::optional<std::filesystem::path> firstPreviewableImage(const ClipboardItem& item,
    const ClipboardHistoryStore& store, const IsPictureType& isPictureType);

} // namespace brindlex
