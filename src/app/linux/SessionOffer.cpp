#include "app/linux/SessionOffer.h"

#include <string_view>

namespace brindlex {

SessionOffer SessionOffer::fromEnvironment(const Environment& environment)
{
    const auto value = [&](const char* name) {
        const auto* const found = environment(name);
        return std::string_view(found ? found : "");
    };
    return {.hasX11 = !value("DISPLAY").empty(),
        .desktop = desktopFamily(value("XDG_CURRENT_DESKTOP"))};
}

} // namespace brindlex
