#include "mouse/views/MouseGestureSection.h"

#include <cmath>

namespace brindlex {
namespace {

/// The distance as a number of steps from the least one.
int distanceStep(double distance)
{
    return static_cast<int>(std::lround((distance - leastGestureDistance) / gestureDistanceStep));
}

double distanceOfStep(int step) { return leastGestureDistance + step * gestureDistanceStep; }

QString distanceText(double distance) { return QString::number(std::lround(distance)); }

} // namespace

MouseGestureSection::MouseGestureSection(
    Page& page, const ViewContext& context, MouseSettings& settings, const KeyRecording& recording)
    : MouseBindingSection(page, context, settings, recording,
        {[](const MouseConfig& config) -> const std::vector<MouseGestureBinding>& {
             return config.gesture.bindings;
         },
            &MouseSettings::addGestureBinding, &MouseSettings::replaceGestureBinding,
            &MouseSettings::removeGestureBinding, &MouseSettings::restoreGestureBinding},
        {context.text<"mouse.gesture.title">(), context.text<"mouse.gesture.description">(),
            context.text<"mouse.gesture.addGesture">(),
            context.text<"mouse.gesture.empty.message">()}),
      settings_(settings),
      distance_(new StepSlider(context.theme, context.text<"mouse.gesture.distance">(),
          {.least = 0,
              .most = distanceStep(mostGestureDistance),
              .text = [](int step) { return distanceText(distanceOfStep(step)); }},
          [this](int step) {
              settings_.change([&](MouseConfig& config) {
                  config.gesture.distanceThreshold = distanceOfStep(step);
              });
          }))
{
    page.section().setting(context.text<"mouse.gesture.distance">(), {}, distance_);
    show();
}

void MouseGestureSection::show()
{
    MouseBindingSection::show();
    const double distance = settings_.config().gesture.distanceThreshold;
    distance_->show(distanceStep(distance), distanceText(distance));
}

} // namespace brindlex
