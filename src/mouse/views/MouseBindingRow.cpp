#include "mouse/views/MouseBindingRow.h"

#include "ui/controls/ChooserValues.h"
#include "ui/controls/GlyphLabel.h"
#include "ui/controls/TextSize.h"

#include <QHBoxLayout>

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace brindlex {
namespace {

constexpr int gap = 6;
constexpr int arrowSize = 14;
constexpr int leastButton = 92;
constexpr int mostButton = 160;
constexpr int leastDirection = 62;
constexpr int mostDirection = 96;

/// Those that carry bindings.
constexpr std::array buttons{MouseButton::button3, MouseButton::button4, MouseButton::button5};

constexpr std::array directions{
    MouseDirection::up, MouseDirection::down, MouseDirection::left, MouseDirection::right};

QString nameOf(MouseButton button, const ViewContext& context)
{
    switch (button) {
    case MouseButton::left:
        return context.text<"mouse.button.left">();
    case MouseButton::right:
        return context.text<"mouse.button.right">();
    case MouseButton::button3:
        return context.text<"mouse.button.middle">();
    case MouseButton::button4:
        return context.text<"mouse.button.sideBack">();
    case MouseButton::button5:
        return context.text<"mouse.button.sideForward">();
    }
    return {};
}

QString nameOf(MouseDirection direction, const ViewContext& context)
{
    switch (direction) {
    case MouseDirection::up:
        return context.text<"mouse.direction.up">();
    case MouseDirection::down:
        return context.text<"mouse.direction.down">();
    case MouseDirection::left:
        return context.text<"mouse.direction.left">();
    case MouseDirection::right:
        return context.text<"mouse.direction.right">();
    }
    return {};
}

/// The values to choose from, and the present one, if it is none of them.
template <typename Value, std::size_t count>
std::vector<Chooser::Option> optionsOf(
    const std::array<Value, count>& values, Value present, const ViewContext& context)
{
    const auto name = [&](Value value) { return nameOf(value, context); };
    auto options = optionsOfValues(values, name);
    if (std::find(values.begin(), values.end(), present) == values.end())
        options.push_back({optionOfValue(present), name(present), {}});
    return options;
}

} // namespace

template <typename Binding>
MouseBindingRow<Binding>::MouseBindingRow(const ViewContext& context, const KeyRecording& recording,
    const Binding& binding, Actions actions)
    : Row(context.theme), context_(context), actions_(std::move(actions)), binding_(binding),
      button_(new Chooser(context.theme, context.text<"mouse.button.picker">(),
          [this](const std::string& option) {
              change(
                  [&](Binding& changed) { changed.button = valueWithOption<MouseButton>(option); });
          })),
      action_(new MouseActionPicker(context, recording, [this](const MouseAction::Any& action) {
          change([&](Binding& changed) { changed.action = action; });
      }))
{
    constexpr bool isGesture = std::is_same_v<Binding, MouseGestureBinding>;
    auto* const sentence = new QWidget;
    auto* const layout = new QHBoxLayout(sentence);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    button_->setMinimumWidth(leastButton);
    followTextSize(*button_, [this] { button_->setMaximumWidth(grownWithText(mostButton)); });
    layout->addWidget(button_, mostButton);
    if constexpr (isGesture) {
        direction_ = new Chooser(context.theme, context.text<"mouse.direction.picker">(),
            [this](const std::string& option) {
                change([&](Binding& changed) {
                    changed.direction = valueWithOption<MouseDirection>(option);
                });
            });
        direction_->setMinimumWidth(leastDirection);
        followTextSize(
            *direction_, [this] { direction_->setMaximumWidth(grownWithText(mostDirection)); });
        layout->addWidget(direction_, mostDirection);
    }
    layout->addWidget(
        new GlyphLabel(glyphIcon(context.theme, Glyph::arrow, &ThemeTokens::subdued), arrowSize));
    layout->addWidget(action_, 2 * mostButton);
    fill(sentence);
    removable(isGesture ? context.text<"mouse.gesture.removeGesture.help">()
                        : context.text<"mouse.click.removeBinding.help">(),
        actions_.remove);
    show(binding);
}

template <typename Binding>
void MouseBindingRow<Binding>::show(const Binding& binding)
{
    binding_ = binding;
    button_->show(optionsOf(buttons, binding.button, context_), optionOfValue(binding.button));
    if constexpr (std::is_same_v<Binding, MouseGestureBinding>)
        direction_->show(
            optionsOf(directions, binding.direction, context_), optionOfValue(binding.direction));
    action_->show(binding.action);
}

template <typename Binding>
void MouseBindingRow<Binding>::change(const std::function<void(Binding&)>& change)
{
    auto changed = binding_;
    change(changed);
    actions_.change(changed);
}

template class MouseBindingRow<MouseClickBinding>;
template class MouseBindingRow<MouseGestureBinding>;

} // namespace brindlex
