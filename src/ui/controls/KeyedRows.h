#pragma once

#include "ui/controls/Card.h"

#include <algorithm>
#include <map>
#include <vector>

namespace brindlex {

/// Rows of a card for the members of a list, each known by its key. A row stays as long as its
/// member, so that what the user does in it goes on while others come and go. The card outlives it.
template <typename Key, typename RowType>
class KeyedRows {
public:
    /// They stand behind the first `first` rows of the card.
    KeyedRows(Card& card, int first) : card_(card), first_(first) { }

    /// Has exactly these rows, in this order; `make` makes the row of a key that has none.
    template <typename Make>
    void show(const std::vector<Key>& keys, Make make)
    {
        if (keys == shown_)
            return;
        shown_ = keys;
        for (auto entry = rows_.begin(); entry != rows_.end();)
            entry = isIn(keys, entry->first) ? std::next(entry) : remove(entry);
        int index = first_;
        for (const auto& key : keys) {
            auto& row = rows_[key];
            if (!row)
                row = make(key);
            card_.insert(index++, row);
        }
        card_.putInOrder();
    }

    /// Null for a key without a row.
    RowType* row(const Key& key) const
    {
        const auto found = rows_.find(key);
        return found == rows_.end() ? nullptr : found->second;
    }

private:
    using Rows = std::map<Key, RowType*>;

    static bool isIn(const std::vector<Key>& keys, const Key& key)
    {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    }
    typename Rows::iterator remove(typename Rows::iterator entry)
    {
        card_.remove(entry->second);
        return rows_.erase(entry);
    }

    Card& card_;
    const int first_;
    Rows rows_;
    std::vector<Key> shown_;
};

} // namespace brindlex
