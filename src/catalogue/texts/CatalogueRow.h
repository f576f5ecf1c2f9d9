#pragma once

#include <string_view>

namespace brindlex {

/// A text of the program: the key that it is addressed by, and its English wording, which is shown
/// where a language has no translation.
///
/// Where the wording has `%@` a text is filled in, and where it has `%lld` a whole number.
struct CatalogueRow {
    std::string_view key;
    std::string_view defaultValue;
};

} // namespace brindlex
