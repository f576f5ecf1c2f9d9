#include "logviewer/views/LogLevelsButton.h"

#include "logviewer/views/LogLevelNames.h"
#include "ui/controls/Glyph.h"

#include <QMenu>

#include <utility>

namespace brindlex {
namespace {

const std::set<LogLevel> allLevels(logLevels.begin(), logLevels.end());
const std::set<LogLevel> warningsAndErrors{LogLevel::warn, LogLevel::error};

constexpr QSize chevronSize{12, 12};

} // namespace

LogLevelsButton::LogLevelsButton(
    const ViewContext& context, std::function<void(const std::set<LogLevel>& levels)> changed)
    : context_(context), changed_(std::move(changed))
{
    setMenu(new QMenu(this));
    addChoice(context.text<"logs.filter.all">(), allLevels);
    addChoice(context.text<"logs.filter.warningsAndErrors">(), warningsAndErrors);
    addChoice(context.text<"logs.filter.none">(), {});
    menu()->addSeparator();
    for (const auto level : logLevels)
        addLevel(level);
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::StrongFocus);
    setObjectName("chooser");
    // The picture behind the words.
    setLayoutDirection(Qt::RightToLeft);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIcon(glyphIcon(context.theme, Glyph::chevronDown, &ThemeTokens::subdued));
    setIconSize(chevronSize);
}

void LogLevelsButton::show(const std::set<LogLevel>& levels)
{
    levels_ = levels;
    for (auto* const action : menu()->actions())
        for (const auto level : logLevels)
            if (action->isCheckable() && action->text() == nameOf(level))
                action->setChecked(levels.contains(level));
    setText(wordsFor(levels));
}

void LogLevelsButton::addChoice(const QString& text, const std::set<LogLevel>& levels)
{
    menu()->addAction(text, this, [this, levels] { changed_(levels); });
}

void LogLevelsButton::addLevel(LogLevel level)
{
    auto* const action = menu()->addAction(nameOf(level));
    action->setCheckable(true);
    connect(
        action, &QAction::triggered, this, [this, level](bool isShown) { toggle(level, isShown); });
}

void LogLevelsButton::toggle(LogLevel level, bool isShown)
{
    auto levels = levels_;
    if (isShown)
        levels.insert(level);
    else
        levels.erase(level);
    changed_(levels);
}

QString LogLevelsButton::wordsFor(const std::set<LogLevel>& levels) const
{
    if (levels == allLevels)
        return context_.text<"logs.filter.allLevels">();
    if (levels == warningsAndErrors)
        return context_.text<"logs.filter.warningsAndErrors">();
    if (levels.empty())
        return context_.text<"logs.filter.none">();
    QStringList names;
    for (const auto level : levels)
        names.push_back(nameOf(level));
    return names.join(QStringLiteral(", "));
}

} // namespace brindlex
