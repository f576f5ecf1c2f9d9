#pragma once

#include "platform/HttpReading.h"

#include <string>
#include <string_view>

namespace brindlex {

/// What the fetcher has to say on its standard output, as text: "content\n" and the bytes, or the
/// kind of the problem, a new line and the detail.
std::string encodeFetchOutcome(const Result<std::string, HttpProblem>& outcome);

/// Reads that text. One of any other form is a fetcher that has ended before it could say anything:
/// the server is unreachable.
Result<std::string, HttpProblem> decodeFetchOutcome(std::string_view text);

} // namespace brindlex
