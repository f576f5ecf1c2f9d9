#pragma once

#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// The languages that the environment of a process asks for, the preferred one first, each as it
/// stands there: "de_AT.UTF-8".
///
/// The locale for messages is the first of `LC_ALL`, `LC_MESSAGES` and `LANG` that is set and not
/// empty. Before it come the languages of `LANGUAGE`, which are separated by colons; they do not
/// count where the locale is "C" or "POSIX", as it is without any.
std::vector<std::string> posixLanguages(
    const std::function<const char*(const char* name)>& environment);

} // namespace brindlex
