#pragma once

#include "clipboard/ClipboardItemKind.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Which kind of item a pasteboard holds that offers these types; nothing when it is not to be
/// remembered. The first row that applies decides:
///
/// | Of the types | Kind |
/// |---|---|
/// | one marks a secret or what nobody has copied | nothing |
/// | one is of files, and there are paths of files | file |
/// | one is of a picture | image |
/// | one has "text" in its name, or is HTML or RTF | text |
/// | none of these | nothing |
std::optional<ClipboardItemKind> clipboardKind(
    const std::vector<std::string>& types, bool hasFilePaths);

} // namespace brindlex
