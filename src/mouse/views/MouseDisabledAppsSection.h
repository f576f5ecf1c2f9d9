#pragma once

#include "applications/views/ApplicationChoosing.h"
#include "mouse/MouseSettings.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/KeyedRows.h"
#include "ui/controls/Page.h"

#include <string>

namespace brindlex {

/// The applications in which the wheel is left alone.
class MouseDisabledAppsSection {
public:
    MouseDisabledAppsSection(Page& page, const ViewContext& context, MouseSettings& settings,
        ApplicationChoosing chooseApplication);

    void show();

private:
    Row* makeRow(const std::string& bundleID);
    void add();
    void remove(const std::string& bundleID);

    Page& page_;
    const ViewContext context_;
    MouseSettings& settings_;
    const ApplicationChoosing chooseApplication_;
    Card& card_;
    KeyedRows<std::string, Row> rows_;
    EmptyState* const empty_;
    QWidget* const addRow_;
};

} // namespace brindlex
