#pragma once

#include "foundation/JsonForm.h"
#include "foundation/Result.h"
#include "shell/SemanticVersion.h"

#include <string>
#include <string_view>
#include <tuple>

namespace brindlex {

/// What the maker of the program publishes of its newest version.
struct UpdateFeed {
    SemanticVersion version{};
    /// The day of the release, "2026-11-22"; empty where the feed has none.
    std::string date{};
    /// What is new, as plain text of any number of lines.
    std::string notes{};
    /// The page to get it from; HTTPS.
    std::string address{};

    bool operator==(const UpdateFeed&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("version", &UpdateFeed::version),
            orDefault("date", &UpdateFeed::date),
            orDefault("notes", &UpdateFeed::notes),
            required("address", &UpdateFeed::address),
        };
    }
};

/// Whether it is an address of HTTPS that names no user and has no characters but those of
/// addresses, 2048 of them at the most.
bool isSecureAddress(const std::string& address);

/// Reads the text of a feed. A problem is a text of any other form, a day that no calendar has, and
/// an address that is not secure.
Result<UpdateFeed, JsonProblem> decodeUpdateFeed(std::string_view text);

/// The text that `decodeUpdateFeed` reads.
std::string encodeUpdateFeed(const UpdateFeed& feed);

} // namespace brindlex
