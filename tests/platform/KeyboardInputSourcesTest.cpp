#include "platform/KeyboardInputSources.h"

#include "platform/InputSourceDesks.h"
#include "support/loops/LoopUntil.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

template <typename Desk>
class KeyboardInputSourcesContract : public testing::Test {
protected:
    KeyboardInputSourcesContract()
    {
        // Everybody begins with the first source, after the notifications of all that led there.
        std::optional<std::string> seen;
        const auto subscription
            = sources().observeSelectionChanges([&](SelectionCause) { seen = currentID(); });
        for (const auto& id : {ids()[1], ids()[0]}) {
            desk.userSelects(id);
            EXPECT_TRUE(until([&] { return seen == id; }));
        }
    }

    KeyboardInputSources& sources() { return desk.sources(); }
    const std::vector<std::string>& ids() { return desk.ids; }

    std::optional<std::string> currentID()
    {
        const auto source = sources().current();
        return source ? source->id : std::nullopt;
    }
    InputSourceProperties source(const std::string& id)
    {
        return sources().list({.id = id}).value().at(0);
    }
    bool until(const std::function<bool()>& condition)
    {
        return loopUntil([&] {
            desk.run();
            return condition();
        });
    }
    bool throughout(std::chrono::milliseconds period, const std::function<bool()>& condition)
    {
        return loopThroughout(period, [&] {
            desk.run();
            return condition();
        });
    }

    Desk desk;
};

using Desks = testing::Types<SimulatedDesk, XkbDesk, IBusDesk, FcitxDesk>;
struct DeskNames {
    template <typename Desk>
    static std::string GetName(int)
    {
        return Desk::name;
    }
};
TYPED_TEST_SUITE(KeyboardInputSourcesContract, Desks, DeskNames);

TYPED_TEST(KeyboardInputSourcesContract, listsTheSourcesInTheOrderOfTheSystem)
{
    const auto all = this->sources().list({});
    ASSERT_TRUE(all);
    std::vector<std::string> listed;
    for (const auto& source : *all) {
        listed.push_back(source.id.value_or(""));
        EXPECT_EQ(source.category, keyboardInputSourceCategory);
        EXPECT_EQ(source.isSelectCapable, true);
        EXPECT_EQ(source.isEnabled, true);
        EXPECT_FALSE(source.localizedName.value_or("").empty());
        EXPECT_NE(source.localizedName, source.id);
    }
    EXPECT_EQ(listed, this->ids());
}

TYPED_TEST(KeyboardInputSourcesContract, listsOnlyWhatHasTheGivenProperties)
{
    const auto one = this->sources().list({.id = this->ids()[1],
        .category = std::string(keyboardInputSourceCategory),
        .isSelectCapable = true,
        .isEnabled = true});
    ASSERT_TRUE(one);
    ASSERT_EQ(one->size(), 1u);
    EXPECT_EQ(one->front().id, this->ids()[1]);
    EXPECT_EQ(this->sources().list({.id = "no such source"}), std::vector<InputSourceProperties>());
    EXPECT_EQ(this->sources().list({.category = "TISCategoryPaletteInputSource"}),
        std::vector<InputSourceProperties>());
    EXPECT_EQ(this->sources().list({.isEnabled = false}), std::vector<InputSourceProperties>());
}

TYPED_TEST(KeyboardInputSourcesContract, returnsTheSelectedSourceAtOnce)
{
    for (const auto& id : {this->ids()[2], this->ids()[1], this->ids()[0]}) {
        ASSERT_EQ(this->sources().select(this->source(id)), 0) << id;
        EXPECT_EQ(this->sources().current(), this->source(id));
    }
}

