#pragma once

#include "foundation/Subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace brindlex {

/// What somebody else has stored and is no plain value, such as an object or a list of numbers: its
/// JSON text. A text that is not JSON is stored as null.
struct PreferenceJson {
    std::string text{};

    bool operator==(const PreferenceJson&) const = default;
};

/// What preferences can hold: plain values, and JSON that others have put there.
using PreferenceValue = std::variant<bool, std::int64_t, double, std::string,
    std::vector<std::string>, PreferenceJson>;

/// Preferences as a store sees them: a map from keys to values.
class UserDefaultsType {
public:
    virtual ~UserDefaultsType() = default;

    /// The stored object; nothing when there is none.
    virtual std::optional<PreferenceValue> value(const std::string& key) const = 0;

    /// Stores the object, or removes what is stored when given nothing. The new state is in memory
    /// when this returns, and on disk within 100 ms, also where it is the present one and another
    /// process has written something else since.
    virtual void set(const std::string& key, std::optional<PreferenceValue> object) = 0;
};

/// The user's preferences, kept from one run of the program to the next.
///
/// Reading is allowed from any thread; everything else from the main thread only.
class UserDefaults : public UserDefaultsType {
public:
    /// Brings what was set to disk and takes over what other processes have written there.
    virtual void synchronize() = 0;

    /// Notifies the observer, on the main thread, that values have changed: by `set` in this
    /// process, or by another process. Not notified when a `set` changed nothing.
    virtual Subscription observeChanges(std::function<void()> handler) = 0;
};

} // namespace brindlex
