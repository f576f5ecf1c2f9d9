#include "mouse/MouseSettings.h"

#include "foundation/RestoredMember.h"
#include "log/Log.h"
#include "mouse/ScrollSteps.h"

#include <algorithm>
#include <string>
#include <utility>

namespace brindlex {
namespace {

template <typename Binding>
Uuid append(std::vector<Binding>& bindings, Binding binding)
{
    binding.id = Uuid::random();
    bindings.push_back(binding);
    return binding.id;
}

template <typename Binding>
void replace(std::vector<Binding>& bindings, const Binding& replacement)
{
    for (auto& binding : bindings)
        if (binding.id == replacement.id)
            binding = replacement;
}

template <typename Binding>
void remove(std::vector<Binding>& bindings, const Uuid& id)
{
    std::erase_if(bindings, [&](const Binding& binding) { return binding.id == id; });
}

} // namespace

MouseSettings::MouseSettings(MouseConfigStore& store, const AppIdentifierLoader& loader)
    : store_(store), loader_(loader)
{
}

void MouseSettings::change(const std::function<void(MouseConfig&)>& change)
{
    auto changed = config();
    change(changed);
    store_.setConfig(std::move(changed));
}

Uuid MouseSettings::addClickBinding()
{
    Uuid id;
    change([&](MouseConfig& config) {
        id = append(config.click.bindings,
            {.button = MouseButton::button4, .action = MouseAction::Plain::back});
    });
    return id;
}

void MouseSettings::replaceClickBinding(const MouseClickBinding& binding)
{
    change([&](MouseConfig& config) { replace(config.click.bindings, binding); });
}

void MouseSettings::removeClickBinding(const Uuid& id)
{
    change([&](MouseConfig& config) { remove(config.click.bindings, id); });
}

void MouseSettings::restoreClickBinding(const MouseClickBinding& binding, std::size_t index)
{
    change([&](MouseConfig& config) {
        restoreMember(config.click.bindings, binding, index, &MouseClickBinding::id);
    });
}

Uuid MouseSettings::addGestureBinding()
{
    Uuid id;
    change([&](MouseConfig& config) {
        id = append(config.gesture.bindings,
            {.button = MouseButton::button4,
                .direction = MouseDirection::right,
                .action = MouseAction::Plain::forward});
    });
    return id;
}

void MouseSettings::replaceGestureBinding(const MouseGestureBinding& binding)
{
    change([&](MouseConfig& config) { replace(config.gesture.bindings, binding); });
}

void MouseSettings::removeGestureBinding(const Uuid& id)
{
    change([&](MouseConfig& config) { remove(config.gesture.bindings, id); });
}

void MouseSettings::restoreGestureBinding(const MouseGestureBinding& binding, std::size_t index)
{
    change([&](MouseConfig& config) {
        restoreMember(config.gesture.bindings, binding, index, &MouseGestureBinding::id);
    });
}

void MouseSettings::setDurationStep(std::size_t index)
{
    change([&](MouseConfig& config) { config.scroll.smoothDuration = durationSteps.at(index); });
}

void MouseSettings::setSpeedStep(std::size_t index)
{
    change([&](MouseConfig& config) { config.scroll.speedMultiplier = speedSteps.at(index); });
}

void MouseSettings::setAccelerationStep(std::size_t index)
{
    change([&](MouseConfig& config) { config.scroll.acceleration = accelerationSteps.at(index); });
}

void MouseSettings::addDisabledApp(const std::filesystem::path& bundlePath)
{
    const auto app = loader_.load(bundlePath);
    if (!app) {
        Log::error("Failed to load app: " + std::string(logLabel(app.error())), logCategory::mouse);
        return;
    }
    const auto& known = config().scroll.disabledApps;
    if (std::any_of(known.begin(), known.end(),
            [&](const AppIdentifier& other) { return other.bundleID == app->bundleID; }))
        return;
    change([&](MouseConfig& config) { config.scroll.disabledApps.push_back(*app); });
}

void MouseSettings::removeDisabledApp(const std::string& bundleID)
{
    change([&](MouseConfig& config) {
        std::erase_if(config.scroll.disabledApps,
            [&](const AppIdentifier& app) { return app.bundleID == bundleID; });
    });
}

void MouseSettings::restoreDisabledApp(const AppIdentifier& app, std::size_t index)
{
    change([&](MouseConfig& config) {
        restoreMember(config.scroll.disabledApps, app, index, &AppIdentifier::bundleID);
    });
}

} // namespace brindlex
