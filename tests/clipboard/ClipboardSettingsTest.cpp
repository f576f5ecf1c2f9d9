#include "clipboard/ClipboardSettings.h"

#include "clipboard/ClipboardHistoryStoreFixture.h"
#include "platform/VirtualKey.h"
#include "platform/simulated/SimulatedUserFolders.h"

#include <limits>

namespace brindlex {
namespace {

using Keys = ClipboardPreferenceKeys;
using Limits = std::vector<std::int64_t>;

struct ClipboardSettingsTest : ClipboardHistoryStoreTest {
    ClipboardSettings& settings()
    {
        if (!made)
            made.emplace(ClipboardSettings::Abilities{defaults, mainThread, folders, queue},
                store ? *store : start());
        return *made;
    }
    const ClipboardPreferences& shown() { return settings().preferences().value(); }
    template <typename Key>
    typename Key::Value stored(Key Keys::*key) const
    {
        return readPreference(defaults, Keys{}.*key);
    }

    SimulatedUserFolders folders{temporary.path()};
    std::optional<ClipboardSettings> made;
};

TEST_F(ClipboardSettingsTest, areTheDefaultsUntilSomethingIsStored)
{
    EXPECT_EQ(shown(),
        (ClipboardPreferences{
            true, {virtualKey::v, ModifierSet::command | ModifierSet::shift}, true, 200}));
    EXPECT_EQ(defaults.writes().size(), 0U);
}

TEST_F(ClipboardSettingsTest, areStoredAndPublishedWhenTheyAreSet)
{
    const HotkeyCombo hotkey{virtualKey::s, ModifierSet::control};
    settings().setHistoryEnabled(false);
    settings().setHotkey(hotkey);
    settings().setPastesAutomatically(false);
    settings().setMaxItems(5'000);

    EXPECT_EQ(shown(), (ClipboardPreferences{false, hotkey, false, 5'000}));
    EXPECT_FALSE(stored(&Keys::clipboardHistoryEnabled));
    EXPECT_EQ(stored(&Keys::clipboardHotkey), hotkey);
    EXPECT_FALSE(stored(&Keys::clipboardAutoPaste));
    EXPECT_EQ(stored(&Keys::clipboardMaxItems), 5'000);
}

TEST_F(ClipboardSettingsTest, publishOnlyWhatIsAnotherValue)
{
    int published = 0;
    const auto subscription
        = settings().preferences().stream().withoutFirst().subscribe([&](auto&) { ++published; });
    settings().setMaxItems(200);
    defaults.set("somethingElse", "value");
    EXPECT_EQ(published, 0);
    settings().setMaxItems(100);
    EXPECT_EQ(published, 1);
}

TEST_F(ClipboardSettingsTest, followAnotherProcess)
{
    SimulatedPreferencesDisk disk;
    SimulatedUserDefaults ours(disk, mainThread);
    SimulatedUserDefaults others(disk, mainThread);
    ClipboardSettings ourSettings({ours, mainThread, folders, queue}, start());

    writePreference(others, Keys{}.clipboardMaxItems, 1'000);
    writePreference(others, Keys{}.clipboardHistoryEnabled, false);
    mainThread.advance(1);

    EXPECT_EQ(ourSettings.preferences().value().maxItems, 1'000);
    EXPECT_FALSE(ourSettings.preferences().value().isHistoryEnabled);
}

TEST_F(ClipboardSettingsTest, takeADamagedValueForItsDefaultAndLeaveIt)
{
    defaults.set("clipboardHistoryEnabled", "perhaps");
    defaults.set("clipboardHotkey", std::vector<std::string>{"v"});
    defaults.set("clipboardAutoPaste", std::int64_t{0});
    defaults.set("clipboardMaxItems", 12.5);
    EXPECT_EQ(
        shown(), (ClipboardPreferences{true, Keys{}.clipboardHotkey.defaultValue, true, 200}));
    EXPECT_EQ(defaults.value("clipboardMaxItems"), PreferenceValue(12.5));
}

TEST_F(ClipboardSettingsTest, showWhatStrangersHaveStoredAsItIs)
{
    const HotkeyCombo plainKey{virtualKey::v, {}};
    writePreference(defaults, Keys{}.clipboardHotkey, plainKey);
    setLimit(-7);
    EXPECT_EQ(shown().hotkey, plainKey);
    EXPECT_EQ(shown().maxItems, -7);
}

TEST_F(ClipboardSettingsTest, haveAHotkeyWithCommandOptionOrControl)
{
    for (const auto modifier : {ModifierSet::command, ModifierSet::option, ModifierSet::control}) {
        EXPECT_TRUE(isClipboardHotkey({virtualKey::a, modifier}));
        EXPECT_TRUE(isClipboardHotkey({virtualKey::a, modifier | ModifierSet::shift}));
        EXPECT_FALSE(isClipboardHotkey({-1, modifier}));
    }
    EXPECT_FALSE(isClipboardHotkey({virtualKey::a, {}}));
    EXPECT_FALSE(isClipboardHotkey({virtualKey::a, ModifierSet::shift}));
    EXPECT_FALSE(isClipboardHotkey({virtualKey::a, ModifierSet{16}}));
}

TEST_F(ClipboardSettingsTest, keepTheHotkeyWhenGivenNone)
{
    const auto before = shown();
    settings().setHotkey({virtualKey::a, {}});
    settings().setHotkey({virtualKey::a, ModifierSet::shift});
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(defaults.writes().size(), 0U);
}

TEST_F(ClipboardSettingsTest, haveNoHotkeyOnceItIsTakenAway)
{
    settings().setHotkey({-5, ModifierSet::control});
    EXPECT_EQ(shown().hotkey, (HotkeyCombo{-1, {}}));
    EXPECT_EQ(stored(&Keys::clipboardHotkey), (HotkeyCombo{-1, {}}));
}

TEST_F(ClipboardSettingsTest, offerLimitsWithThePresentOneInItsPlace)
{
    const Limits usual{50, 100, 200, 500, 1'000, 5'000, 10'000, 100'000};
    for (const auto limit : usual)
        EXPECT_EQ(clipboardMaxItemsChoices(limit), usual) << limit;
    EXPECT_EQ(clipboardMaxItemsChoices(300),
        (Limits{50, 100, 200, 300, 500, 1'000, 5'000, 10'000, 100'000}));
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    for (const auto limit : {least, std::int64_t{-1}, std::int64_t{0}, std::int64_t{49}})
        EXPECT_EQ(clipboardMaxItemsChoices(limit).front(), limit);
    for (const auto limit : {std::int64_t{100'001}, most})
        EXPECT_EQ(clipboardMaxItemsChoices(limit).back(), limit);
}

TEST_F(ClipboardSettingsTest, nameTheFolderAsPeopleDo)
{
    EXPECT_EQ(settings().folder(), directory);
    EXPECT_EQ(settings().folderName(), "~/Brindlex/ClipboardHistory");
    folders.homeFolder = temporary.path() / "Brindlex/Clip";
    EXPECT_EQ(settings().folderName(), directory.string());
    folders.homeFolder = "relative";
    EXPECT_EQ(settings().folderName(), directory.string());
}

TEST_F(ClipboardSettingsTest, deleteTheHistoryWithItsFilesAndItsPinnedItems)
{
    start();
    const auto picture = pinned(imageItem());
    ASSERT_TRUE(store->writeBlob(*picture.imageBlobName, "picture"));
    store->add(picture);
    store->add(textItem("text"));
    save();
    settings().clear();
    save();
    EXPECT_EQ(texts(), Texts{});
    EXPECT_EQ(savedTexts(), Texts{});
    EXPECT_EQ(namesIn(blobs), Texts{});
    EXPECT_EQ(settings().historyMeter().measure().value().items, 0U);
}

} // namespace
} // namespace brindlex
