#include "ui/controls/SuggestionList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SuggestionListTest : public testing::Test {
protected:
    SuggestionListTest()
    {
        ground.resize(400, 400);
        field.setGeometry(20, 40, 300, 30);
        ground.show();
        list.suggest({{"one", "First", {}}, {"two", "Second", {}}});
    }
    void press(int key)
    {
        const auto letter = key < Qt::Key_Escape ? QString(QChar(key)) : QString();
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, letter);
        QApplication::sendEvent(&field, &event);
    }

    const Theme theme;
    QScrollArea ground;
    QLineEdit field{&ground};
    std::vector<QString> taken;
    SuggestionList& list = *new SuggestionList(
        theme, field, ground, [this](const QString& text) { taken.push_back(text); });
};

TEST_F(SuggestionListTest, liesUnderTheFieldAndIsNoWindow)
{
    EXPECT_TRUE(list.isVisible());
    EXPECT_FALSE(list.isWindow());
    EXPECT_EQ(list.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(list.x(), field.x());
    EXPECT_EQ(list.width(), field.width());
    EXPECT_GT(list.y(), field.geometry().bottom());
}

TEST_F(SuggestionListTest, liesOverTheFieldWhereThereIsNoRoomUnderIt)
{
    field.move(20, 350);

    list.suggest({{"one", "", {}}});

    EXPECT_LT(list.geometry().bottom(), field.y());
    EXPECT_GE(list.y(), 0);
}

TEST_F(SuggestionListTest, leavesEveryLetterToTheField)
{
    for (const int key : {Qt::Key_A, Qt::Key_B, Qt::Key_Space})
        press(key);

    EXPECT_EQ(field.text(), "AB ");
}

TEST_F(SuggestionListTest, takesTheOneThatTheKeysChose)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(taken, (std::vector<QString>{"two"}));
    EXPECT_FALSE(list.isVisible());
}

TEST_F(SuggestionListTest, leavesReturnToTheFieldWhereNoneIsChosen)
{
    int returns = 0;
    QObject::connect(&field, &QLineEdit::returnPressed, &field, [&] { ++returns; });
    press(Qt::Key_Down);
    press(Qt::Key_Up);

    press(Qt::Key_Return);

    EXPECT_EQ(returns, 1);
    EXPECT_TRUE(taken.empty());
    EXPECT_FALSE(list.isVisible());
}

TEST_F(SuggestionListTest, takesTheOneThatIsClicked)
{
    list.clicked(list.model()->index(0, 0));

    EXPECT_EQ(taken, (std::vector<QString>{"one"}));
}

TEST_F(SuggestionListTest, closesByEscapeAndWhenTheFieldIsLeft)
{
    press(Qt::Key_Escape);
    EXPECT_FALSE(list.isVisible());

    list.suggest({{"one", "", {}}});
    ASSERT_TRUE(list.isVisible());
    QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&field, &leaves);
    EXPECT_FALSE(list.isVisible());
}

TEST_F(SuggestionListTest, closesWithoutSuggestions)
{
    list.suggest({});

    EXPECT_FALSE(list.isVisible());
}

} // namespace
} // namespace brindlex
