#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "inputmethod/views/InputMethodDomainRulesSection.h"
#include "inputmethod/views/InputMethodOptionsSection.h"
#include "inputmethod/views/InputMethodRulesSection.h"
#include "inputmethod/views/InputMethodSmartRulesSection.h"
#include "ui/controls/Page.h"

#include <vector>

namespace brindlex {

/// The settings of input-source switching. It follows what anybody changes of them, and what
/// becomes of them, while it is there; its arguments outlive it.
class InputMethodSettingsScreen : public Page {
public:
    InputMethodSettingsScreen(const ViewContext& context, InputMethodSettings& settings,
        InputMethodConfigStore& store, SmartInputMethodConfigStore& smartStore,
        const SwitchReasons& reasons, const ApplicationChoosing& chooseApplication);

protected:
    bool event(QEvent* event) override;

private:
    void show();

    InputMethodSettings& settings_;
    InputMethodOptionsSection options_;
    InputMethodRulesSection rules_;
    InputMethodDomainRulesSection domainRules_;
    InputMethodSmartRulesSection smartRules_;
    std::vector<Subscription> changes_;
};

} // namespace brindlex
