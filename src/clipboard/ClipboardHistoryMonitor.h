#pragma once

#include "clipboard/ClipboardHistoryStore.h"
#include "foundation/Date.h"
#include "platform/Clock.h"
#include "platform/ImageConverting.h"
#include "platform/MainThread.h"
#include "platform/Pasteboard.h"
#include "platform/RunningApplications.h"

#include <cstdint>
#include <string>

namespace brindlex {

/// Brings what is copied into the history.
///
///     stopped ──start──▶ waiting ──pasteboard changes──▶ due ──▶ tick
///        ▲                  ▲  │                          │       │
///        └──────stop────────┘──┴──────────────────────────┘       │
///                           └─────────────────────────────────────┘
///
/// It looks at the pasteboard every half second since its start, and of these times leaves out
/// those before which nothing was copied: nothing wakes the program then. What is on the pasteboard
/// at the start is not recorded, and of what is copied between two looks only the last. A content
/// that the history has already is moved and not taken in again, the program's own writes included.
/// Main thread only.
class ClipboardHistoryMonitor {
public:
    /// What the monitor works with, which outlives it.
    struct Abilities {
        Pasteboard& pasteboard;
        ImageConverting& images;
        const RunningApplications& applications;
        MainThread& mainThread;
        const Clock& clock;
    };

    static constexpr Seconds interval = 0.5;

    ClipboardHistoryMonitor(const Abilities& abilities, ClipboardHistoryStore& store);

    /// Does nothing while it is running.
    void start();
    void stop();

private:
    void awaitTick();
    void tick();
    void recordText(ClipboardItem item);
    void recordImage(ClipboardItem item);
    void recordFiles(ClipboardItem item, std::vector<std::string> paths);
    bool isKnown(const std::string& fingerprint);

    Abilities abilities_;
    ClipboardHistoryStore& store_;
    std::int64_t lastChangeCount_;
    Seconds startTime_ = 0;
    bool awaitsTick_ = false;
    Subscription changes_;
    Subscription timer_;
};

} // namespace brindlex
