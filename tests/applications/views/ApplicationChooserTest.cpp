#include "applications/views/ApplicationChooser.h"

#include "support/views/ScreenGallery.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <gtest/gtest.h>

#include <stdexcept>

namespace brindlex {
namespace {

class ApplicationChooserTest : public testing::Test {
protected:
    ~ApplicationChooserTest() override { delete chooser; }

    void open(std::vector<ApplicationChoice> choices)
    {
        chooser = new ApplicationChooser(
            gallery.context(), std::move(choices),
            [this](const std::filesystem::path&) {
                ++pictures;
                return QIcon();
            },
            [this](auto picked) {
                pick = std::move(picked);
                return Subscription([this] { ++endedPicks; });
            },
            [this](const std::filesystem::path& bundle) { chosen.push_back(bundle); }, nullptr);
        chooser->open();
        QApplication::processEvents();
    }
    void press(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(chooser->findChild<SearchField*>(), &event);
    }

    QPushButton& button(const QString& name) const
    {
        for (auto* const each : chooser->findChildren<QPushButton*>())
            if (each->accessibleName() == name)
                return *each;
        throw std::runtime_error("no such button");
    }

    ScreenGallery gallery{StringCatalogue("en")};
    std::vector<std::filesystem::path> chosen;
    int pictures = 0;
    std::function<void(const std::optional<std::filesystem::path>&)> pick;
    int endedPicks = 0;
    QPointer<ApplicationChooser> chooser;
};

TEST_F(ApplicationChooserTest, isUsedByTheKeyboardAlone)
{
    open({{"a", "Editor", "/a", false}, {"b", "Mail", "/b", false}, {"c", "Maps", "/c", true}});
    chooser->findChild<SearchField*>()->setText("MA");

    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(chosen, (std::vector<std::filesystem::path>{"/c"}));
}

TEST_F(ApplicationChooserTest, choosesNothingByEscape)
{
    open({{"a", "Editor", "/a", false}});
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(chooser, &escape);

    EXPECT_TRUE(chosen.empty());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(chooser.isNull());
}

TEST_F(ApplicationChooserTest, isOutOfTheWayWhileAWindowIsPicked)
{
    open({{"a", "Editor", "/a", false}});

    button("Pick a Window").click();
    EXPECT_FALSE(chooser->isVisible());
    ASSERT_TRUE(pick);
    pick("wmclass:Strange");

    EXPECT_EQ(chosen, (std::vector<std::filesystem::path>{"wmclass:Strange"}));
    EXPECT_EQ(endedPicks, 1);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(chooser.isNull());
}

TEST_F(ApplicationChooserTest, comesBackWhenNoWindowIsPicked)
{
    open({{"a", "Editor", "/a", false}});
    button("Pick a Window").click();

    pick(std::nullopt);

    EXPECT_TRUE(chooser->isVisible());
    EXPECT_TRUE(chosen.empty());
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, (std::vector<std::filesystem::path>{"/a"}));
}

TEST_F(ApplicationChooserTest, endsThePickWithItself)
{
    open({{"a", "Editor", "/a", false}});
    button("Pick a Window").click();

    delete chooser;

    EXPECT_EQ(endedPicks, 1);
}

TEST_F(ApplicationChooserTest, drawsOnlyThePicturesThatCanBeSeenOfManyApplications)
{
    std::vector<ApplicationChoice> many;
    for (int number = 0; number < 5'000; ++number)
        many.push_back({"id" + std::to_string(number), std::string(10'000, 'n'),
            "/apps/" + std::to_string(number), false});
    open(std::move(many));

    EXPECT_GT(pictures, 0);
    EXPECT_LT(pictures, 30);
}

TEST_F(ApplicationChooserTest, saysThatNoApplicationHasTheName)
{
    open({{"a", "Editor", "/a", false}});
    chooser->findChild<SearchField*>()->setText("nothing");

    EXPECT_FALSE(chooser->findChild<QListView*>()->isVisible());
    press(Qt::Key_Return);
    EXPECT_TRUE(chosen.empty());
}

} // namespace
} // namespace brindlex
