#pragma once

#include "clipboard/ClipboardBlobs.h"
#include "clipboard/ClipboardIndexWriter.h"
#include "clipboard/ClipboardItems.h"
#include "foundation/Observable.h"
#include "foundation/Uuid.h"
#include "platform/Clock.h"
#include "platform/MainThread.h"
#include "platform/UserDefaults.h"
#include "platform/UserFolders.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Where the clipboard history is kept on this computer.
std::filesystem::path clipboardHistoryFolder(const UserFolders& folders);

/// Keeps the clipboard history in the order of its display and mirrors it to "index.json" in its
/// folder; the bytes of pictures are files of the folder "blobs" beside it. All of it is for the
/// user alone.
///
/// A change publishes the whole list at once. A burst of changes is written once, 200 ms after the
/// last of them and as a whole file; what has not been written when the program ends is lost.
/// An index that cannot be read is set aside as "index.json.corrupt" and the history is empty then.
/// Blobs that no item names are removed when the store is made. Of items with one identifier the
/// first is meant. Main thread only.
class ClipboardHistoryStore {
public:
    /// What the store works with, which outlives it.
    struct Abilities {
        MainThread& mainThread;
        const Clock& clock;
        /// Writes the index.
        BackgroundQueue& queue;
        const UserDefaultsType& defaults;
    };

    /// Makes the folders and reads what is there.
    ClipboardHistoryStore(const Abilities& abilities, std::filesystem::path directory);

    const Observable<ClipboardItems>& items() const { return items_; }
    const std::filesystem::path& directory() const { return directory_; }
    const std::filesystem::path& blobsDirectory() const { return blobs_.folder(); }
    const std::filesystem::path& indexURL() const { return indexURL_; }

    /// Whether some item has the fingerprint.
    bool contains(std::string_view fingerprint) const;

    /// Takes in a new item and evicts, with their blobs, those beyond the first `clipboardMaxItems`
    /// of the list. A limit of 0 or less leaves a list of one item and empties any other.
    void add(ClipboardItem item);

    /// Notes that the item with the fingerprint was copied again, just now.
    void touch(std::string fingerprint);

    /// Pins the item as of now, or releases it. The list is written also when no item is meant.
    void setPinned(Uuid id, bool pinned);

    /// Removes the item and its blob.
    void deleteItem(Uuid id);

    /// Removes all items, the pinned ones too, and their blobs.
    void clear();

    /// Where the blob of the item is, whether or not it exists; nothing for an item without one.
    std::optional<std::filesystem::path> blobURL(const ClipboardItem& item) const;

    /// Makes a blob of the name, for an item to be added.
    Result<Done, FileProblem> writeBlob(const std::string& name, std::string_view bytes) const;

    /// Writes the list 200 ms from now, and not before.
    void scheduleSave();

private:
    static constexpr Seconds saveDelay = 0.2;

    ClipboardItems load();
    void setIndexAside() const;
    template <typename Change>
    void changeItem(std::size_t index, Change change);
    void removeBlob(const ClipboardItem& item) const;

    Abilities abilities_;
    std::filesystem::path directory_;
    std::filesystem::path indexURL_;
    ClipboardBlobs blobs_;
    ClipboardIndexWriter writer_;
    Observable<ClipboardItems> items_;
    Subscription saveTask_;
};

} // namespace brindlex
