#include "app/linux/SessionOffer.h"

#include <string_view>

namespace brindlex {

SessionOffer SessionOffer::fromEnvironment(const Environment& environment)
{
    const auto isSet = [&](const char* name) {
        const auto* value = environment(name);
        return value && !std::string_view(value).empty();
    };
    return {.hasX11 = isSet("DISPLAY")};
}

} // namespace brindlex
