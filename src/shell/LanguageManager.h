#pragma once

#include "platform/ProgramInstances.h"
#include "platform/ProgramRelaunching.h"
#include "platform/UserDefaults.h"
#include "shell/LanguagePreference.h"

#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// The language that the program speaks. A process speaks one from its start to its end; a choice
/// starts a new instance, which takes the place of this one. Main thread only.
class LanguageManager {
public:
    /// Where the languages stand in the preferences.
    static constexpr auto appleLanguagesKey = "AppleLanguages";

    LanguageManager(
        UserDefaults& defaults, ProgramRelaunching& relaunching, ProgramInstances& instances);

    /// Makes the stored choice the language of this process, before anything speaks. Where nothing
    /// is stored, everything stays as it is.
    void applyStoredPreference();

    /// Stores the choice and starts the new instance; with that this process ends. When there is no
    /// new instance, the log says why and this process goes on.
    void select(LanguagePreference language);

    /// Notifies of the language's code, or of none for that of the system, when it is applied and
    /// when it is chosen: before this process ends.
    std::function<void(const std::optional<std::string>& languageCode)> onLanguage{};

private:
    void publish(LanguagePreference language) const;
    void relaunch();

    UserDefaults& defaults_;
    ProgramRelaunching& relaunching_;
    ProgramInstances& instances_;
};

} // namespace brindlex
