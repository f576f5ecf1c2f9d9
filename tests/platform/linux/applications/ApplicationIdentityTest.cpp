#include "platform/linux/applications/ApplicationIdentity.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

DesktopEntry entry(const std::string& identifier, const std::string& windowClass = "",
    const std::string& program = "")
{
    return {.identifier = identifier, .windowClass = windowClass, .program = program};
}

std::string found(const WindowOrigin& origin, const std::vector<DesktopEntry>& entries)
{
    const auto* match = entryOf(origin, entries);
    return match ? match->identifier : "(none)";
}

TEST(ApplicationIdentity, comesFromTheExactWindowClassFirst)
{
    const std::vector entries{entry("pad"), entry("one", "PAD"), entry("two", "Pad")};
    EXPECT_EQ(found({"x", "Pad", ""}, entries), "two");
    EXPECT_EQ(found({"x", "PAD", ""}, entries), "one");
}

TEST(ApplicationIdentity, comesFromTheWindowClassInAnyCaseNext)
{
    EXPECT_EQ(found({"x", "paD", ""}, {entry("pad"), entry("two", "Pad")}), "two");
}

TEST(ApplicationIdentity, comesFromTheEntrysIdentifierOrItsLastPart)
{
    EXPECT_EQ(found({"pad", "Pad", ""}, {entry("org.example.Pad")}), "org.example.Pad");
    EXPECT_EQ(found({"", "org.example.pad", ""}, {entry("org.example.Pad")}), "org.example.Pad");
    EXPECT_EQ(found({"", "example", ""}, {entry("org.example.Pad")}), "(none)");
}

TEST(ApplicationIdentity, comesFromTheProgramLast)
{
    const std::vector entries{entry("editor", "", "pad"), entry("pad2")};
    EXPECT_EQ(found({"a", "B", "pad"}, entries), "editor");
    EXPECT_EQ(found({"pad", "B", "other"}, entries), "editor");
    EXPECT_EQ(found({"a", "Pad2", "pad"}, entries), "pad2");
}

TEST(ApplicationIdentity, takesAWebApplicationForItselfAndNotForItsBrowser)
{
    const std::vector entries{
        entry("google-chrome", "Google-chrome"), entry("chrome-abc-Default", "crx_abc")};
    EXPECT_EQ(found({"crx_abc", "Google-chrome", "chrome"}, entries), "chrome-abc-Default");
    EXPECT_EQ(found({"google-chrome", "Google-chrome", "chrome"}, entries), "google-chrome");
}

TEST(ApplicationIdentity, prefersEntriesThatAreInTheMenus)
{
    auto hidden = entry("hidden", "Pad");
    hidden.isInMenus = false;
    EXPECT_EQ(found({"", "Pad", ""}, {hidden, entry("shown", "Pad")}), "shown");
    EXPECT_EQ(found({"", "Pad", ""}, {hidden}), "hidden");
}

TEST(ApplicationIdentity, doesNotTakeOneOfSeveralEntriesThatStartTheSameProgram)
{
    EXPECT_EQ(
        found({"", "", "office"}, {entry("writer", "", "office"), entry("calc", "", "office")}),
        "(none)");
}

TEST(ApplicationIdentity, doesNotTakeInterpretersAndTerminalsForAnApplication)
{
    for (const auto* program : {"python3.11", "electron27", "java", "bash", "flatpak", "wine64"})
        EXPECT_EQ(found({"", "", program}, {entry("a", "", program)}), "(none)") << program;
    auto terminal = entry("vim", "", "vim");
    terminal.runsInTerminal = true;
    EXPECT_EQ(found({"", "", "vim"}, {terminal}), "(none)");
}

TEST(ApplicationIdentity, findsNothingForAWindowThatSaysNothing)
{
    EXPECT_EQ(found({}, {entry(""), entry("a", "", ""), entry("b", "B", "b")}), "(none)");
}

TEST(ApplicationIdentity, fallsBackToClassInstanceAndProgram)
{
    EXPECT_EQ(identifierWithoutEntry({"a", "B", "c"}), "wmclass:B");
    EXPECT_EQ(identifierWithoutEntry({"a", "", "c"}), "wmclass:a");
    EXPECT_EQ(identifierWithoutEntry({"", "", "c"}), "exe:c");
    EXPECT_EQ(identifierWithoutEntry({}), std::nullopt);
    EXPECT_EQ(identifierWithoutEntry({"Navigator", "Firefox", "firefox"}), "org.mozilla.firefox");
}

TEST(ApplicationIdentity, keepsTheIdentifierThatRulesKnowABrowserBy)
{
    EXPECT_EQ(identifierOf(entry("google-chrome")), "com.google.Chrome");
    EXPECT_EQ(identifierOf(entry("org.example.Pad")), "org.example.Pad");
}

} // namespace
} // namespace brindlex
