#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "platform/linux/appearance/GtkAppearance.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto content = brindlex::textOf(bytes, size);
    const auto settings = xSettingsOf(content);
    std::size_t length = 0;
    for (const auto& [name, value] : settings) {
        const auto* const text = std::get_if<std::string>(&value);
        require(isWellFormed(name), "every name is well-formed");
        require(!text || isWellFormed(*text), "every text is well-formed");
        ++length;
    }
    // Each takes twelve bytes at least, and the head as many.
    require(12 * (length + (length > 0)) <= size, "nothing is made up");
    const auto before = xSettingsOf(content.substr(0, size / 2));
    require(before.size() <= settings.size(), "what is cut off adds nothing");
    const auto appearance = gtkAppearance(settings);
    require(appearance.isDark.has_value() || !textOf(settings, "Net/ThemeName"),
        "a theme is light or dark");
    return 0;
}
