#pragma once

#include "foundation/JsonEnumeration.h"

#include <array>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace brindlex {

/// The language of the program, as the user chose it.
enum class LanguagePreference { system, en, zhHans, zhHant, ja, fr, es, de, ko };

constexpr auto storedValues(std::type_identity<LanguagePreference>)
{
    return std::array{
        std::pair{LanguagePreference::system, "system"},
        std::pair{LanguagePreference::en, "en"},
        std::pair{LanguagePreference::zhHans, "zh-Hans"},
        std::pair{LanguagePreference::zhHant, "zh-Hant"},
        std::pair{LanguagePreference::ja, "ja"},
        std::pair{LanguagePreference::fr, "fr"},
        std::pair{LanguagePreference::es, "es"},
        std::pair{LanguagePreference::de, "de"},
        std::pair{LanguagePreference::ko, "ko"},
    };
}

/// The code of the chosen language; nothing for that of the system.
inline std::optional<std::string> languageCode(LanguagePreference preference)
{
    if (preference == LanguagePreference::system)
        return {};
    return storedValue(preference);
}

} // namespace brindlex
