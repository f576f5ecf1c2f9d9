#pragma once

#include "foundation/Date.h"

#include <string>

namespace brindlex {

/// When something was, as people say it in a language: "today, 22:13", "yesterday", and for all
/// other days the date. Days are those of the time zone, by its name in the tz database.
std::string timeInWords(
    Date time, Date now, const std::string& language, const std::string& timeZone);

/// The name of the time zone of this computer.
std::string localTimeZone();

} // namespace brindlex
