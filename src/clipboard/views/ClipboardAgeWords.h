#pragma once

#include "clipboard/ClipboardAge.h"

#include <QString>

#include <string>

namespace brindlex {

/// The age as people say it in a language, in few letters: "5 min. ago"; "now" under a minute.
QString ageInWords(const ClipboardAge& age, const std::string& language);

} // namespace brindlex
