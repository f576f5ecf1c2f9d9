#pragma once

#include "foundation/Subscribers.h"
#include "platform/BrowserPageReading.h"
#include "platform/MainThread.h"
#include "platform/simulated/SimulatedJournal.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// The browsers of a simulated computer, whose pages are read beside the main thread: a page is
/// unknown until it was read, which takes a while.
class SimulatedBrowserPages : public BrowserPageReading {
public:
    explicit SimulatedBrowserPages(MainThread& mainThread, SimulatedJournal::Writer journal = {})
        : mainThread_(mainThread), journal_(journal)
    {
    }

    std::optional<std::string> currentURL(
        const std::string& bundleID, const std::string& script) override;
    Subscription observeChanges(std::function<void()> handler) override;

    /// What the browser shows from now on; nothing makes it a browser that does not respond, and
    /// what was read of it is forgotten with the next reading.
    void setPage(const std::string& bundleID, std::optional<std::string> url);

    /// Lets readings from now on wait until it is called with false.
    void setBusy(bool isBusy);

    /// The script of every query so far.
    const std::vector<std::string>& scripts() const { return scripts_; }

private:
    void read(const std::string& bundleID);
    void finish(const std::string& bundleID);
    std::optional<std::string> known(const std::string& bundleID) const;

    MainThread& mainThread_;
    SimulatedJournal::Writer journal_;
    bool isBusy_ = false;
    std::map<std::string, std::string> pages_;
    std::map<std::string, std::string> read_;
    std::map<std::string, std::optional<std::string>> lastRead_;
    std::map<std::string, Subscription> readings_;
    std::set<std::string> held_;
    std::vector<std::string> scripts_;
    Subscribers<std::function<void()>> observers_;
};

} // namespace brindlex
