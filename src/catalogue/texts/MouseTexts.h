#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The settings of the mouse.
inline constexpr auto mouseTexts = std::to_array<CatalogueRow>({
    {"mouse.action.customShortcut", "Custom Shortcut"},
    {"mouse.action.missionControl", "Mission Control"},
    {"mouse.action.picker", "Action"},
    {"mouse.action.spaceLeft", "Space Left"},
    {"mouse.action.spaceRight", "Space Right"},
    {"mouse.button.left", "Left Button"},
    {"mouse.button.middle", "Middle Button (3)"},
    {"mouse.button.picker", "Button"},
    {"mouse.button.right", "Right Button"},
    {"mouse.button.sideBack", "Side Back (4)"},
    {"mouse.button.sideForward", "Side Forward (5)"},
    {"mouse.click.addBinding", "Add Binding"},
    {"mouse.click.description", "Map middle and side mouse buttons to actions."},
    {"mouse.click.empty.message", "Add bindings for middle and side mouse buttons."},
    {"mouse.click.removeBinding.help", "Remove binding"},
    {"mouse.click.title", "Click Bindings"},
    {"mouse.direction.down", "Down"},
    {"mouse.direction.left", "Left"},
    {"mouse.direction.picker", "Direction"},
    {"mouse.direction.right", "Right"},
    {"mouse.direction.up", "Up"},
    {"mouse.gesture.addGesture", "Add Gesture"},
    {"mouse.gesture.description", "Hold a mouse button and drag in a direction."},
    {"mouse.gesture.distance", "Distance"},
    {"mouse.gesture.empty.message", "Add button-and-direction gestures to trigger actions."},
    {"mouse.gesture.removeGesture.help", "Remove gesture"},
    {"mouse.gesture.title", "Gestures"},
    {"mouse.scroll.acceleration", "Acceleration"},
    {"mouse.scroll.addApp", "Add App"},
    {"mouse.scroll.description",
        "Trackpad and Magic Mouse continuous scrolling pass through unchanged."},
    {"mouse.scroll.disabledApps.empty.message",
        "Add apps that should bypass custom scroll handling."},
    {"mouse.scroll.disabledApps.title", "Disabled Apps"},
    {"mouse.scroll.duration", "Duration"},
    {"mouse.scroll.invertHorizontal", "Invert horizontal"},
    {"mouse.scroll.invertVertical", "Invert vertical"},
    {"mouse.scroll.removeApp.help", "Remove app"},
    {"mouse.scroll.smoothScrolling", "Smooth scrolling"},
    {"mouse.scroll.speed", "Speed"},
    {"mouse.scroll.title", "Scroll"},
});

} // namespace brindlex
