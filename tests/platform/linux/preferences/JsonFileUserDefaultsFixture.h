#pragma once

#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/posix/SerialQueue.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// Preferences in a folder of their own, with the loop and the queue that they need; a test starts
/// them when what they find is there.
class JsonFileUserDefaultsTest : public testing::Test {
protected:
    using Value = std::optional<PreferenceValue>;

    std::filesystem::path path() const { return folder.path() / "com.brindlex.Brindlex.json"; }
    std::filesystem::path aside() const
    {
        return folder.path() / "com.brindlex.Brindlex.json.corrupt";
    }

    /// What the log says of a file that is no JSON.
    std::string asideLine() const
    {
        return "ERROR [lifecycle] Preferences set aside as " + aside().string() + ": is not JSON";
    }

    void start() { defaults.emplace(path(), loop.mainThread(), queue); }

    Value valueInFile(const std::string& key) const
    {
        const auto document = parsePreferences(contentOf(path()));
        const auto value = document ? valueIn(*document, key) : nullptr;
        return value ? Value(*value) : std::nullopt;
    }

    bool runUntil(const std::function<bool()>& condition) { return loop.runUntil(condition); }

    TemporaryFolder folder;
    RecordedLog log;
    QtLoop loop;
    SerialQueue queue{"preferences"};
    std::optional<JsonFileUserDefaults> defaults;
};

} // namespace brindlex
