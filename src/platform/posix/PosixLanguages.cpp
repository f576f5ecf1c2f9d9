#include "platform/posix/PosixLanguages.h"

#include "foundation/Text.h"

#include <utility>

namespace brindlex {

std::vector<std::string> posixLanguages(
    const std::function<const char*(const char* name)>& environment)
{
    const auto valueOf = [&](const char* name) {
        const auto* value = environment(name);
        return std::string(value ? value : "");
    };
    std::string locale;
    for (const auto* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (locale.empty())
            locale = valueOf(name);
    const auto base = locale.substr(0, locale.find('.'));
    if (base.empty() || base == "C" || base == "POSIX")
        return {};
    std::vector<std::string> languages;
    for (auto& language : split(valueOf("LANGUAGE"), ':'))
        if (!language.empty())
            languages.push_back(std::move(language));
    languages.push_back(locale);
    return languages;
}

} // namespace brindlex
