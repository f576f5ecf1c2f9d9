#include "shell/PermissionGuide.h"

namespace brindlex {
namespace {

PermissionAdvice adviceFor(const PermissionObstacle& obstacle)
{
    switch (obstacle.reason) {
    case PermissionObstacle::Reason::refused:
        return {PermissionAdvice::Kind::refused};
    case PermissionObstacle::Reason::lacking:
        return {PermissionAdvice::Kind::systemLacks, obstacle.lacking};
    case PermissionObstacle::Reason::closedSession:
        return {PermissionAdvice::Kind::closedSession};
    }
    return {};
}

} // namespace

PermissionGuide::PermissionGuide(
    EventPermissions& eventPermissions, AutomationPermission& automation)
    : eventPermissions_(eventPermissions), automation_(automation),
      eventChanges_(eventPermissions.observeAccessibilityChanges([this] { regenerate(); })),
      automationChanges_(automation.state().stream().withoutFirst().subscribe(
          [this](AutomationPermission::State) { regenerate(); }))
{
}

std::vector<PermissionReport> PermissionGuide::reports() const
{
    return {
        eventReport(GuidedPermission::accessibility, EventPermission::accessibility),
        eventReport(GuidedPermission::inputMonitoring, EventPermission::inputMonitoring),
        automationReport(),
    };
}

void PermissionGuide::refresh()
{
    automation_.refresh();
    regenerate();
}

void PermissionGuide::request(GuidedPermission permission)
{
    switch (permission) {
    case GuidedPermission::accessibility:
        eventPermissions_.request(EventPermission::accessibility);
        break;
    case GuidedPermission::inputMonitoring:
        eventPermissions_.request(EventPermission::inputMonitoring);
        break;
    case GuidedPermission::automation:
        automation_.request();
        break;
    }
    regenerate();
}

PermissionReport PermissionGuide::eventReport(
    GuidedPermission shown, EventPermission permission) const
{
    const auto obstacle = eventPermissions_.obstacle(permission);
    if (!obstacle)
        return {shown, PermissionStatus::allowed};
    return {shown, PermissionStatus::needsSetup, adviceFor(*obstacle),
        obstacle->reason == PermissionObstacle::Reason::refused};
}

PermissionReport PermissionGuide::automationReport() const
{
    using enum PermissionAdvice::Kind;
    const auto report
        = [](PermissionStatus status, PermissionAdvice::Kind advice, bool canRequest) {
              return PermissionReport{GuidedPermission::automation, status, {advice}, canRequest};
          };
    switch (automation_.state().value()) {
    case AutomationPermission::State::unknown:
        return report(PermissionStatus::manual, none, true);
    case AutomationPermission::State::off:
        return report(PermissionStatus::needsSetup, automationOff, true);
    case AutomationPermission::State::on:
        return report(PermissionStatus::manual, restartBrowsers, false);
    case AutomationPermission::State::unavailable:
        return report(PermissionStatus::needsSetup, automationUnavailable, false);
    }
    return report(PermissionStatus::manual, none, false);
}

} // namespace brindlex
