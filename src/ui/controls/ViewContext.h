#pragma once

#include "catalogue/StringCatalogue.h"
#include "ui/controls/Theme.h"

#include <QString>

namespace brindlex {

/// What every screen is made with; all of it outlives the screen.
struct ViewContext {
    const Theme& theme;
    const StringCatalogue& strings;

    /// A text of the catalogue, as `StringCatalogue::text` gives it.
    template <FixedText key, typename... Arguments>
    requires CatalogueKeyTaking<key, Arguments...> QString text(const Arguments&... arguments)
    const { return QString::fromStdString(strings.text<key>(arguments...)); }
};

} // namespace brindlex
