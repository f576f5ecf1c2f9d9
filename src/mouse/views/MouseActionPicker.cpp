#include "mouse/views/MouseActionPicker.h"

#include "mouse/MouseActionTag.h"
#include "ui/controls/ChooserValues.h"
#include "ui/controls/TextSize.h"

#include <QHBoxLayout>

#include <array>
#include <utility>

namespace brindlex {
namespace {

constexpr int gap = 6;
constexpr int leastChooser = 92;
constexpr int mostChooser = 190;
constexpr int leastKeys = 122;
constexpr int mostKeys = 160;

constexpr std::array tags{MouseActionTag::missionControl, MouseActionTag::switchSpaceLeft,
    MouseActionTag::switchSpaceRight, MouseActionTag::sendKeystroke};

QString nameOf(MouseActionTag tag, const ViewContext& context)
{
    switch (tag) {
    case MouseActionTag::missionControl:
        return context.text<"mouse.action.missionControl">();
    case MouseActionTag::switchSpaceLeft:
        return context.text<"mouse.action.spaceLeft">();
    case MouseActionTag::switchSpaceRight:
        return context.text<"mouse.action.spaceRight">();
    case MouseActionTag::sendKeystroke:
        return context.text<"mouse.action.customShortcut">();
    }
    return {};
}

} // namespace

MouseActionPicker::MouseActionPicker(const ViewContext& context, const KeyRecording& recording,
    std::function<void(const MouseAction::Any&)> changed)
    : context_(context), changed_(std::move(changed)),
      actions_(new Chooser(context.theme, context.text<"mouse.action.picker">(),
          [this](const std::string& option) {
              changed_(actionWithTag(valueWithOption<MouseActionTag>(option)));
          })),
      keys_(new KeyRecorderField(context, context.text<"mouse.action.customShortcut">(), recording,
          [this](const HotkeyCombo& combo) { changed_(withKeystroke(action_, combo)); }))
{
    actions_->setMinimumWidth(leastChooser);
    followTextSize(*actions_, [this] { actions_->setMaximumWidth(grownWithText(mostChooser)); });
    auto* const place = new QWidget;
    place->setMinimumWidth(leastKeys);
    followTextSize(*place, [place] { place->setMaximumWidth(grownWithText(mostKeys)); });
    auto* const right = new QHBoxLayout(place);
    right->setContentsMargins({});
    right->addStretch();
    right->addWidget(keys_);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    layout->addWidget(actions_, mostChooser);
    layout->addStretch(1);
    layout->addWidget(place);
}

void MouseActionPicker::show(const MouseAction::Any& action)
{
    action_ = action;
    const auto tag = tagOf(action);
    const auto options
        = optionsOfValues(tags, [this](MouseActionTag each) { return nameOf(each, context_); });
    actions_->show(options, optionOfValue(tag));
    keys_->setVisible(tag == MouseActionTag::sendKeystroke);
    keys_->show(keystrokeOf(action));
}

} // namespace brindlex
