#include "shell/views/PermissionGuideScreen.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/WindowKeys.h"

#include <QEvent>
#include <QVBoxLayout>

#include <utility>

namespace brindlex {
namespace {

constexpr QSize leastSize{560, 360};
constexpr int glyphSize = 20;
constexpr int rowHeight = 68;
constexpr int statusWidth = 124;
constexpr int buttonWidth = 118;
constexpr int belowHead = 14;
constexpr int aboveFoot = 14;

/// How a permission is called and drawn.
struct Face {
    Glyph glyph{};
    QString title{};
    QString description{};
};

Face faceOf(GuidedPermission permission, const ViewContext& context)
{
    switch (permission) {
    case GuidedPermission::accessibility:
        return {Glyph::person, context.text<"permissions.accessibility.title">(),
            context.text<"permissions.accessibility.description">()};
    case GuidedPermission::inputMonitoring:
        return {Glyph::keyboard, context.text<"permissions.inputMonitoring.title">(),
            context.text<"permissions.inputMonitoring.description">()};
    case GuidedPermission::automation:
        return {Glyph::globe, context.text<"permissions.automation.title">(),
            context.text<"permissions.automation.description">()};
    }
    return {};
}

QString adviceIn(const PermissionAdvice& advice, const ViewContext& context)
{
    switch (advice.kind) {
    case PermissionAdvice::Kind::none:
        return {};
    case PermissionAdvice::Kind::refused:
        return context.text<"guide.refused">();
    case PermissionAdvice::Kind::systemLacks:
        return context.text<"guide.serverLacksFormat">(advice.lacking);
    case PermissionAdvice::Kind::closedSession:
        return context.text<"guide.waylandSession">();
    case PermissionAdvice::Kind::automationOff:
        return context.text<"guide.accessibilityBus.off">();
    case PermissionAdvice::Kind::restartBrowsers:
        return context.text<"guide.accessibilityBus.restart">();
    case PermissionAdvice::Kind::automationUnavailable:
        return context.text<"guide.accessibilityBus.missing">();
    }
    return {};
}

struct StatusFace {
    Token dot{};
    QString words{};
};

StatusFace faceOf(PermissionStatus status, const ViewContext& context)
{
    switch (status) {
    case PermissionStatus::allowed:
        return {&ThemeTokens::success, context.text<"permissions.status.allowed">()};
    case PermissionStatus::needsSetup:
        return {&ThemeTokens::warning, context.text<"permissions.status.needsSetup">()};
    case PermissionStatus::manual:
        return {&ThemeTokens::edge, context.text<"permissions.status.manual">()};
    }
    return {};
}

QString requestIn(const PermissionReport& report, const ViewContext& context)
{
    switch (report.advice.kind) {
    case PermissionAdvice::Kind::refused:
        return context.text<"guide.allow">();
    case PermissionAdvice::Kind::automationOff:
        return context.text<"guide.accessibilityBus.switchOn">();
    default:
        return context.text<"permissions.request">();
    }
}

} // namespace

PermissionGuideScreen::PermissionGuideScreen(const ViewContext& context, PermissionGuide& guide)
    : Page(context), context_(context), guide_(guide)
{
    setWindowTitle(context.text<"permissions.windowTitle">());
    setMinimumSize(leastSize);
    addHead();
    auto& card = section();
    for (const auto& report : guide.reports())
        addLine(card, report.permission);
    addFoot();
    finish();
    context.theme.dress(*this);
    changes_ = guide.refreshToken().subscribe([this](const Uuid&) { showReports(); });
    guide.refresh();
}

/// The user may have changed something elsewhere.
bool PermissionGuideScreen::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        guide_.refresh();
    return Page::event(event);
}

void PermissionGuideScreen::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        Page::keyPressEvent(event);
}

void PermissionGuideScreen::addHead()
{
    auto* const head = new QWidget;
    auto* const layout = new QVBoxLayout(head);
    layout->setContentsMargins(2, 0, 2, belowHead);
    layout->setSpacing(4);
    layout->addWidget(
        new TextLabel(context_.theme, TextRole::title, context_.text<"permissions.title">()));
    layout->addWidget(
        new TextLabel(context_.theme, TextRole::second, context_.text<"permissions.subtitle">()));
    add(head);
}

void PermissionGuideScreen::addLine(Card& card, GuidedPermission permission)
{
    const auto face = faceOf(permission, context_);
    Line line{new Row(context_.theme), new StatusLabel(context_.theme),
        makeButton(context_.theme, ButtonRole::plain, {},
            [this, permission] { guide_.request(permission); })};
    line.status->setMinimumWidth(statusWidth);
    line.button->setMinimumWidth(buttonWidth);
    auto keepsItsPlace = line.button->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    line.button->setSizePolicy(keepsItsPlace);
    card.add(line.row)
        .picture(glyphIcon(context_.theme, face.glyph, &ThemeTokens::subdued), glyphSize)
        .words(face.title)
        .end(line.status)
        .end(line.button)
        .setLeastHeight(rowHeight);
    lines_.push_back(line);
}

void PermissionGuideScreen::addFoot()
{
    auto* const foot = new QWidget;
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, aboveFoot, 0, 0);
    layout->addStretch();
    layout->addWidget(makeButton(
        context_.theme, ButtonRole::plain, context_.text<"permissions.refresh">(),
        [this] { guide_.refresh(); }, Glyph::reload));
    add(foot);
}

void PermissionGuideScreen::showReports()
{
    const auto reports = guide_.reports();
    for (std::size_t index = 0; index < lines_.size(); ++index)
        show(lines_[index], reports[index]);
}

void PermissionGuideScreen::show(const Line& line, const PermissionReport& report)
{
    const auto face = faceOf(report.permission, context_);
    const auto advice = adviceIn(report.advice, context_);
    const bool isWrong = report.status == PermissionStatus::needsSetup;
    line.row->setSecond(isWrong || advice.isEmpty()
            ? face.description
            : face.description + QLatin1Char('\n') + advice);
    line.row->setWarning(isWrong ? advice : QString());
    const auto status = faceOf(report.status, context_);
    line.status->show(status.dot, status.words);
    const auto request = requestIn(report, context_);
    line.button->setText(request);
    line.button->setAccessibleName(request + QStringLiteral(": ") + face.title);
    line.button->setVisible(report.canRequest);
}

} // namespace brindlex
