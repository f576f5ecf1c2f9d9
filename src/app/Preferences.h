#pragma once

#include "app/UserDefaultPreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "platform/UserFolders.h"

namespace brindlex {

/// The user's preferences by name and type:
///
///     preferences.read(&UserDefaultPreferenceKeys::launchAtLogin)
///     preferences.write(&UserDefaultPreferenceKeys::launchAtLogin, true)
///
/// Reading is allowed from any thread; everything else from the main thread only.
class Preferences {
public:
    Preferences(UserDefaults& defaults, const UserFolders& folders)
        : defaults_(defaults), folders_(folders)
    {
    }

    /// The keys as they are at this moment.
    UserDefaultPreferenceKeys keys() const { return UserDefaultPreferenceKeys::forUser(folders_); }

    /// The stored value; the default where there is none that can be read.
    template <UserDefaultPreferenceKey Key>
    typename Key::Value read(Key UserDefaultPreferenceKeys::*key) const
    {
        return readPreference(defaults_, keys().*key);
    }

    /// Whether anything is stored, readable or not.
    template <UserDefaultPreferenceKey Key>
    bool hasStoredObject(Key UserDefaultPreferenceKeys::*key) const
    {
        return defaults_.value((keys().*key).key).has_value();
    }

    /// Stores the value, whatever is stored so far.
    template <UserDefaultPreferenceKey Key>
    void write(Key UserDefaultPreferenceKeys::*key, const typename Key::Value& value)
    {
        writePreference(defaults_, keys().*key, value);
    }

    /// Takes away what is stored, so that the default holds.
    template <UserDefaultPreferenceKey Key>
    void remove(Key UserDefaultPreferenceKeys::*key)
    {
        defaults_.set((keys().*key).key, {});
    }

    /// The storage, for what goes beyond single values: `synchronize`, `observeChanges`, stores.
    UserDefaults& defaults() { return defaults_; }

private:
    UserDefaults& defaults_;
    const UserFolders& folders_;
};

} // namespace brindlex
