#pragma once

#include "foundation/Subscribers.h"
#include "platform/KeyboardInputSources.h"
#include "platform/MainThread.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The input sources of a simulated computer, none at first. Main thread only.
class SimulatedInputSources final : public KeyboardInputSources {
public:
    /// Status of a source that is not there or cannot be selected (paramErr).
    static constexpr int invalidSource = -50;

    explicit SimulatedInputSources(MainThread& mainThread, SimulatedJournal::Writer journal = {})
        : mainThread_(mainThread), journal_(journal)
    {
    }

    std::optional<InputSourceProperties> current() override;
    std::optional<std::vector<InputSourceProperties>> list(
        const InputSourceFilter& filter) override;
    int select(const InputSourceProperties& source) override;
    Subscription observeSelectionChanges(SelectionHandler handler) override;
    Subscription observeEnabledSourcesChanges(std::function<void()> handler) override;
    std::string whyUndone() override { return whyUndone_; }

    /// A keyboard layout that can be selected.
    static InputSourceProperties keyboard(const std::string& id, const std::string& name);

    /// Adds a source, of any category and with any property missing; the first becomes the selected
    /// one.
    void install(const InputSourceProperties& source);
    /// Takes a source away; if it was selected, the first of the others is.
    void remove(const std::string& id);

    /// Selects a source as the user does, whatever it is.
    void userSelects(const std::string& id);
    /// Selects a source as a desktop does that keeps one for each window.
    void placeBrings(const std::string& id);
    /// Selects a source instead of the one that the program has selected.
    void undoWith(const std::string& id);
    /// Gives the reason for which selections are undone here.
    void setWhyUndone(const std::string& reason) { whyUndone_ = reason; }

    /// Makes the next selections by the program fail with the status.
    void failSelections(int count, int status);

    /// Delays the notifications of a selection by this much.
    void delayNotifications(Seconds delay) { delay_ = delay; }

    /// Makes the system unable to respond, or able again.
    void setResponds(bool responds) { responds_ = responds; }

    /// The identifiers that the program has tried to select, failures included.
    const std::vector<std::string>& attempts() const { return attempts_; }

private:
    const InputSourceProperties* find(const std::string& id) const;
    void notifyOfSources();
    void become(const std::string& id, SelectionCause cause);

    MainThread& mainThread_;
    SimulatedJournal::Writer journal_;
    std::vector<InputSourceProperties> sources_;
    std::optional<std::string> selected_;
    std::vector<std::string> attempts_;
    int failures_ = 0;
    int failureStatus_ = 0;
    Seconds delay_ = 0;
    bool responds_ = true;
    std::string whyUndone_;
    Subscribers<SelectionHandler> selectionObservers_;
    Subscribers<std::function<void()>> enabledSourcesObservers_;
    std::vector<Subscription> delayed_;
};

} // namespace brindlex
