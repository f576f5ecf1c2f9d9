#pragma once

#include "platform/UserDefaults.h"
#include "shell/GeneralSettings.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/Page.h"
#include "ui/controls/ToggleSwitch.h"

namespace brindlex {

/// The general settings. It follows what anybody changes of them while it is there; its arguments
/// outlive it.
class GeneralScreen : public Page {
public:
    GeneralScreen(const ViewContext& context, GeneralSettings& settings, UserDefaults& defaults);

protected:
    bool event(QEvent* event) override;

private:
    void addPermissionsRow(Card& card);
    void show();

    const ViewContext context_;
    GeneralSettings& settings_;
    ToggleSwitch* const launchAtLogin_;
    ToggleSwitch* const showsDockIcon_;
    Chooser* const language_;
    Subscription changes_;
};

} // namespace brindlex
