#pragma once

#include "clipboard/ClipboardHistoryStore.h"
#include "clipboard/ClipboardIndex.h"
#include "clipboard/ClipboardPreferenceKeys.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/PreferenceKey.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A history in a real folder, whose index is written when the queue is told to. The time is that
/// of the day of the items.
struct ClipboardHistoryStoreTest : testing::Test {
    using Texts = std::vector<std::string>;

    ClipboardHistoryStore& start()
    {
        return store.emplace(
            ClipboardHistoryStore::Abilities{mainThread, clock, queue, defaults}, directory);
    }

    void setLimit(std::int64_t limit)
    {
        writePreference(defaults, ClipboardPreferenceKeys{}.clipboardMaxItems, limit);
    }

    /// Lets the time pass that a change waits to be written, and writes.
    void save()
    {
        mainThread.advance(0.2);
        queue.drain();
    }

    Texts texts() const { return textsOf(store->items().value()); }

    /// The texts of the items in the file.
    Texts savedTexts() const
    {
        const auto items = readClipboardIndex(index);
        return items && *items ? textsOf(**items) : Texts{"unreadable"};
    }

    TemporaryFolder temporary;
    std::filesystem::path directory = temporary.path() / "Brindlex/ClipboardHistory";
    std::filesystem::path index = directory / "index.json";
    std::filesystem::path aside = directory / "index.json.corrupt";
    std::filesystem::path blobs = directory / "blobs";
    RecordedLog log;
    SimulatedClock clock{clipboardDay};
    SimulatedMainThread mainThread{clock};
    SimulatedQueue queue;
    SimulatedUserDefaults defaults;
    std::optional<ClipboardHistoryStore> store;
};

} // namespace brindlex
