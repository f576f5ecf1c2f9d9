#include "clipboard/ClipboardPickerSelectionState.h"

#include "clipboard/ClipboardSearchTexts.h"

#include <algorithm>

namespace brindlex {
namespace {

std::optional<std::size_t> indexOf(const std::optional<Uuid>& id, const ClipboardItems& items)
{
    const auto found = std::find_if(
        items.begin(), items.end(), [&](const auto& item) { return item->id == id; });
    if (found == items.end())
        return {};
    return static_cast<std::size_t>(found - items.begin());
}

} // namespace

ClipboardItems ClipboardPickerSelectionState::filteredItems(
    const ClipboardItems& items, ClipboardSearchTexts& texts) const
{
    const auto tokens = clipboardSearchTokens(query, texts.folding());
    if (!tokens.empty())
        texts.follow(items);
    ClipboardItems filtered;
    for (std::size_t index = 0; index < items.size(); ++index)
        if (isInCategory(*items[index], category) && (tokens.empty() || texts.pass(index, tokens)))
            filtered.push_back(items[index]);
    return filtered;
}

SharedClipboardItem ClipboardPickerSelectionState::selectedItem(
    const ClipboardItems& filtered) const
{
    if (filtered.empty())
        return {};
    return filtered[indexOf(storedID(), filtered).value_or(0)];
}

void ClipboardPickerSelectionState::selectFirstIfNeeded(const ClipboardItems& filtered)
{
    if (indexOf(storedID(), filtered))
        return;
    if (filtered.empty())
        selectedItemIDsByCategory.erase(category);
    else
        select(*filtered.front());
}

void ClipboardPickerSelectionState::move(std::int64_t delta, const ClipboardItems& filtered)
{
    if (filtered.empty())
        return;
    const auto index = static_cast<std::int64_t>(indexOf(storedID(), filtered).value_or(0));
    const auto last = static_cast<std::int64_t>(filtered.size()) - 1;
    const auto step = std::clamp(delta, -index, last - index);
    select(*filtered[static_cast<std::size_t>(index + step)]);
}

void ClipboardPickerSelectionState::handleRemoval(
    Uuid id, const ClipboardItems& oldFiltered, const ClipboardItems& newFiltered)
{
    const auto index = storedID() == id ? indexOf(id, oldFiltered) : std::nullopt;
    if (!index)
        selectFirstIfNeeded(newFiltered);
    else if (newFiltered.empty())
        selectedItemIDsByCategory.erase(category);
    else
        select(*newFiltered[std::min(*index, newFiltered.size() - 1)]);
}

std::optional<Uuid> ClipboardPickerSelectionState::storedID() const
{
    const auto stored = selectedItemIDsByCategory.find(category);
    if (stored == selectedItemIDsByCategory.end())
        return {};
    return stored->second;
}

} // namespace brindlex
