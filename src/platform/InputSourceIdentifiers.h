#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// A keyboard layout of the X server, such as "us" with the variant "intl" or with none.
struct XkbLayout {
    std::string layout{};
    std::string variant{};

    bool operator==(const XkbLayout&) const = default;
    auto operator<=>(const XkbLayout&) const = default;
};

/// The identifier of a layout as a source: "xkb:us:intl:eng". The language is an ISO 639-2 code,
/// its terminological form being the one that is written.
std::string xkbSourceID(const XkbLayout& layout, std::string_view language);

/// The layout that an identifier of that form names; nothing for any other text.
std::optional<XkbLayout> layoutOfSource(std::string_view id);

/// The one form of an identifier: "xkb:de::ger" becomes "xkb:de::deu".
std::string canonicalSourceID(std::string_view id);

/// Whether two identifiers name the same source. Of a layout the language is for show: input
/// methods and the X server name different ones for hundreds of layouts, and a rule survives a
/// change between them. The number of a layout that is there twice counts.
bool isSameSource(std::string_view id, std::string_view other);

/// The identifier of an IBus engine: its layouts are "xkb:" sources, all else is "ibus:" and the
/// name.
std::string sourceIDOfIBusEngine(std::string_view engine);

/// The layout of an Fcitx 5 keyboard, such as "keyboard-us-intl"; nothing for another input method.
std::optional<XkbLayout> layoutOfFcitxKeyboard(std::string_view inputMethod);

/// The identifier of an Fcitx 5 input method; `language` is the one of the layout of a keyboard.
std::string sourceIDOfFcitx(std::string_view inputMethod, std::string_view language);

} // namespace brindlex
