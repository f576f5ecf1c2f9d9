#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The settings of input-source switching.
inline constexpr auto inputMethodTexts = std::to_array<CatalogueRow>({
    {"inputMethod.domainRules.add", "Add Website"},
    {"inputMethod.domainRules.empty.message",
        "Add website rules to switch input sources by the browser's current domain."},
    {"inputMethod.domainRules.enabled", "Enable website switching"},
    {"inputMethod.domainRules.enabledDescription",
        "Switch input source based on the browser's current domain"},
    {"inputMethod.domainRules.searchPlaceholder", "Domain or URL"},
    {"inputMethod.domainRules.title", "Website Rules"},
    {"inputMethod.enabled", "Enable automatic switching"},
    {"inputMethod.enabledDescription",
        "Switch input source when a configured app becomes frontmost"},
    {"inputMethod.options.title", "Automatic Switching"},
    {"inputMethod.rules.addApp", "Add App"},
    {"inputMethod.rules.empty.message",
        "Add application rules to switch input sources automatically."},
    {"inputMethod.rules.missingSource", "Input source not found"},
    {"inputMethod.rules.title", "Rules"},
    {"inputMethod.showHUD", "Show HUD on switch"},
    {"inputMethod.showHUDDescription", "Display a short input source label after switching"},
    {"inputMethod.smart.appLimit", "App limit"},
    {"inputMethod.smart.appLimit.unlimited", "Unlimited"},
    {"inputMethod.smart.appLimitDescription",
        "Apply smart switching only to apps where you manually switched input sources most often "
        "in the past 6 months"},
    {"inputMethod.smart.clearStats", "Clear stats"},
    {"inputMethod.smart.deleteStats", "Delete stats"},
    {"inputMethod.smart.enabled", "Enable smart rules"},
    {"inputMethod.smart.enabledDescription",
        "Use learned app input-source habits when automatic switching runs"},
    {"inputMethod.smart.header.app", "App"},
    {"inputMethod.smart.header.disabled", "Disabled"},
    {"inputMethod.smart.header.inputSource", "Input Source"},
    {"inputMethod.smart.header.match", "Match"},
    {"inputMethod.smart.header.samples", "Samples"},
    {"inputMethod.smart.header.status", "Status"},
    {"inputMethod.smart.learningEnabled", "Learn from manual switches"},
    {"inputMethod.smart.learningEnabledDescription",
        "Record only user-initiated input-source switches for the active app"},
    {"inputMethod.smart.priority", "Priority"},
    {"inputMethod.smart.priority.afterManualRules", "Manual rules first"},
    {"inputMethod.smart.priority.beforeManualAppRules", "Smart before app rules"},
    {"inputMethod.smart.priority.highest", "Smart rules first"},
    {"inputMethod.smart.stats.empty.message",
        "Manual input-source switches will appear here after learning is enabled."},
    {"inputMethod.smart.status.active", "Active"},
    {"inputMethod.smart.status.disabled", "Disabled"},
    {"inputMethod.smart.status.learning", "Learning"},
    {"inputMethod.smart.threshold", "Activation threshold"},
    {"inputMethod.smart.title", "Smart Input Method"},
    {"inputMethod.smart.window", "Sample window"},
});

} // namespace brindlex
