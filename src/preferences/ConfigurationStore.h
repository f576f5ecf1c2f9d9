#pragma once

#include "foundation/JsonSameness.h"
#include "foundation/Observable.h"
#include "log/Log.h"
#include "platform/UserDefaults.h"
#include "preferences/PreferenceKey.h"

#include <optional>
#include <string>
#include <utility>

namespace brindlex {

/// Keeps one record of the user's settings in the preferences, as one text.
///
/// What is stored is read once, at construction, and written back by nothing but an assignment; one
/// that cannot be read gives the default.
/// An assignment publishes first and then writes, at once and whether or not anything changed; an
/// assignment from inside a subscriber is the one that stays, in `config` and in the preferences.
/// Main thread only.
template <typename Record>
class ConfigurationStore {
public:
    ConfigurationStore(UserDefaultsType& defaults, PreferenceKey<Record> key)
        : config_(readPreference(defaults, key)), defaults_(defaults), key_(std::move(key)),
          lastSeen_(defaults_.value(key_.key))
    {
    }
    virtual ~ConfigurationStore() = default;
    ConfigurationStore(const ConfigurationStore&) = delete;
    ConfigurationStore& operator=(const ConfigurationStore&) = delete;

    const Observable<Record>& config() const { return config_; }

    /// Whether the record being assigned comes from the preferences and is not to be written back.
    bool isApplyingLoadedConfig() const { return isApplyingLoadedConfig_; }

    void setConfig(Record config)
    {
        config_.set(std::move(config));
        if (!isApplyingLoadedConfig_)
            persist();
    }

    /// Publishes the record and leaves the preferences as they are.
    void applyLoadedConfig(Record config)
    {
        const bool before = std::exchange(isApplyingLoadedConfig_, true);
        setConfig(std::move(config));
        isApplyingLoadedConfig_ = before;
    }

    /// Takes over what something else than this store has stored since. A removed record gives the
    /// default; one that cannot be read leaves the present one in force, with a line in the log,
    /// since somebody may be in the middle of editing it.
    void reload()
    {
        const auto object = defaults_.value(key_.key);
        if (object == lastSeen_)
            return;
        lastSeen_ = object;
        auto stored = object ? PreferenceForm<Record>::read(*object) : key_.defaultValue;
        if (!stored)
            Log::warn("The preference \"" + key_.key + "\" cannot be read; the present one stays",
                logCategory::lifecycle);
        else if (!hasSameJson(*stored, config_.value()))
            applyLoadedConfig(*std::move(stored));
    }

    /// Brings the record to the preferences, for each assignment and whenever it is asked for.
    virtual void persist() { write(); }

protected:
    /// Writes the record, whatever is stored so far. Encodes it only when it is not the one that
    /// was written last: a learning record is written twice for each change of application.
    void write()
    {
        const auto& config = config_.value();
        if (!written_ || !hasSameJson(written_->record, config))
            written_ = Written{config, PreferenceForm<Record>::stored(config)};
        lastSeen_ = written_->object;
        defaults_.set(key_.key, written_->object);
    }

private:
    struct Written {
        Record record;
        PreferenceValue object;
    };

    Observable<Record> config_;
    UserDefaultsType& defaults_;
    bool isApplyingLoadedConfig_ = false;
    PreferenceKey<Record> key_;
    std::optional<Written> written_;
    /// What was stored when this store last read or wrote.
    std::optional<PreferenceValue> lastSeen_;
};

} // namespace brindlex
