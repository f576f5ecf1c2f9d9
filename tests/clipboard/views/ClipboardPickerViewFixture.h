#pragma once

#include "clipboard/ClipboardPickerFixture.h"
#include "clipboard/views/ClipboardPickerView.h"
#include "eventtap/views/KeysOfReader.h"
#include "ui/controls/TableCells.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include <memory>
#include <set>
#include <string>

namespace brindlex {

/// The picker of a history in a window, as a user sees and uses it.
struct ClipboardPickerViewFixture : ClipboardPickerFixture {
    void show(const std::string& language = "en", Brightness brightness = Brightness::light)
    {
        strings = std::make_unique<StringCatalogue>(language);
        theme.setLook({themeTokens(brightness), false});
        const ViewContext context{theme, *strings};
        picker = std::make_shared<ClipboardPicker>(parts,
            ClipboardPicker::Outcomes{
                .onSelect
                = [this](const SharedClipboardItem& item) { chosen.push_back(item->fingerprint); },
                .onDismiss = [this] { ++dismissals; },
            });
        view = std::make_unique<ClipboardPickerView>(
            context, keysOfReader(context, {}), sources(), picker);
        theme.dress(*view);
        view->show();
        QApplication::processEvents();
    }

    ClipboardRowSources sources()
    {
        return {
            .applicationName =
                [](const std::string& bundleID) {
                    return QString::fromStdString("name of " + bundleID);
                },
            .picture =
                [this](const ClipboardItem& item) {
                    asked.insert(item.fingerprint);
                    return picture;
                },
            .now = [] { return clipboardDay + 300; },
        };
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {},
        QEvent::Type type = QEvent::KeyPress, bool isRepeat = false)
    {
        QKeyEvent event(type, key, modifiers, text, isRepeat);
        QApplication::sendEvent(&search(), &event);
    }
    void type(const QString& text)
    {
        for (const auto character : text)
            press(character.toUpper().unicode(), Qt::NoModifier, character);
    }

    QLineEdit& search() const { return *view->findChild<QLineEdit*>(); }
    QListView& list() const { return *view->findChild<QListView*>(); }

    QStringList titles() const
    {
        QStringList titles;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            titles << list().model()->index(row, 0).data().toString();
        return titles;
    }
    QString selected() const { return list().currentIndex().data().toString(); }
    QString secondLine(int row) const
    {
        return list().model()->index(row, 0).data(secondLineRole).toString();
    }

    Theme theme;
    std::unique_ptr<StringCatalogue> strings;
    std::shared_ptr<ClipboardPicker> picker;
    std::unique_ptr<ClipboardPickerView> view;
    Texts chosen;
    int dismissals = 0;
    /// What there is a picture of.
    QIcon picture;
    /// The items whose picture was asked for.
    std::set<std::string> asked;
};

} // namespace brindlex