TYPED_TEST(KeyboardInputSourcesContract, notifiesOfASelectionOnceAndNotFromInsideIt)
{
    int notified = 0;
    std::optional<std::string> seen;
    const auto subscription = this->sources().observeSelectionChanges([&](SelectionCause) {
        ++notified;
        seen = this->currentID();
    });
    for (int round = 1; round <= 4; ++round) {
        const auto id = this->ids()[round % 2 == 0 ? 0 : 2];
        ASSERT_EQ(this->sources().select(this->source(id)), 0);
        EXPECT_EQ(notified, round - 1);
        EXPECT_TRUE(this->until([&] { return notified == round; }));
        EXPECT_EQ(seen, id);
    }
    EXPECT_TRUE(this->throughout(400ms, [&] { return notified == 4; })) << notified;
}

TYPED_TEST(KeyboardInputSourcesContract, notifiesOnceOfWhatTheUserSelects)
{
    int notified = 0;
    const auto subscription
        = this->sources().observeSelectionChanges([&](SelectionCause) { ++notified; });
    this->desk.userSelects(this->ids()[2]);
    EXPECT_TRUE(this->until([&] { return notified == 1; }));
    EXPECT_EQ(this->currentID(), this->ids()[2]);
    this->desk.userSelects(this->ids()[1]);
    EXPECT_TRUE(this->until([&] { return notified == 2; }));
    EXPECT_EQ(this->currentID(), this->ids()[1]);
    EXPECT_TRUE(this->throughout(400ms, [&] { return notified == 2; })) << notified;
}

TYPED_TEST(KeyboardInputSourcesContract, takesASelectionByTheUserForAChoice)
{
    std::vector<SelectionCause> causes;
    const auto subscription = this->sources().observeSelectionChanges(
        [&](SelectionCause cause) { causes.push_back(cause); });
    // A daemon may have to start something for it, and gives that up for the next request.
    ASSERT_EQ(this->sources().select(this->source(this->ids()[2])), 0);
    ASSERT_TRUE(this->until([&] { return causes.size() == 1; }));
    this->desk.userSelects(this->ids()[1]);
    EXPECT_TRUE(this->until([&] { return causes.size() == 2; }));
    EXPECT_EQ(causes, (std::vector{SelectionCause::choice, SelectionCause::choice}));
}

TYPED_TEST(KeyboardInputSourcesContract, seesThatTheSystemUndoesASelection)
{
    std::vector<SelectionCause> causes;
    const auto subscription = this->sources().observeSelectionChanges(
        [&](SelectionCause cause) { causes.push_back(cause); });
    ASSERT_EQ(this->sources().select(this->source(this->ids()[2])), 0);
    this->desk.systemUndoesWith(this->ids()[0]);
    EXPECT_TRUE(
        this->until([&] { return !causes.empty() && causes.back() == SelectionCause::undoing; }));
    EXPECT_EQ(this->currentID(), this->ids()[0]);
}

TYPED_TEST(KeyboardInputSourcesContract, doesNotNotifyWhenTheSelectedSourceIsSelected)
{
    int notified = 0;
    const auto subscription
        = this->sources().observeSelectionChanges([&](SelectionCause) { ++notified; });
    EXPECT_EQ(this->sources().select(this->source(this->ids()[0])), 0);
    EXPECT_TRUE(this->throughout(300ms, [&] { return notified == 0; }));
    EXPECT_EQ(this->currentID(), this->ids()[0]);
}

TYPED_TEST(KeyboardInputSourcesContract, refusesASourceThatItDoesNotHave)
{
    auto unknown = this->source(this->ids()[0]);
    unknown.id = "no such source";
    EXPECT_NE(this->sources().select(unknown), 0);
    EXPECT_EQ(this->currentID(), this->ids()[0]);
}

TYPED_TEST(KeyboardInputSourcesContract, notifiesNobodyWhoHasGone)
{
    int notified = 0;
    auto subscription
        = this->sources().observeSelectionChanges([&](SelectionCause) { ++notified; });
    subscription.reset();
    this->desk.userSelects(this->ids()[1]);
    EXPECT_TRUE(this->until([&] { return this->currentID() == this->ids()[1]; }));
    EXPECT_TRUE(this->throughout(100ms, [&] { return notified == 0; }));
}

} // namespace
} // namespace brindlex
