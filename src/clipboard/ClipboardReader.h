#pragma once

#include "clipboard/ClipboardItem.h"
#include "platform/ImageConverting.h"
#include "platform/Pasteboard.h"

#include <memory>
#include <string>

namespace brindlex {

class ClipboardHistoryStore;

/// What the history takes from the pasteboard and gives back to it. Main thread only.
struct ClipboardReader {
    /// The picture on the pasteboard as PNG: what is offered as that, as it is; else what is
    /// offered as TIFF, and where that is no picture what is offered as JPEG. Nothing for a picture
    /// of which no PNG can be made.
    static std::shared_ptr<const std::string> imagePNGData(
        const Pasteboard& pasteboard, ImageConverting& images);

    /// Puts the content of the item on the pasteboard. Of one whose text or blob is missing nothing
    /// is there afterwards. Waits for the disk.
    static void write(
        const ClipboardItem& item, const ClipboardHistoryStore& store, Pasteboard& pasteboard);
};

} // namespace brindlex
