#include "platform/simulated/SimulatedJournal.h"

#include <memory>
#include <utility>

namespace brindlex {

void SimulatedJournal::add(std::string entry)
{
    const std::lock_guard guard(mutex_);
    entries_.push_back(std::move(entry));
}

std::vector<std::string> SimulatedJournal::entries() const
{
    const std::lock_guard guard(mutex_);
    return entries_;
}

std::vector<std::string> SimulatedJournal::take()
{
    const std::lock_guard guard(mutex_);
    return std::exchange(entries_, {});
}

void SimulatedJournal::Writer::add(const std::string& entry) const
{
    if (journal_)
        journal_->add(entry);
}

Subscription SimulatedJournal::Writer::addObservation(
    const std::string& what, Subscription observation) const
{
    if (!journal_)
        return observation;
    const auto entry = "observe " + what;
    journal_->add(entry);
    return Subscription(
        [journal = journal_, entry, held = std::make_shared<Subscription>(std::move(observation))] {
            journal->add(entry + " no more");
            held->reset();
        });
}

} // namespace brindlex
