#pragma once

#include <string>
#include <vector>

struct sd_bus;

namespace brindlex {

/// Listens to the signals of one interface on the session bus, whoever sends them.
class BusSignals {
public:
    explicit BusSignals(const std::string& interface);
    ~BusSignals();
    BusSignals(const BusSignals&) = delete;
    BusSignals& operator=(const BusSignals&) = delete;

    /// The signals so far, oldest first: the name, then the leading arguments that are texts.
    const std::vector<std::vector<std::string>>& received();

private:
    sd_bus* bus_ = nullptr;
    std::string interface_;
    std::vector<std::vector<std::string>> received_;
};

} // namespace brindlex
