#include "mouse/views/MouseDisabledAppsSection.h"

#include "applications/views/ApplicationIcon.h"
#include "ui/controls/Buttons.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int iconSize = 24;

auto placeOf(const std::vector<AppIdentifier>& apps, const std::string& bundleID)
{
    return std::find_if(apps.begin(), apps.end(),
        [&](const AppIdentifier& app) { return app.bundleID == bundleID; });
}

} // namespace

MouseDisabledAppsSection::MouseDisabledAppsSection(Page& page, const ViewContext& context,
    MouseSettings& settings, ApplicationChoosing chooseApplication)
    : page_(page), context_(context), settings_(settings),
      chooseApplication_(std::move(chooseApplication)),
      card_(page.section(context.text<"mouse.scroll.disabledApps.title">())), rows_(card_, 0),
      empty_(new EmptyState(context.theme, Glyph::application,
          context.text<"mouse.scroll.disabledApps.empty.message">(),
          context.text<"mouse.scroll.addApp">(), [this] { add(); })),
      addRow_(makeButton(
          context.theme, ButtonRole::add, context.text<"mouse.scroll.addApp">(), [this] { add(); },
          Glyph::add))
{
    card_.add(empty_);
    card_.add(addRow_);
    show();
}

void MouseDisabledAppsSection::show()
{
    std::vector<std::string> identifiers;
    for (const auto& app : settings_.config().scroll.disabledApps)
        if (std::find(identifiers.begin(), identifiers.end(), app.bundleID) == identifiers.end())
            identifiers.push_back(app.bundleID);
    rows_.show(identifiers, [this](const std::string& bundleID) { return makeRow(bundleID); });
    empty_->setVisible(identifiers.empty());
    addRow_->setVisible(!identifiers.empty());
}

Row* MouseDisabledAppsSection::makeRow(const std::string& bundleID)
{
    const auto app = placeOf(settings_.config().scroll.disabledApps, bundleID);
    const auto name = QString::fromStdString(app->displayName);
    auto* const row = new Row(context_.theme);
    row->picture(applicationIcon(context_.theme, *app), iconSize)
        .words(name)
        .removable(context_.text<"mouse.scroll.removeApp.help">() + QStringLiteral(": ") + name,
            [this, bundleID] { remove(bundleID); });
    return row;
}

void MouseDisabledAppsSection::add()
{
    chooseApplication_(
        [this](const std::filesystem::path& bundle) { settings_.addDisabledApp(bundle); });
}

void MouseDisabledAppsSection::remove(const std::string& bundleID)
{
    const auto& apps = settings_.config().scroll.disabledApps;
    const auto place = placeOf(apps, bundleID);
    if (place == apps.end())
        return;
    const auto removed = *place;
    const auto index = static_cast<std::size_t>(place - apps.begin());
    settings_.removeDisabledApp(bundleID);
    page_.offerUndo(QString::fromStdString(removed.displayName),
        [this, removed, index] { settings_.restoreDisabledApp(removed, index); });
}

} // namespace brindlex
