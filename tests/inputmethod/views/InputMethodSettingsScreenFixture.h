#pragma once

#include "inputmethod/views/InputMethodSettingsScreen.h"
#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace brindlex {

/// The screen of the keyboard as a user has it in front.
class InputMethodSettingsScreenTest : public testing::Test {
protected:
    template <typename Control>
    Control* control(const QString& name)
    {
        QApplication::processEvents();
        for (auto* const found : window->findChildren<Control*>())
            if (found->accessibleName() == name && !found->isHidden())
                return found;
        ADD_FAILURE() << "no control is called " << name.toStdString();
        return nullptr;
    }
    void press(QWidget* widget, int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    void type(QLineEdit* field, const QString& text)
    {
        field->setText(text);
        field->textEdited(text);
    }
    const InputMethodConfig& config() { return gallery.inputMethod.config(); }

    ScreenGallery gallery{StringCatalogue("en")};
    std::unique_ptr<QWidget> window = gallery.show("keyboard-empty");
};

} // namespace brindlex
