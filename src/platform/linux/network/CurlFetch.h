#pragma once

#include "platform/HttpReading.h"

#include <string>

namespace brindlex {

/// Reads the document and waits for it. The certificates that are trusted are those of the file, or
/// those of the system where none is named.
Result<std::string, HttpProblem> fetch(
    const std::string& url, const HttpReading::Limits& limits, const std::string& trusted);

} // namespace brindlex
