#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// The domain that a text names, in the one form in which domains are stored and compared: lower
/// case, without its first leading "www." and without trailing dots.
///
/// Takes what a user types and what a browser reports: a domain or a URL. Scheme, user, port, path
/// and query fall away. Nothing for a text with white space inside, for a name of a single label,
/// which "www." and one label also is, and for a label that is empty, longer than 63 characters,
/// begins or ends with "-" or holds anything but letters and numbers of any script and "-".
std::optional<std::string> normalizedDomain(std::string_view text);

} // namespace brindlex
