#pragma once

#include "eventtap/ModifierSet.h"
#include "foundation/Cases.h"
#include "platform/VirtualKey.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace brindlex {

/// What a key does: it goes down, is said to be down once more while it is held, or goes up.
enum class KeyPhase { press, repeat, release };

/// The keys that commit the items at the places 1 to 9, in their order.
inline constexpr std::array<std::int64_t, 9> clipboardDigitKeys{virtualKey::one, virtualKey::two,
    virtualKey::three, virtualKey::four, virtualKey::five, virtualKey::six, virtualKey::seven,
    virtualKey::eight, virtualKey::nine};

/// A key as the picker's window is given it.
struct ClipboardPickerKey {
    /// The virtual key code.
    std::int64_t keyCode = 0;
    KeyPhase phase{};
    ModifierSet modifiers{};

    bool operator==(const ClipboardPickerKey&) const = default;
};

/// What a key asks of the picker.
struct ClipboardPickerAction {
    /// Nothing: the key is one for the field of the query.
    struct Ignored {
        bool operator==(const Ignored&) const = default;
    };
    /// So many items down.
    struct Move {
        std::int64_t delta = 0;
        bool operator==(const Move&) const = default;
    };
    /// So many categories to the right.
    struct MoveCategory {
        std::int64_t delta = 0;
        bool operator==(const MoveCategory&) const = default;
    };
    struct Commit {
        bool operator==(const Commit&) const = default;
    };
    /// Of the item at the index of the visible list.
    struct CommitItem {
        std::size_t index = 0;
        bool operator==(const CommitItem&) const = default;
    };
    struct DeleteSelection {
        bool operator==(const DeleteSelection&) const = default;
    };
    struct TogglePinSelection {
        bool operator==(const TogglePinSelection&) const = default;
    };
    struct UnpinSelection {
        bool operator==(const UnpinSelection&) const = default;
    };
    struct Preview {
        bool operator==(const Preview&) const = default;
    };
    struct Cancel {
        bool operator==(const Cancel&) const = default;
    };
    using Any = Cases<Ignored, Move, MoveCategory, Commit, CommitItem, DeleteSelection,
        TogglePinSelection, UnpinSelection, Preview, Cancel>;
};

/// What a key does while the field of the query has the focus; the first row that applies decides:
///
/// | Key | Phases | Modifiers | Query | Action |
/// |---|---|---|---|---|
/// | Delete, forward delete | press | command alone | any | delete the selected item |
/// | Delete, forward delete | press, repeat | any | empty | delete the selected item |
/// | Down | press, repeat | command among them | any | unpin the selected item |
/// | Down | press, repeat | any | any | move down |
/// | Up | press, repeat | command among them | any | pin the selected item, or unpin it |
/// | Up | press, repeat | any | any | move up |
/// | Right, Left | press | any | any | the category beside this one |
/// | Space | press, repeat | option among them | any | preview the selected item |
/// | Return | press | any | any | commit the selected item |
/// | Escape | press | any | any | cancel |
/// | 1 to 9 | press | command alone | any | commit the item at this place |
/// | all others | | | | ignored |
ClipboardPickerAction::Any clipboardPickerAction(const ClipboardPickerKey& key, bool isQueryEmpty);

} // namespace brindlex
