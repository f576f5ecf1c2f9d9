#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// A domain in lower case as users read and write it: "xn--bcher-kva.example" is
/// "bücher.example" (UTS 46, nontransitional). What is no valid encoding stays as it is.
std::string unicodeDomain(std::string_view domain);

} // namespace brindlex
