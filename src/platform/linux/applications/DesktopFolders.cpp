#include "platform/linux/applications/DesktopFolders.h"

#include "foundation/Text.h"

#include <algorithm>
#include <cstdlib>

namespace brindlex {
namespace {

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string variable(const char* name, const std::string& otherwise)
{
    const auto value = variable(name);
    return value.empty() ? otherwise : value;
}

template <typename Value>
void addOnce(std::vector<Value>& list, const Value& value)
{
    if (std::find(list.begin(), list.end(), value) == list.end())
        list.push_back(value);
}

/// The own folder and then the shared ones, without those that are relative.
std::vector<std::filesystem::path> absoluteFolders(
    const std::string& own, const std::string& shared)
{
    std::vector<std::filesystem::path> folders;
    for (const auto& folder : split(own + ":" + shared, ':')) {
        const auto path = std::filesystem::path(folder).lexically_normal();
        if (path.is_absolute())
            addOnce(folders, path.has_filename() ? path : path.parent_path());
    }
    return folders;
}

void addForms(std::vector<std::string>& forms, const std::string& locale)
{
    const auto at = locale.find('@');
    const auto modifier = at == locale.npos ? "" : locale.substr(at);
    const auto place = locale.substr(0, locale.find_first_of(".@"));
    const auto language = place.substr(0, place.find('_'));
    if (language.empty() || language == "C" || language == "POSIX")
        return;
    const bool hasCountry = place.size() > language.size();
    if (hasCountry && !modifier.empty())
        addOnce(forms, place + modifier);
    if (hasCountry)
        addOnce(forms, place);
    if (!modifier.empty())
        addOnce(forms, language + modifier);
    addOnce(forms, language);
}

} // namespace

std::vector<std::filesystem::path> dataFolders()
{
    return absoluteFolders(variable("XDG_DATA_HOME", variable("HOME") + "/.local/share"),
        variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
}

std::vector<std::filesystem::path> configFolders()
{
    return absoluteFolders(variable("XDG_CONFIG_HOME", variable("HOME") + "/.config"),
        variable("XDG_CONFIG_DIRS", "/etc/xdg"));
}

std::vector<std::string> entryLanguages()
{
    return entryLanguages(
        variable("LANGUAGE"), variable("LC_ALL", variable("LC_MESSAGES", variable("LANG"))));
}

std::vector<std::string> entryLanguages(const std::string& language, const std::string& locale)
{
    // LANGUAGE means nothing to programs in the locale C.
    std::vector<std::string> own;
    addForms(own, locale);
    if (own.empty())
        return {};
    std::vector<std::string> forms;
    for (const auto& preferred : split(language, ':'))
        addForms(forms, preferred);
    for (const auto& form : own)
        addOnce(forms, form);
    return forms;
}

} // namespace brindlex
