#include "inputmethod/TextInputSourceService.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedInputSources.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

InputSourceProperties keyboard(const std::string& id, const std::string& name)
{
    return SimulatedInputSources::keyboard(id, name);
}

InputSourceProperties palette(const std::string& id)
{
    auto source = keyboard(id, "Palette");
    source.category = "TISCategoryPaletteInputSource";
    return source;
}

const std::vector<std::string> excluded{
    "com.apple.CharacterPaletteIM", "com.apple.inputmethod.EmojiFunctionRowItem"};

class TextInputSourceServiceTest : public testing::Test {
protected:
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedInputSources system{mainThread};
    TextInputSourceService service{system};
    RecordedLog log;
};

TEST(TextInputSourceService, readsTheFourFields)
{
    const InputSourceProperties source{
        "xkb:de::deu", std::string(keyboardInputSourceCategory), "German", false, false};

    EXPECT_EQ(TextInputSourceService::textInputSource(source),
        (TextInputSource{"xkb:de::deu", "German", false, false}));
}

TEST(TextInputSourceService, takesTheIdentifierForAMissingNameAndTrueForMissingFlags)
{
    const InputSourceProperties source{
        "xkb:de::deu", std::string(keyboardInputSourceCategory), {}, {}, {}};

    EXPECT_EQ(TextInputSourceService::textInputSource(source),
        (TextInputSource{"xkb:de::deu", "xkb:de::deu", true, true}));
}

TEST(TextInputSourceService, givesNoRecordWithoutIdentifierOrForAnotherCategory)
{
    auto withoutIdentifier = keyboard("x", "X");
    withoutIdentifier.id.reset();
    auto withoutCategory = keyboard("x", "X");
    withoutCategory.category.reset();

    EXPECT_EQ(TextInputSourceService::textInputSource(withoutIdentifier), std::nullopt);
    EXPECT_EQ(TextInputSourceService::textInputSource(withoutCategory), std::nullopt);
    EXPECT_EQ(TextInputSourceService::textInputSource(palette("x")), std::nullopt);
    for (const auto& id : excluded)
        EXPECT_EQ(TextInputSourceService::textInputSource(keyboard(id, "Emoji")), std::nullopt);
}

TEST_F(TextInputSourceServiceTest, listsWhatCanBeSelectedInTheOrderOfTheSystem)
{
    system.install(keyboard("b", "B"));
    system.install(palette("palette"));
    system.install(keyboard(excluded[0], "Characters"));
    auto disabled = keyboard("disabled", "Disabled");
    disabled.isEnabled = false;
    system.install(disabled);
    auto unselectable = keyboard("unselectable", "Unselectable");
    unselectable.isSelectCapable = false;
    system.install(unselectable);
    system.install(keyboard("a", "A"));

    EXPECT_EQ(service.availableSources(),
        (std::vector<TextInputSource>{{"b", "B", true, true}, {"a", "A", true, true}}));
}

TEST_F(TextInputSourceServiceTest, listsNothingWhenTheSystemDoesNotReply)
{
    system.install(keyboard("a", "A"));
    system.setResponds(false);

    EXPECT_TRUE(service.availableSources().empty());
    EXPECT_EQ(service.current(), std::nullopt);
    EXPECT_FALSE(service.selectInputSource("a"));
}

TEST_F(TextInputSourceServiceTest, readsTheCurrentSourceAsUnknownWhileAPaletteIsSelected)
{
    system.install(keyboard("a", "A"));
    system.install(palette("palette"));
    EXPECT_EQ(service.current(), (TextInputSource{"a", "A", true, true}));

    system.userSelects("palette");

    EXPECT_EQ(service.current(), std::nullopt);
}

TEST_F(TextInputSourceServiceTest, selectsAtTheFirstAttempt)
{
    system.install(keyboard("a", "A"));
    system.install(keyboard("b", "B"));

    EXPECT_TRUE(service.selectInputSource("b"));

    EXPECT_EQ(system.attempts(), std::vector<std::string>{"b"});
    EXPECT_EQ(service.current()->id, "b");
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(TextInputSourceServiceTest, doesNotEvenTryAnExcludedSource)
{
    for (const auto& id : excluded) {
        system.install(keyboard(id, "Palette"));
        EXPECT_FALSE(service.selectInputSource(id));
    }

    EXPECT_TRUE(system.attempts().empty());
}

TEST_F(TextInputSourceServiceTest, failsWithoutAWordForASourceThatIsGoneOrDisabled)
{
    system.install(keyboard("a", "A"));
    auto disabled = keyboard("disabled", "Disabled");
    disabled.isEnabled = false;
    system.install(disabled);

    EXPECT_FALSE(service.selectInputSource("gone"));
    EXPECT_FALSE(service.selectInputSource("disabled"));

    EXPECT_TRUE(system.attempts().empty());
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(TextInputSourceServiceTest, failsWithoutAWordForASourceThatIsNoSelectableKeyboard)
{
    system.install(keyboard("a", "A"));
    system.install(palette("palette"));
    auto unselectable = keyboard("unselectable", "Unselectable");
    unselectable.isSelectCapable = false;
    system.install(unselectable);

    EXPECT_FALSE(service.selectInputSource("palette"));
    EXPECT_FALSE(service.selectInputSource("unselectable"));

    EXPECT_TRUE(system.attempts().empty());
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(TextInputSourceServiceTest, triesOnceMoreAfterAFailureAndWarns)
{
    system.install(keyboard("a", "A"));
    system.install(keyboard("b", "B"));
    system.failSelections(1, -9);

    EXPECT_TRUE(service.selectInputSource("b"));

    EXPECT_EQ(system.attempts(), (std::vector<std::string>{"b", "b"}));
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [input-method] TISSelectInputSource(b) failed with OSStatus "
                                 "-9; retrying once"});
}

TEST_F(TextInputSourceServiceTest, takesAnyStatusButZeroForAFailure)
{
    system.install(keyboard("a", "A"));
    system.install(keyboard("b", "B"));
    system.failSelections(2, 1);

    EXPECT_FALSE(service.selectInputSource("b"));

    EXPECT_EQ(system.attempts(), (std::vector<std::string>{"b", "b"}));
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [input-method] TISSelectInputSource(b) failed with OSStatus "
                                 "1; retrying once"});
}

TEST_F(TextInputSourceServiceTest, givesUpAfterTheSecondFailureWithOneWarning)
{
    system.install(keyboard("a", "A"));
    system.install(keyboard("b", "B"));
    system.failSelections(2, -50);

    EXPECT_FALSE(service.selectInputSource("b"));

    EXPECT_EQ(system.attempts(), (std::vector<std::string>{"b", "b"}));
    EXPECT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(service.current()->id, "a");
}

} // namespace
} // namespace brindlex
