#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// A universally unique identifier, RFC 4122. All zeros when default-constructed.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// A new one, of version 4, from the system's source of randomness.
    static Uuid random();

    /// Reads the usual text form of 8-4-4-4-12 hexadecimal digits, in either case.
    static std::optional<Uuid> fromText(std::string_view text);

    /// The usual text form, in upper case.
    std::string text() const;

    bool operator==(const Uuid&) const = default;
    auto operator<=>(const Uuid&) const = default;
};

} // namespace brindlex

template <>
struct std::hash<brindlex::Uuid> {
    std::size_t operator()(const brindlex::Uuid& uuid) const noexcept;
};
