#pragma once

#include "platform/LoginItem.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>

namespace brindlex {

/// A login item that the system's settings may switch off, and that may refuse to change.
class SimulatedLoginItem : public LoginItem {
public:
    explicit SimulatedLoginItem(SimulatedJournal::Writer journal = {}) : journal_(journal) { }

    Status status() override { return status_; }
    Result<Done, std::string> registerProgram() override
    {
        return change("register login item", Status::enabled);
    }
    Result<Done, std::string> unregisterProgram() override
    {
        return change("unregister login item", Status::notRegistered);
    }

    /// As the system's own settings would.
    void set(Status status) { status_ = status; }

    /// Why a change fails.
    std::optional<std::string> refusal{};

private:
    Result<Done, std::string> change(const char* entry, Status status)
    {
        journal_.add(entry);
        if (refusal)
            return fail(*refusal);
        status_ = status;
        return Done{};
    }

    SimulatedJournal::Writer journal_;
    Status status_ = Status::notRegistered;
};

} // namespace brindlex
