#pragma once

#include "platform/UserDefaults.h"

#include <string>
#include <vector>

namespace brindlex {

/// The language of the catalogue that the program speaks: the first that it knows of those in the
/// preference "AppleLanguages", then of those that the system is set to, as in `Platform`; else
/// English.
std::string spokenLanguage(
    const UserDefaultsType& defaults, const std::vector<std::string>& systemLanguages);

} // namespace brindlex
