#include "shell/AppVersionTracker.h"

#include "log/Log.h"
#include "shell/ShellPreferenceKeys.h"

#include <utility>

namespace brindlex {

AppVersionTracker::AppVersionTracker(UserDefaults& defaults, std::string currentVersion)
    : defaults_(defaults), current_(std::move(currentVersion))
{
}

void AppVersionTracker::recordLaunch()
{
    const ShellPreferenceKeys keys;
    const auto last = readPreference(defaults_, keys.lastRunAppVersion);
    if (current_.empty() || last == current_)
        return;
    if (!last.empty())
        writePreference(defaults_, keys.updatedFromVersion, last);
    writePreference(defaults_, keys.lastRunAppVersion, current_);
    if (!last.empty())
        Log::notice("App version changed: " + last + " → " + current_, logCategory::lifecycle);
}

} // namespace brindlex
