#pragma once

#include <map>
#include <optional>
#include <string>

namespace brindlex {

/// Variables of this process that get their old values back when the object goes.
///
/// Only while the process has one thread, as the environment has no lock.
class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    /// Sets the variable, or takes it away where there is no value.
    void set(const std::string& name, const std::optional<std::string>& value);

private:
    std::map<std::string, std::optional<std::string>> before_;
};

} // namespace brindlex
