#include "clipboard/ClipboardSearchTexts.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace brindlex {

void ClipboardSearchTexts::follow(const ClipboardItems& items)
{
    if (items == items_)
        return;
    std::unordered_map<const ClipboardItem*, std::shared_ptr<const ClipboardSearchText>> known;
    known.reserve(items_.size());
    for (std::size_t index = 0; index < items_.size(); ++index)
        known.emplace(items_[index].get(), std::move(texts_[index]));
    texts_.clear();
    texts_.reserve(items.size());
    for (const auto& item : items) {
        auto& text = known[item.get()];
        if (!text)
            text = std::make_shared<const ClipboardSearchText>(*item, folding_);
        texts_.push_back(text);
    }
    items_ = items;
}

bool ClipboardSearchTexts::pass(
    std::size_t index, const std::vector<ClipboardSearchToken>& tokens) const
{
    return std::all_of(tokens.begin(), tokens.end(),
        [&](const auto& token) { return texts_[index]->passes(token); });
}

} // namespace brindlex
