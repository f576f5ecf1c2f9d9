#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Where an IBus daemon can be reached.
struct IBusAddress {
    std::string address{};
    std::int64_t processIdentifier = 0;

    bool operator==(const IBusAddress&) const = default;
};

/// The content of an address file; nothing without an address.
std::optional<IBusAddress> parseIBusAddress(std::string_view content);

/// The file in which the daemon of a display leaves its address: below the configuration folder,
/// named after machine and display.
std::filesystem::path ibusAddressFile(const std::filesystem::path& configFolder,
    const std::string& machine, const std::string& display);

/// The address of the daemon of this session, from environment and address file. The file stays
/// behind when a daemon dies: nothing when its process does not run any more.
std::optional<IBusAddress> ibusAddress();

} // namespace brindlex
