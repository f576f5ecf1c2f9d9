#include "catalogue/CatalogueTable.h"

#include "foundation/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace brindlex {
namespace {

std::string groupOf(const CatalogueRow& row)
{
    return std::string(row.key.substr(0, row.key.find('.')));
}

TEST(CatalogueTable, hasItsGroups)
{
    std::map<std::string, int> sizes;
    for (const auto& row : catalogueTable)
        ++sizes[groupOf(row)];

    const std::map<std::string, int> expected{
        {"tab", 7},
        {"clipboard", 19},
        {"general", 17},
        {"menubar", 5},
        {"ocr", 5},
        {"shared", 3},
        {"finder", 60},
        {"inputMethod", 41},
        {"mouse", 39},
        {"about", 6},
        {"logs", 28},
        {"permissions", 19},
        {"placeholder", 1},
    };
    for (const auto& [group, size] : expected)
        EXPECT_EQ(sizes[group], size) << group;
}

TEST(CatalogueTable, hasEachKeyOnceAndNoTextWithBlanksAtItsEnds)
{
    std::set<std::string_view> keys;
    for (const auto& row : catalogueTable) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        EXPECT_FALSE(row.defaultValue.empty()) << row.key;
        EXPECT_EQ(trimmed(row.defaultValue), row.defaultValue) << row.key;
    }
}

TEST(CatalogueTable, endsTheKeysOfTextsWithPlacesInFormat)
{
    for (const auto& row : catalogueTable)
        EXPECT_EQ(row.key.ends_with("Format"), row.defaultValue.find('%') != std::string::npos)
            << row.key;
}

TEST(CatalogueTable, hasTheEnglishTextsBesideTheirKeys)
{
    const std::map<std::string_view, std::string_view> expected{
        {"tab.general", "General"},
        {"tab.dictation", "Dictation"},
        {"menubar.openApp", "Open Brindlex"},
        {"menubar.quitApp", "Quit Brindlex"},
        {"menubar.checkForUpdates", "Check for Updates…"},
        {"clipboard.hotkey.title", "Open picker shortcut"},
        {"clipboard.autoPaste.title", "Paste into the previous app automatically"},
        {"clipboard.clear.confirm", "Delete all clipboard history? This cannot be undone."},
        {"clipboard.hint.quick", "Quick paste"},
        {"logs.windowTitle", "Brindlex Logs"},
        {"logs.entriesCountFormat", "%lld / %lld entries"},
        {"logs.alert.clear.titleFormat", "Clear %@ log?"},
        {"logs.alert.clear.message", "This truncates the current log file immediately."},
        {"logs.clearFailedFormat", "Failed to clear log: %@"},
        {"logs.readFailedFormat", "Failed to read log: %@"},
        {"logs.error.appGroupUnavailable", "App Group container unavailable"},
        {"logs.noLogs.subtitle", "New entries appear here while Brindlex runs."},
        {"about.versionLineFormat", "Version %@"},
        {"finder.guide.title", "How to enable the Brindlex Finder extension"},
        {"finder.guide.step2",
            "Go to General → Login Items & Extensions, then click ⓘ next to “File Providers”"},
        {"finder.guide.step3", "Toggle Brindlex on"},
        {"finder.terminalCommands.clipboardEmpty", "Clipboard is empty"},
        {"inputMethod.smart.threshold", "Activation threshold"},
    };
    for (const auto& [key, text] : expected) {
        ASSERT_LT(catalogueIndex(key), catalogueTable.size()) << key;
        EXPECT_EQ(catalogueTable[catalogueIndex(key)].defaultValue, text);
    }
}

TEST(CatalogueTable, hasNoRowForAnUnknownKey)
{
    EXPECT_EQ(catalogueIndex("tab"), catalogueTable.size());
    EXPECT_EQ(catalogueIndex(""), catalogueTable.size());
}

} // namespace
} // namespace brindlex
