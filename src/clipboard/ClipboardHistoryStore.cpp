#include "clipboard/ClipboardHistoryStore.h"

#include "clipboard/ClipboardIndex.h"
#include "clipboard/ClipboardPreferenceKeys.h"
#include "foundation/PrivateFolder.h"
#include "log/Log.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace brindlex {
namespace {

/// The place of the first item of which the condition holds.
template <typename Condition>
std::optional<std::size_t> firstIndex(const ClipboardItems& items, Condition condition)
{
    const auto found = std::find_if(
        items.begin(), items.end(), [&](const auto& item) { return condition(*item); });
    if (found == items.end())
        return {};
    return static_cast<std::size_t>(found - items.begin());
}

auto hasFingerprint(std::string_view fingerprint)
{
    return [fingerprint](const ClipboardItem& item) { return item.fingerprint == fingerprint; };
}

auto hasId(const Uuid& id)
{
    return [&id](const ClipboardItem& item) { return item.id == id; };
}

/// How many of so many items stay.
std::size_t keptOf(std::size_t count, std::int64_t limit)
{
    if (limit > 0)
        return std::min(count, static_cast<std::size_t>(limit));
    return count <= 1 ? count : 0;
}

std::unordered_set<std::string> blobNamesOf(const ClipboardItems& items)
{
    std::unordered_set<std::string> names;
    for (const auto& item : items)
        if (item->imageBlobName)
            names.insert(*item->imageBlobName);
    return names;
}

} // namespace

std::filesystem::path clipboardHistoryFolder(const UserFolders& folders)
{
    return folders.dataHome() / "Brindlex" / "ClipboardHistory";
}

ClipboardHistoryStore::ClipboardHistoryStore(
    const Abilities& abilities, std::filesystem::path directory)
    : abilities_(abilities), directory_(std::move(directory)), indexURL_(directory_ / "index.json"),
      blobs_(directory_ / "blobs"), writer_(abilities.queue, indexURL_), items_(load())
{
    blobs_.removeAllBut(blobNamesOf(items_.value()));
}

ClipboardItems ClipboardHistoryStore::load()
{
    makePrivateFolder(blobs_.folder());
    const auto read = readClipboardIndex(indexURL_);
    if (!read) {
        Log::error("ClipboardHistoryStore: index.json unreadable, backing up: " + read.error(),
            logCategory::clipboard);
        setIndexAside();
        return {};
    }
    auto items = read->value_or(ClipboardItems());
    sortForDisplay(items);
    return items;
}

void ClipboardHistoryStore::setIndexAside() const
{
    const auto aside = directory_ / "index.json.corrupt";
    std::error_code ignored;
    std::filesystem::remove_all(aside, ignored);
    std::filesystem::rename(indexURL_, aside, ignored);
}

bool ClipboardHistoryStore::contains(std::string_view fingerprint) const
{
    return firstIndex(items_.value(), hasFingerprint(fingerprint)).has_value();
}

void ClipboardHistoryStore::add(ClipboardItem item)
{
    const auto limit
        = readPreference(abilities_.defaults, ClipboardPreferenceKeys{}.clipboardMaxItems);
    auto items = items_.value();
    insertInOrder(items, std::make_shared<const ClipboardItem>(std::move(item)));
    const auto kept = static_cast<std::ptrdiff_t>(keptOf(items.size(), limit));
    const ClipboardItems evicted(items.begin() + kept, items.end());
    items.erase(items.begin() + kept, items.end());

    items_.set(std::move(items));
    for (const auto& gone : evicted)
        removeBlob(*gone);
    scheduleSave();
}

void ClipboardHistoryStore::touch(std::string fingerprint)
{
    const auto index = firstIndex(items_.value(), hasFingerprint(fingerprint));
    if (!index)
        return;
    changeItem(*index, [&](ClipboardItem& item) { item.createdAt = abilities_.clock.now(); });
    scheduleSave();
}

void ClipboardHistoryStore::setPinned(Uuid id, bool pinned)
{
    if (const auto index = firstIndex(items_.value(), hasId(id)))
        changeItem(*index, [&](ClipboardItem& item) {
            item.pinnedAt = pinned ? std::optional(abilities_.clock.now()) : std::nullopt;
        });
    scheduleSave();
}

void ClipboardHistoryStore::deleteItem(Uuid id)
{
    const auto index = firstIndex(items_.value(), hasId(id));
    if (!index)
        return;
    auto items = items_.value();
    const auto place = items.begin() + static_cast<std::ptrdiff_t>(*index);
    const auto gone = *place;
    items.erase(place);

    items_.set(std::move(items));
    removeBlob(*gone);
    scheduleSave();
}

void ClipboardHistoryStore::clear()
{
    const auto gone = items_.value();
    items_.set({});
    for (const auto& item : gone)
        removeBlob(*item);
    scheduleSave();
}

std::optional<std::filesystem::path> ClipboardHistoryStore::blobURL(const ClipboardItem& item) const
{
    if (!item.imageBlobName)
        return {};
    return blobs_.file(*item.imageBlobName);
}

Result<Done, FileProblem> ClipboardHistoryStore::writeBlob(
    const std::string& name, std::string_view bytes) const
{
    return blobs_.write(name, bytes);
}

void ClipboardHistoryStore::scheduleSave()
{
    // Every change ends in a call of this, so that the list will be the same then.
    saveTask_ = abilities_.mainThread.after(saveDelay, [this] { writer_.write(items_.value()); });
}

/// Publishes the list with the item changed and moved to its place.
template <typename Change>
void ClipboardHistoryStore::changeItem(std::size_t index, Change change)
{
    auto items = items_.value();
    auto changed = *items[index];
    change(changed);
    replaceInOrder(items, index, std::make_shared<const ClipboardItem>(std::move(changed)));
    items_.set(std::move(items));
}

void ClipboardHistoryStore::removeBlob(const ClipboardItem& item) const
{
    if (item.imageBlobName)
        blobs_.remove(*item.imageBlobName);
}

} // namespace brindlex
