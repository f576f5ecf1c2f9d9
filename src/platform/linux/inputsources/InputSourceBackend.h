#pragma once

#include "foundation/Subscribers.h"
#include "foundation/Subscription.h"
#include "platform/InputSourceIdentifiers.h"
#include "platform/KeyboardInputSources.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A source that an input method of the desktop has enabled.
struct InputSource {
    std::string id{};
    std::string name{};

    bool operator==(const InputSource&) const = default;

    /// What is enabled can be selected.
    InputSourceProperties properties() const
    {
        return {id, std::string(keyboardInputSourceCategory), name, true, true};
    }

    bool matches(const InputSourceFilter& filter) const
    {
        return (!filter.id || isSameSource(*filter.id, id))
            && (!filter.category || *filter.category == keyboardInputSourceCategory)
            && filter.isSelectCapable != false && filter.isEnabled != false;
    }
};

/// What became of a selection; the numbers are the status that `KeyboardInputSources` returns.
enum class SelectionStatus : int {
    /// Selected, or on the way: a daemon that takes its time has the request, and what comes of it
    /// is notified as a change.
    done = 0,
    /// There is no such source.
    unknownSource = 1,
    /// The server or the daemon has gone.
    notConnected = 2,
    /// The daemon returned an error, or did nothing.
    refused = 3,
};

/// How long a daemon's reply is worth anything to one who does not wait for it.
inline constexpr int callLimitMilliseconds = 5000;

/// How long `select` waits for a daemon: a warm engine takes 1 to 15 ms, one that has to be started
/// 120 ms; a daemon that hangs must not hold us up.
inline constexpr std::chrono::milliseconds selectionWait{30};

/// One of the programs by which a desktop switches input sources. Main thread only.
class InputSourceBackend {
public:
    virtual ~InputSourceBackend() = default;

    /// For people: "IBus".
    virtual std::string_view name() const = 0;

    /// Whether it can be used now: it has replied and has sources to choose from.
    virtual bool isUsable() const = 0;

    /// The identifier of the selected source; while a selection is on its way, that of its target.
    virtual std::optional<std::string> current() = 0;

    /// The enabled sources, in the daemon's order.
    virtual const std::vector<InputSource>& sources() = 0;

    /// Selects one of `sources`.
    virtual SelectionStatus select(const std::string& id) = 0;

    /// Notifies that anything above may return something else now, also from inside calls. The
    /// cause is `choice` unless the backend knows that the source in force was nobody's choice.
    Subscription observe(std::function<void(SelectionCause hint)> handler)
    {
        return observers_.add(std::move(handler));
    }

protected:
    void notify(SelectionCause hint = SelectionCause::choice) const { observers_.notify(hint); }

private:
    Subscribers<std::function<void(SelectionCause hint)>> observers_;
};

} // namespace brindlex
