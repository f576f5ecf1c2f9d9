#include "shell/SpokenLanguage.h"

#include "catalogue/CatalogueLanguage.h"
#include "shell/ShellPreferenceKeys.h"

namespace brindlex {

std::string spokenLanguage(
    const UserDefaultsType& defaults, const std::vector<std::string>& systemLanguages)
{
    auto languages = readPreference(defaults, ShellPreferenceKeys{}.appleLanguages);
    languages.insert(languages.end(), systemLanguages.begin(), systemLanguages.end());
    return catalogueLanguage(languages);
}

} // namespace brindlex
