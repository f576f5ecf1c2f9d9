#pragma once

#include "clipboard/ClipboardItems.h"
#include "clipboard/ClipboardPickerKeys.h"
#include "clipboard/ClipboardPickerSelectionState.h"
#include "foundation/Observable.h"
#include "foundation/Uuid.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace brindlex {

class ClipboardHistoryStore;
class ClipboardQuickLookPreviewer;
class ClipboardSearchTexts;

/// One showing of the history: what of it is visible, and what the user does to it.
///
/// Begins with the whole history, nothing typed and its first item selected. It follows the store,
/// and goes through the list once for each change of the list, the query or the category. Of
/// actions on the selected item nothing comes where there is none. Main thread only.
class ClipboardPicker {
public:
    /// What the picker works with, which outlives it.
    struct Parts {
        ClipboardHistoryStore& store;
        ClipboardSearchTexts& searchTexts;
        ClipboardQuickLookPreviewer& previewer;
    };

    /// What becomes of the picker, which may end and go inside of them.
    struct Outcomes {
        std::function<void(const SharedClipboardItem& item)> onSelect{};
        std::function<void()> onDismiss{};
    };

    /// What is to be seen.
    struct Content {
        ClipboardCategory category = ClipboardCategory::all;
        std::string query{};
        /// The visible items, in the order of the history.
        ClipboardItems items{};
        /// One of them; none of no items.
        SharedClipboardItem selected{};

        bool operator==(const Content&) const = default;
    };

    ClipboardPicker(const Parts& parts, Outcomes outcomes);
    ClipboardPicker(const ClipboardPicker&) = delete;
    ClipboardPicker& operator=(const ClipboardPicker&) = delete;

    const Observable<Content>& content() const { return content_; }

    void setQuery(const std::string& query);
    void setCategory(ClipboardCategory category);

    /// Carries out what the key asks for; false for a key that is one for the field of the query.
    /// The release of the key that holds a preview open ends it.
    bool handleKey(const ClipboardPickerKey& key);

    /// Moves the selection by so many items, not beyond either end.
    void move(std::int64_t delta);
    /// Goes to the category so many places to the right, not beyond either end.
    void moveCategory(std::int64_t delta);
    void commit();
    /// Of the item at the index of the visible list, if it has so many.
    void commitItem(std::size_t index);
    void deleteSelection();
    /// Also of an item that is not selected, or not visible.
    void deleteItem(Uuid id);
    void togglePinSelection();
    void unpinSelection();
    void preview();
    void cancel() const;

    /// Ends the showing: nothing is visible any more, and nothing comes of it.
    void end();

private:
    ClipboardItems filtered();
    void show(ClipboardItems filtered);
    void refilter();
    void followChange();
    void commit(SharedClipboardItem item) const;

    Parts parts_;
    Outcomes outcomes_;
    ClipboardPickerSelectionState state_;
    Observable<Content> content_{Content{}};
    /// The item that is being deleted here.
    std::optional<Uuid> deletedID_;
    Subscription itemsChanges_;
};

} // namespace brindlex
