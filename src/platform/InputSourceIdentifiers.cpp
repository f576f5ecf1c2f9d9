#include "platform/InputSourceIdentifiers.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view xkbPrefix = "xkb:";
constexpr std::string_view keyboardPrefix = "keyboard-";

/// ISO 639-2: the languages with two codes, the bibliographic one first.
constexpr std::array<std::pair<std::string_view, std::string_view>, 20> twoCodes{{
    {"alb", "sqi"},
    {"arm", "hye"},
    {"baq", "eus"},
    {"bur", "mya"},
    {"chi", "zho"},
    {"cze", "ces"},
    {"dut", "nld"},
    {"fre", "fra"},
    {"geo", "kat"},
    {"ger", "deu"},
    {"gre", "ell"},
    {"ice", "isl"},
    {"mac", "mkd"},
    {"mao", "mri"},
    {"may", "msa"},
    {"per", "fas"},
    {"rum", "ron"},
    {"slo", "slk"},
    {"tib", "bod"},
    {"wel", "cym"},
}};

std::string_view terminological(std::string_view language)
{
    const auto found = std::find_if(twoCodes.begin(), twoCodes.end(),
        [&](const auto& codes) { return codes.first == language; });
    return found == twoCodes.end() ? language : found->second;
}

/// What distinguishes a source from one with the same layout: "#2" of the second.
std::string_view numberIn(std::string_view id)
{
    const auto mark = id.rfind('#');
    return mark == std::string_view::npos ? std::string_view() : id.substr(mark);
}

} // namespace

std::string xkbSourceID(const XkbLayout& layout, std::string_view language)
{
    return std::string(xkbPrefix) + layout.layout + ":" + layout.variant + ":"
        + std::string(terminological(language));
}

std::optional<XkbLayout> layoutOfSource(std::string_view id)
{
    if (!id.starts_with(xkbPrefix))
        return {};
    const auto parts = split(id.substr(xkbPrefix.size()), ':');
    if (parts.size() != 3 || parts[0].empty())
        return {};
    return XkbLayout{parts[0], parts[1]};
}

std::string canonicalSourceID(std::string_view id)
{
    const auto layout = layoutOfSource(id);
    if (!layout)
        return std::string(id);
    return xkbSourceID(*layout, id.substr(id.rfind(':') + 1));
}

bool isSameSource(std::string_view id, std::string_view other)
{
    if (id == other)
        return true;
    const auto layout = layoutOfSource(id);
    return layout && layout == layoutOfSource(other) && numberIn(id) == numberIn(other);
}

std::string sourceIDOfIBusEngine(std::string_view engine)
{
    if (layoutOfSource(engine))
        return canonicalSourceID(engine);
    return "ibus:" + std::string(engine);
}

std::optional<XkbLayout> layoutOfFcitxKeyboard(std::string_view inputMethod)
{
    if (!inputMethod.starts_with(keyboardPrefix) || inputMethod.size() == keyboardPrefix.size())
        return {};
    const auto name = inputMethod.substr(keyboardPrefix.size());
    const auto dash = name.find('-');
    return XkbLayout{std::string(name.substr(0, dash)),
        dash == name.npos ? std::string() : std::string(name.substr(dash + 1))};
}

std::string sourceIDOfFcitx(std::string_view inputMethod, std::string_view language)
{
    if (const auto layout = layoutOfFcitxKeyboard(inputMethod))
        return xkbSourceID(*layout, language);
    return "fcitx5:" + std::string(inputMethod);
}

} // namespace brindlex
