#pragma once

#include "shell/PermissionGuide.h"
#include "ui/controls/Page.h"
#include "ui/controls/StatusLabel.h"

#include <vector>

class QPushButton;

namespace brindlex {

/// The window of the guide to the permissions: each with its state, what is wrong, and a button
/// that mends it. It follows changes, and reads everything anew when it becomes the active window.
/// The guide outlives it.
class PermissionGuideScreen : public Page {
public:
    PermissionGuideScreen(const ViewContext& context, PermissionGuide& guide);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The controls of a permission that change with its state.
    struct Line {
        Row* row = nullptr;
        StatusLabel* status = nullptr;
        QPushButton* button = nullptr;
    };

    void addHead();
    void addLine(Card& card, GuidedPermission permission);
    void addFoot();
    void showReports();
    void show(const Line& line, const PermissionReport& report);

    const ViewContext context_;
    PermissionGuide& guide_;
    /// In the order of the reports.
    std::vector<Line> lines_;
    Subscription changes_;
};

} // namespace brindlex
