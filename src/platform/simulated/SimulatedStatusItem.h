#pragma once

#include "foundation/Subscribers.h"
#include "platform/StatusItem.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>
#include <utility>

namespace brindlex {

/// An icon in memory, on a desktop that has a place for icons as long as a test wants it to.
class SimulatedStatusItem : public StatusItem {
public:
    explicit SimulatedStatusItem(SimulatedJournal::Writer journal = {}) : journal_(journal) { }

    void show(const StatusItemContents& contents) override
    {
        journal_.add("show icon");
        contents_ = contents;
        update();
    }
    void hide() override
    {
        if (!contents_)
            return;
        journal_.add("hide icon");
        contents_.reset();
        update();
    }
    const Observable<bool>& isOnDesktop() const override { return isOnDesktop_; }
    Subscription observeActivation(std::function<void()> handler) override
    {
        return journal_.addObservation("clicks on the icon", activations_.add(std::move(handler)));
    }
    Subscription observeChoice(std::function<void(int id)> handler) override
    {
        return journal_.addObservation("choices at the icon", choices_.add(std::move(handler)));
    }

    /// What the icon has, on the desktop or waiting for one; nothing when it is not shown.
    const std::optional<StatusItemContents>& contents() const { return contents_; }

    /// Gives the desktop a place for icons, or takes it away.
    void setPlace(bool hasPlace)
    {
        hasPlace_ = hasPlace;
        update();
    }

    /// The user clicks on the icon.
    void click()
    {
        if (isOnDesktop_.value())
            activations_.notify();
    }
    /// The user chooses an item, if the menu has it.
    void choose(int id)
    {
        if (isOnDesktop_.value() && canChoose(contents_->menu, id))
            choices_.notify(id);
    }

private:
    void update()
    {
        const bool isOnDesktop = hasPlace_ && contents_;
        if (isOnDesktop != isOnDesktop_.value())
            isOnDesktop_.set(isOnDesktop);
    }

    SimulatedJournal::Writer journal_;
    bool hasPlace_ = true;
    std::optional<StatusItemContents> contents_;
    Observable<bool> isOnDesktop_{false};
    Subscribers<std::function<void()>> activations_;
    Subscribers<std::function<void(int)>> choices_;
};

} // namespace brindlex
