#pragma once

#include <string>
#include <systemd/sd-bus.h>

namespace brindlex {

/// A program's place on the accessibility bus of the desktop, for programs that tests start.
class AccessibleProgram {
public:
    AccessibleProgram();
    ~AccessibleProgram();
    AccessibleProgram(const AccessibleProgram&) = delete;
    AccessibleProgram& operator=(const AccessibleProgram&) = delete;

    bool isConnected() const { return !service_.empty(); }
    sd_bus* get() const { return bus_; }
    /// The program's name on the bus.
    const std::string& service() const { return service_; }

    /// Says that the program is there, to the bus and by a file `ready` in the folder, and answers
    /// questions as long as the bus lasts; the code for `exit`.
    int run(const std::string& folder) const;

private:
    sd_bus* bus_ = nullptr;
    std::string service_;
};

} // namespace brindlex
