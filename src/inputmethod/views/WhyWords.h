#pragma once

#include "applications/AppIdentifier.h"
#include "inputmethod/InputMethodSettings.h"
#include "ui/controls/ViewContext.h"

#include <QString>

namespace brindlex {

/// Why the application has its input source, for the row of its rule.
QString whyUnderRule(
    const ViewContext& context, const InputMethodSettings& settings, const AppIdentifier& app);

/// The same for the table of what was learned, where the rule is named.
QString whyInTable(
    const ViewContext& context, const InputMethodSettings& settings, const AppIdentifier& app);

} // namespace brindlex
