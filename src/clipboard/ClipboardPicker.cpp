#include "clipboard/ClipboardPicker.h"

#include "clipboard/ClipboardHistoryStore.h"
#include "clipboard/ClipboardQuickLookPreviewer.h"
#include "clipboard/ClipboardSearchTexts.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

ClipboardCategory categoryBeside(ClipboardCategory category, std::int64_t delta)
{
    constexpr auto last = static_cast<std::int64_t>(ClipboardCategory::file);
    const auto index = static_cast<std::int64_t>(category);
    return static_cast<ClipboardCategory>(index + std::clamp(delta, -index, last - index));
}

} // namespace

ClipboardPicker::ClipboardPicker(const Parts& parts, Outcomes outcomes)
    : parts_(parts), outcomes_(std::move(outcomes))
{
    show(filtered());
    itemsChanges_ = parts_.store.items().stream().withoutFirst().subscribe(
        [this](const ClipboardItems&) { followChange(); });
}

void ClipboardPicker::setQuery(const std::string& query)
{
    if (state_.query == query)
        return;
    state_.query = query;
    refilter();
}

void ClipboardPicker::setCategory(ClipboardCategory category)
{
    if (state_.category == category)
        return;
    state_.category = category;
    refilter();
}

bool ClipboardPicker::handleKey(const ClipboardPickerKey& key)
{
    using Action = ClipboardPickerAction;
    if (key.phase == KeyPhase::release)
        return parts_.previewer.releaseKey(key.keyCode);
    const auto action = clipboardPickerAction(key, state_.query.empty());
    match(
        action, [](const Action::Ignored&) {}, [this](const Action::Move& to) { move(to.delta); },
        [this](const Action::MoveCategory& to) { moveCategory(to.delta); },
        [this](const Action::Commit&) { commit(); },
        [this](const Action::CommitItem& item) { commitItem(item.index); },
        [this](const Action::DeleteSelection&) { deleteSelection(); },
        [this](const Action::TogglePinSelection&) { togglePinSelection(); },
        [this](const Action::UnpinSelection&) { unpinSelection(); },
        [this](const Action::Preview&) { preview(); }, [this](const Action::Cancel&) { cancel(); });
    return !std::holds_alternative<Action::Ignored>(action);
}

void ClipboardPicker::move(std::int64_t delta)
{
    const auto& items = content_.value().items;
    state_.move(delta, items);
    auto selected = state_.selectedItem(items);
    if (selected == content_.value().selected)
        return;
    auto content = content_.value();
    content.selected = std::move(selected);
    content_.set(std::move(content));
}

void ClipboardPicker::moveCategory(std::int64_t delta)
{
    setCategory(categoryBeside(state_.category, delta));
}

void ClipboardPicker::commit() { commit(content_.value().selected); }

void ClipboardPicker::commitItem(std::size_t index)
{
    const auto& items = content_.value().items;
    if (index < items.size())
        commit(items[index]);
}

/// Whoever is called may take the picker away, so that nothing of it is used from there on.
void ClipboardPicker::commit(SharedClipboardItem item) const
{
    const auto onSelect = outcomes_.onSelect;
    if (item && onSelect)
        onSelect(item);
}

void ClipboardPicker::deleteSelection()
{
    if (const auto item = content_.value().selected)
        deleteItem(item->id);
}

void ClipboardPicker::deleteItem(Uuid id)
{
    deletedID_ = id;
    parts_.store.deleteItem(id);
    deletedID_.reset();
}

void ClipboardPicker::togglePinSelection()
{
    if (const auto item = content_.value().selected)
        parts_.store.setPinned(item->id, !item->pinnedAt);
}

void ClipboardPicker::unpinSelection()
{
    if (const auto item = content_.value().selected)
        parts_.store.setPinned(item->id, false);
}

void ClipboardPicker::preview()
{
    if (const auto item = content_.value().selected)
        parts_.previewer.open(*item);
}

void ClipboardPicker::cancel() const
{
    if (const auto onDismiss = outcomes_.onDismiss)
        onDismiss();
}

void ClipboardPicker::end()
{
    itemsChanges_.reset();
    outcomes_ = {};
    content_.set({});
}

ClipboardItems ClipboardPicker::filtered()
{
    return state_.filteredItems(parts_.store.items().value(), parts_.searchTexts);
}

void ClipboardPicker::show(ClipboardItems filtered)
{
    auto selected = state_.selectedItem(filtered);
    content_.set({state_.category, state_.query, std::move(filtered), std::move(selected)});
}

void ClipboardPicker::refilter()
{
    if (!itemsChanges_.isActive())
        return;
    auto items = filtered();
    state_.selectFirstIfNeeded(items);
    show(std::move(items));
}

void ClipboardPicker::followChange()
{
    if (!deletedID_)
        return refilter();
    auto items = filtered();
    state_.handleRemoval(*deletedID_, content_.value().items, items);
    show(std::move(items));
}

} // namespace brindlex
