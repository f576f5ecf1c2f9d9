#pragma once

#include "clipboard/ClipboardItemKind.h"
#include "foundation/Date.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What was on the pasteboard at one time.
///
/// Identified by `id`. Only `createdAt` and `pinnedAt` of an item ever change.
struct ClipboardItem {
    /// For a picture also the stem of its blob's file name.
    Uuid id{};
    ClipboardItemKind kind{};
    /// When it was last copied.
    Date createdAt{};
    /// The application that was in front when it was first copied.
    std::optional<std::string> sourceBundleID{};
    /// Equal for equal contents, and for no others.
    std::string fingerprint{};
    /// Of a text.
    std::optional<std::string> text{};
    /// Of a picture: the name of a file in the folder of blobs.
    std::optional<std::string> imageBlobName{};
    /// Of files: their paths, in the order of the pasteboard.
    std::optional<std::vector<std::string>> fileURLStrings{};
    /// Since when it is pinned.
    std::optional<Date> pinnedAt{};

    bool operator==(const ClipboardItem&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("id", &ClipboardItem::id),
            required("kind", &ClipboardItem::kind),
            required("createdAt", &ClipboardItem::createdAt),
            omittedWhenAbsent("sourceBundleID", &ClipboardItem::sourceBundleID),
            required("fingerprint", &ClipboardItem::fingerprint),
            omittedWhenAbsent("text", &ClipboardItem::text),
            omittedWhenAbsent("imageBlobName", &ClipboardItem::imageBlobName),
            omittedWhenAbsent("fileURLStrings", &ClipboardItem::fileURLStrings),
            omittedWhenAbsent("pinnedAt", &ClipboardItem::pinnedAt),
        };
    }
};

} // namespace brindlex

template <>
struct std::hash<brindlex::ClipboardItem> {
    std::size_t operator()(const brindlex::ClipboardItem& item) const noexcept
    {
        return std::hash<brindlex::Uuid>{}(item.id);
    }
};
