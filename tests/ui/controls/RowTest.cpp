#include "ui/controls/Row.h"

#include "ui/controls/KeyedRows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QToolButton>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Row, goesByItsCrossAndByDelete)
{
    const Theme theme;
    int removed = 0;
    Row row(theme);
    row.words("Name").removable("Remove", [&] { ++removed; });

    row.findChild<QToolButton*>()->click();
    QKeyEvent deleteKey(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(&row, &deleteKey);

    EXPECT_EQ(removed, 2);
}

TEST(Row, showsNoMarkupThatANameBringsAlong)
{
    const Theme theme;
    Row row(theme);
    row.words("<b>bold</b>");

    EXPECT_EQ(row.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

TEST(KeyedRows, keepTheRowsOfMembersThatStay)
{
    const Theme theme;
    Card card(theme);
    KeyedRows<int, Row> rows(card, 0);
    const auto make = [&](int) { return new Row(theme); };
    rows.show({1, 2, 3}, make);
    auto* const second = rows.row(2);

    rows.show({4, 2}, make);

    EXPECT_EQ(rows.row(2), second);
    EXPECT_EQ(rows.row(1), nullptr);
    EXPECT_EQ(card.layout()->indexOf(rows.row(4)), 0);
    EXPECT_EQ(card.layout()->indexOf(second), 1);
    EXPECT_EQ(card.layout()->count(), 2);
}

} // namespace
} // namespace brindlex
