#pragma once

#include "clipboard/ClipboardPreferenceKeys.h"
#include "clipboard/views/ClipboardSettingsScreen.h"
#include "platform/VirtualKey.h"
#include "support/clipboard/ClipboardRecords.h"
#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace brindlex {

/// The settings of the clipboard history as a user has them in front.
struct ClipboardSettingsScreenFixture : testing::Test {
    using Keys = ClipboardPreferenceKeys;
    using Texts = std::vector<std::string>;

    void show(const std::string& name, const std::string& language = "en",
        Brightness brightness = Brightness::light)
    {
        window.reset();
        gallery = std::make_unique<ScreenGallery>(StringCatalogue(language), brightness);
        window = gallery->show(name);
    }
    template <typename Control>
    std::vector<Control*> all()
    {
        QApplication::processEvents();
        std::vector<Control*> found;
        for (auto* const widget : window->findChildren<QWidget*>())
            if (auto* const match = dynamic_cast<Control*>(widget); match && match->isVisible())
                found.push_back(match);
        return found;
    }
    template <typename Control>
    Control* control(const QString& name)
    {
        for (auto* const each : all<Control>())
            if (each->accessibleName() == name)
                return each;
        throw std::runtime_error("no control named " + name.toStdString());
    }
    KeyRecorderField* recorder() { return all<KeyRecorderField>().at(0); }
    Chooser* limit() { return all<Chooser>().at(0); }
    /// Whether the screen says the words.
    bool says(const QString& words)
    {
        const auto labels = all<TextLabel>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const TextLabel* label) { return label->text() == words; });
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            if (auto* const focused = QApplication::focusWidget())
                QApplication::sendEvent(focused, &event);
        }
    }
    /// A click on whatever is there.
    void click(const QPoint& place)
    {
        QApplication::processEvents();
        auto* const widget = window->childAt(place);
        const auto local = widget->mapFrom(window.get(), place);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, local, widget->mapToGlobal(local), Qt::LeftButton,
                type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(widget, &event);
        }
    }
    QPoint middleOf(const QWidget* widget) const
    {
        return widget->mapTo(window.get(), widget->rect().center());
    }
    void record(std::int64_t keyCode, ModifierSet modifiers)
    {
        gallery->computer.activation.becomeActive();
        gallery->computer.keyboard.holdModifiers(modifiers.eventFlags());
        gallery->computer.keyboard.press(keyCode);
        gallery->computer.keyboard.release(keyCode);
        gallery->computer.keyboard.holdModifiers(0);
    }
    template <typename Key>
    typename Key::Value stored(Key Keys::*key)
    {
        return readPreference(gallery->computer.defaults, Keys{}.*key);
    }
    std::size_t items() { return gallery->clipboardStore.items().value().size(); }

    std::unique_ptr<ScreenGallery> gallery;
    std::unique_ptr<QWidget> window;
};

} // namespace brindlex
