#pragma once

#include <functional>
#include <string>

namespace brindlex {

/// What is to happen with the words of a fatal error before the process ends, such as writing them
/// to the log. Set once, by the entry.
void setFatalErrorHandler(std::function<void(const std::string& message)> handler);

/// Ends the process for a reason that cannot happen unless the program is wrong: hands the message
/// to the handler, or writes it to standard error where there is none, and aborts.
[[noreturn]] void fatalError(const std::string& message);

} // namespace brindlex
