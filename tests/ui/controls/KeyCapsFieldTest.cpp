#include "ui/controls/KeyCapsField.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class KeyCapsFieldTest : public testing::Test {
protected:
    KeyCapsFieldTest()
    {
        field.cleared = [this] { ++cleared; };
        QObject::connect(&field, &QAbstractButton::clicked, &field, [this] { ++clicked; });
    }
    void click(const QPoint& place)
    {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, field.mapToGlobal(place), Qt::LeftButton,
                type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&field, &event);
        }
    }

    const Theme theme;
    int cleared = 0;
    int clicked = 0;
    KeyCapsField field{theme, "Key", {"Record", "Press a key", "Clear"}};
};

TEST_F(KeyCapsFieldTest, namesTheKeyToAScreenReader)
{
    EXPECT_EQ(field.accessibleName(), "Key: Record");

    field.show({"Ctrl", "T"}, false);
    EXPECT_EQ(field.accessibleName(), "Key: Ctrl+T");

    field.show({"Ctrl", "T"}, true);
    EXPECT_EQ(field.accessibleName(), "Key: Press a key");
}

TEST_F(KeyCapsFieldTest, takesTheKeyAwayByItsCrossAndByBackspace)
{
    field.show({"Ctrl", "T"}, false);
    click({field.width() - 10, field.height() / 2});
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(clicked, 0);

    QKeyEvent backspace(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
    QApplication::sendEvent(&field, &backspace);
    EXPECT_EQ(cleared, 2);
}

TEST_F(KeyCapsFieldTest, isPressedAnywhereElse)
{
    field.show({"Ctrl", "T"}, false);
    click({10, field.height() / 2});

    EXPECT_EQ(clicked, 1);
    EXPECT_EQ(cleared, 0);
}

TEST_F(KeyCapsFieldTest, keepsItsKeyWhileItIsDisabled)
{
    field.show({"Ctrl", "T"}, false);
    const auto enabled = field.grab().toImage();
    field.setEnabled(false);
    EXPECT_NE(field.grab().toImage(), enabled);

    click({field.width() - 10, field.height() / 2});
    click({10, field.height() / 2});

    EXPECT_EQ(cleared, 0);
    EXPECT_EQ(clicked, 0);
}

TEST_F(KeyCapsFieldTest, growsForLongCapsUpToALimit)
{
    field.show({"T"}, false);
    EXPECT_EQ(field.width(), 122);

    field.show({"Ctrl", "Alt", "Shift", "Super", "Page Down"}, false);
    EXPECT_EQ(field.width(), 160);
    EXPECT_EQ(field.toolTip(), "Ctrl+Alt+Shift+Super+Page Down");
}

} // namespace
} // namespace brindlex
