#pragma once

#include "clipboard/ClipboardHistoryStoreFixture.h"
#include "clipboard/ClipboardPicker.h"
#include "clipboard/ClipboardQuickLookPreviewer.h"
#include "clipboard/ClipboardSearchTexts.h"
#include "platform/VirtualKey.h"
#include "platform/simulated/SimulatedFilePreviewing.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A history and all that a picker of it needs.
struct ClipboardPickerFixture : ClipboardHistoryStoreTest {
    using Files = std::vector<std::filesystem::path>;

    /// Adds an item that is newer than all so far.
    ClipboardItem copy(ClipboardItem item)
    {
        item.createdAt = clipboardDay + ++copied;
        history.add(item);
        return item;
    }

    /// Adds texts, the last of which stands first.
    void copyTexts(const Texts& texts)
    {
        for (const auto& text : texts)
            copy(textItem(text));
    }

    /// Adds a picture with its blob.
    ClipboardItem copyPicture()
    {
        auto picture = imageItem();
        EXPECT_TRUE(history.writeBlob(*picture.imageBlobName, "PNG"));
        return copy(picture);
    }

    ClipboardHistoryStore& history = start();
    ClipboardSearchTexts searchTexts{TextFolding()};
    SimulatedFilePreviewing previewing;
    ClipboardQuickLookPreviewer previewer{previewing, history};
    ClipboardPicker::Parts parts{history, searchTexts, previewer};
    Seconds copied = 0;
};

/// A picker of that history, and what came of it.
struct OpenClipboardPicker : ClipboardPickerFixture {
    /// Opens a picker of texts, of which the first stands first.
    void open(Texts texts = {"first", "second", "third"})
    {
        std::reverse(texts.begin(), texts.end());
        copyTexts(texts);
        openPicker();
    }

    void openPicker()
    {
        picker.emplace(parts,
            ClipboardPicker::Outcomes{
                .onSelect
                = [this](const SharedClipboardItem& item) { chosen.push_back(item->fingerprint); },
                .onDismiss = [this] { ++dismissals; },
            });
        contents = 0;
        contentObserver = picker->content().stream().withoutFirst().subscribe(
            [this](const auto&) { ++contents; });
    }

    const ClipboardPicker::Content& content() const { return picker->content().value(); }
    Texts visible() const { return textsOf(content().items); }
    std::string selected() const
    {
        return content().selected ? textsOf({content().selected})[0] : "nothing";
    }
    Uuid idOf(const std::string& text) const
    {
        for (const auto& item : history.items().value())
            if (item->text == text)
                return item->id;
        return {};
    }

    std::optional<ClipboardPicker> picker;
    Texts chosen;
    int dismissals = 0;
    /// How often another content was published.
    int contents = 0;
    Subscription contentObserver;
};

} // namespace brindlex
