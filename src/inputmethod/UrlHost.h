#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// The host that a URL names, as it is written there but with percent-escapes decoded; an IPv6
/// address keeps its brackets.
///
/// Nothing when the text has no authority ("//" after the scheme, or in front) or does not parse: a
/// scheme that is none, a bracket that is not closed, a port with anything but digits, a host with
/// a broken escape, with escapes that do not give UTF-8, or with an ASCII character that RFC 3986
/// keeps out of hosts. Hosts in other scripts pass. An authority without a host gives the empty
/// text. What follows the authority cannot fail, as programs show addresses with much in them that
/// the RFC would have escaped.
std::optional<std::string> urlHost(std::string_view text);

} // namespace brindlex
