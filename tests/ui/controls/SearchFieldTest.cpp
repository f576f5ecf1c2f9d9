#include "ui/controls/SearchField.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(SearchField, isEmptiedByEscape)
{
    const Theme theme;
    SearchField field(theme, "Search");
    field.setText("word");

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&field, &escape);

    EXPECT_EQ(field.text(), "");
}

TEST(SearchField, takesNoMoreThanAnybodyLooksFor)
{
    const Theme theme;
    SearchField field(theme, "Search");

    field.setText(QString(1'000'000, 'x'));

    EXPECT_EQ(field.text().size(), 2'000);
}

} // namespace
} // namespace brindlex
