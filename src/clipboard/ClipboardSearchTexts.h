#pragma once

#include "clipboard/ClipboardItems.h"
#include "clipboard/ClipboardSearchText.h"
#include "foundation/TextFolding.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindlex {

/// Keeps the folded texts of a list of items from one search to the next: an item is folded once,
/// however the list around it changes.
class ClipboardSearchTexts {
public:
    explicit ClipboardSearchTexts(TextFolding folding) : folding_(folding) { }

    const TextFolding& folding() const { return folding_; }

    /// Takes the texts of these items, and forgets those of all others.
    void follow(const ClipboardItems& items);

    /// Whether every token passes for the item at the index of the list that is followed. The
    /// tokens are folded alike.
    bool pass(std::size_t index, const std::vector<ClipboardSearchToken>& tokens) const;

private:
    TextFolding folding_;
    /// They keep what the texts were made of, so that no other item is mistaken for it.
    ClipboardItems items_;
    std::vector<std::shared_ptr<const ClipboardSearchText>> texts_;
};

} // namespace brindlex
