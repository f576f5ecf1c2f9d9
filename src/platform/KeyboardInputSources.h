#pragma once

#include "foundation/Subscription.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The category of the sources that type text, as opposed to palettes.
inline constexpr std::string_view keyboardInputSourceCategory = "TISCategoryKeyboardInputSource";

/// What the system reports of one input source; a property that it does not have is absent.
struct InputSourceProperties {
    std::optional<std::string> id{};
    std::optional<std::string> category{};
    std::optional<std::string> localizedName{};
    std::optional<bool> isSelectCapable{};
    std::optional<bool> isEnabled{};

    bool operator==(const InputSourceProperties&) const = default;
};

/// The properties that a listed source must have; an absent one may be anything.
struct InputSourceFilter {
    std::optional<std::string> id{};
    std::optional<std::string> category{};
    std::optional<bool> isSelectCapable{};
    std::optional<bool> isEnabled{};

    bool operator==(const InputSourceFilter&) const = default;
};

/// Whose doing a change of the selected source was.
enum class SelectionCause {
    /// A person's, or this program's own.
    choice,
    /// Nobody's: a window or a field that keeps a source of its own has got the keyboard, or the
    /// sources have become others.
    place,
    /// The system's, which did not let a selection of this program stand.
    undoing,
};

/// The keyboard input sources of the system. Main thread only; no call waits for another program
/// longer than 100 ms.
class KeyboardInputSources {
public:
    virtual ~KeyboardInputSources() = default;

    /// The selected source; nothing when the system cannot say.
    virtual std::optional<InputSourceProperties> current() = 0;

    /// The installed sources with all the given properties, in the system's order; nothing when the
    /// system cannot say.
    virtual std::optional<std::vector<InputSourceProperties>> list(const InputSourceFilter& filter)
        = 0;

    using SelectionHandler = std::function<void(SelectionCause cause)>;

    /// Selects a source that `list` gave. 0 on success, the system's status otherwise.
    virtual int select(const InputSourceProperties& source) = 0;

    /// Notifies the observer, never from inside `select`, that the selected source has changed,
    /// whoever changed it. A selection of this program that is undone before anybody was notified
    /// of it is notified as undone alone.
    virtual Subscription observeSelectionChanges(SelectionHandler handler) = 0;

    /// Notifies the observer that other sources can be selected now: one was added or removed, or
    /// an input method has started or ended. Comes before the notification of a selection that
    /// came of it.
    virtual Subscription observeEnabledSourcesChanges(std::function<void()> handler) = 0;

    /// What is likely to undo the selections of this program and what helps against it, as a
    /// sentence for the log; empty when nothing is known.
    virtual std::string whyUndone() = 0;
};

} // namespace brindlex
