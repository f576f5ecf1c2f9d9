#include "support/basics/ScopedEnvironment.h"

#include <cstdlib>

namespace brindlex {
namespace {

std::optional<std::string> valueOf(const std::string& name)
{
    const auto value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

void assign(const std::string& name, const std::optional<std::string>& value)
{
    if (value)
        setenv(name.c_str(), value->c_str(), 1);
    else
        unsetenv(name.c_str());
}

} // namespace

ScopedEnvironment::~ScopedEnvironment()
{
    for (const auto& [name, value] : before_)
        assign(name, value);
}

void ScopedEnvironment::set(const std::string& name, const std::optional<std::string>& value)
{
    before_.emplace(name, valueOf(name));
    assign(name, value);
}

} // namespace brindlex
