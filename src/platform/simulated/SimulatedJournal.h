#pragma once

#include "foundation/Subscription.h"

#include <mutex>
#include <string>
#include <vector>

namespace brindlex {

/// What a program asked of a simulated computer, in order, as text: "set mouseConfig", "tap on".
///
/// It has the commands, and each observation with its end; of the queries it has those alone with
/// which a program begins: the container and the running instances. Outlives who writes to it, the
/// observations included. Callable from any thread.
class SimulatedJournal {
public:
    class Writer;

    void add(std::string entry);

    std::vector<std::string> entries() const;

    /// The entries so far; the journal begins afresh.
    std::vector<std::string> take();

private:
    mutable std::mutex mutex_;
    std::vector<std::string> entries_;
};

/// The way of one ability to the journal of its computer, which need not keep one.
class SimulatedJournal::Writer {
public:
    /// Writes nowhere.
    Writer() = default;
    /// Writes nowhere when null.
    Writer(SimulatedJournal* journal) : journal_(journal) { }

    void add(const std::string& entry) const;

    /// Adds "observe <what>", and "observe <what> no more" when the observation ends.
    Subscription addObservation(const std::string& what, Subscription observation) const;

private:
    SimulatedJournal* journal_ = nullptr;
};

} // namespace brindlex
