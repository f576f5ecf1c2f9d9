#include "mouse/views/MouseScrollSection.h"

#include "mouse/ScrollSteps.h"

#include <span>
#include <string>

namespace brindlex {
namespace {

/// A slider over the places of the steps.
StepSlider* makeSlider(const Theme& theme, const QString& name, std::span<const double> steps,
    std::string (*text)(double), std::function<void(std::size_t)> moved)
{
    return new StepSlider(theme, name,
        {.least = 0,
            .most = static_cast<int>(steps.size()) - 1,
            .text =
                [steps, text](int step) {
                    return QString::fromStdString(text(steps[static_cast<std::size_t>(step)]));
                }},
        [moved](int step) { moved(static_cast<std::size_t>(step)); });
}

/// The step nearest to the value, which says the step's figure.
void showNearest(
    StepSlider& slider, std::span<const double> steps, double value, std::string (*text)(double))
{
    const auto step = nearestStep(steps, value);
    slider.show(static_cast<int>(step), QString::fromStdString(text(steps[step])));
}

} // namespace

MouseScrollSection::MouseScrollSection(
    Page& page, const ViewContext& context, MouseSettings& settings)
    : context_(context), settings_(settings),
      smooth_(makeSwitch(
          context.text<"mouse.scroll.smoothScrolling">(), &MouseScrollConfig::smoothEnabled)),
      duration_(makeSlider(context.theme, context.text<"mouse.scroll.duration">(), durationSteps,
          durationText, [this](std::size_t step) { settings_.setDurationStep(step); })),
      speed_(makeSlider(context.theme, context.text<"mouse.scroll.speed">(), speedSteps, speedText,
          [this](std::size_t step) { settings_.setSpeedStep(step); })),
      acceleration_(
          makeSlider(context.theme, context.text<"mouse.scroll.acceleration">(), accelerationSteps,
              accelerationText, [this](std::size_t step) { settings_.setAccelerationStep(step); })),
      invertVertical_(makeSwitch(
          context.text<"mouse.scroll.invertVertical">(), &MouseScrollConfig::invertVertical)),
      invertHorizontal_(makeSwitch(
          context.text<"mouse.scroll.invertHorizontal">(), &MouseScrollConfig::invertHorizontal))
{
    auto& card = page.section(
        context.text<"mouse.scroll.title">(), context.text<"mouse.scroll.description">());
    card.setting(context.text<"mouse.scroll.smoothScrolling">(), {}, smooth_);
    card.setting(context.text<"mouse.scroll.duration">(), {}, duration_);
    card.setting(context.text<"mouse.scroll.speed">(), {}, speed_);
    card.setting(context.text<"mouse.scroll.acceleration">(), {}, acceleration_);
    card.setting(context.text<"mouse.scroll.invertVertical">(), {}, invertVertical_);
    card.setting(context.text<"mouse.scroll.invertHorizontal">(), {}, invertHorizontal_);
    show();
}

void MouseScrollSection::show()
{
    const auto& scroll = settings_.config().scroll;
    smooth_->show(scroll.smoothEnabled);
    showNearest(*duration_, durationSteps, scroll.smoothDuration, durationText);
    showNearest(*speed_, speedSteps, scroll.speedMultiplier, speedText);
    showNearest(*acceleration_, accelerationSteps, scroll.acceleration, accelerationText);
    invertVertical_->show(scroll.invertVertical);
    invertHorizontal_->show(scroll.invertHorizontal);
}

ToggleSwitch* MouseScrollSection::makeSwitch(const QString& name, bool MouseScrollConfig::*field)
{
    return new ToggleSwitch(context_.theme, name, [this, field](bool isOn) {
        settings_.change([&](MouseConfig& config) { config.scroll.*field = isOn; });
    });
}

} // namespace brindlex
