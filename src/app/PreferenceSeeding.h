#pragma once

#include "app/UserDefaultPreferenceKeys.h"
#include "platform/UserDefaults.h"

namespace brindlex {

/// Stores the default of each preference under which nothing is stored, in the order of the table.
///
/// Left out are those whose absence means something: `lastRunAppVersion`, `updatedFromVersion` and
/// `appleLanguages`.
void seedDefaults(UserDefaultsType& defaults, const UserDefaultPreferenceKeys& keys);

} // namespace brindlex
