#include "ui/controls/UndoBar.h"

#include <QPushButton>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(UndoBar, bringsBackOnceWhatWasRemovedLast)
{
    const Theme theme;
    QWidget window;
    window.resize(600, 400);
    UndoBar bar(theme, "Undo", &window);
    std::vector<int> undone;
    bar.offer("“One” removed", [&] { undone.push_back(1); });
    bar.offer("“Two” removed", [&] { undone.push_back(2); });
    auto* const button = bar.findChild<QPushButton*>();

    button->click();
    button->click();

    EXPECT_EQ(undone, (std::vector<int>{2}));
    EXPECT_TRUE(bar.isHidden());
}

TEST(UndoBar, staysInTheWindowHoweverLongTheName)
{
    const Theme theme;
    QWidget window;
    window.resize(600, 400);
    UndoBar bar(theme, "Undo", &window);

    bar.offer(QString(10'000, 'x'), [] {});

    EXPECT_TRUE(window.rect().contains(bar.geometry()));
}

} // namespace
} // namespace brindlex
