#pragma once

#include "clipboard/ClipboardItem.h"
#include "foundation/Lifetime.h"
#include "foundation/Subscribers.h"
#include "platform/BackgroundQueue.h"
#include "platform/MainThread.h"

#include <QIcon>

#include <filesystem>
#include <functional>
#include <list>
#include <map>
#include <string>
#include <utility>

namespace brindlex {

class ClipboardHistoryStore;

/// What items look like in a row: a picture small, a text as the application that it is from. Small
/// pictures are made by a thread beside the main thread, when they are first asked for; the last
/// `mostPictures` of them are kept. Main thread only.
class ClipboardRowPictures {
public:
    static constexpr std::size_t mostPictures = 128;
    /// Of a small picture, in pixels of the screen at most.
    static constexpr int edge = 64;

    /// What it works with, which outlives it.
    struct Abilities {
        MainThread& mainThread;
        BackgroundQueue& queue;
        const ClipboardHistoryStore& store;
        /// The icon of an application; null for one without.
        std::function<QIcon(const std::string& bundleID)> applicationIcon;
    };

    explicit ClipboardRowPictures(Abilities abilities) : abilities_(std::move(abilities)) { }

    /// A null one of what has none, or not yet.
    QIcon of(const ClipboardItem& item);

    /// Notifies each time when a picture has become known.
    Subscription observe(std::function<void()> handler) { return made_.add(std::move(handler)); }

private:
    QIcon small(const std::filesystem::path& file);
    QIcon ofApplication(const std::string& bundleID);
    void make(const std::string& file);
    void keep(const std::string& file);

    Abilities abilities_;
    Subscribers<std::function<void()>> made_;
    /// Null ones of what is being made and of what is no picture.
    std::map<std::string, QIcon> pictures_;
    std::list<std::string> oldestFirst_;
    std::map<std::string, QIcon> applications_;
    Lifetime lifetime_;
};

} // namespace brindlex
