#pragma once

#include <string>

struct sd_bus;

namespace brindlex {

/// Counts the calls of one operation that anybody makes of anybody on the session bus.
class BusCalls {
public:
    explicit BusCalls(const std::string& operation);
    ~BusCalls();
    BusCalls(const BusCalls&) = delete;
    BusCalls& operator=(const BusCalls&) = delete;

    /// How many there were since the last question.
    int taken();

private:
    sd_bus* bus_ = nullptr;
    std::string operation_;
};

} // namespace brindlex
