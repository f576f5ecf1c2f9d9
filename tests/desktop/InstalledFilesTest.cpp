#include "support/basics/TemporaryFolder.h"
#include "support/processes/CommandOutput.h"
#include "support/processes/Installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

/// What stands beside the program once it is installed, read by the tools that judge it.
class InstalledFiles : public testing::Test {
protected:
    std::filesystem::path entry() const
    {
        return installation.dataFolder() / "applications/com.brindlex.Brindlex.desktop";
    }
    std::filesystem::path metainfo() const
    {
        return installation.dataFolder() / "metainfo/com.brindlex.Brindlex.metainfo.xml";
    }
    std::filesystem::path manual() const
    {
        return installation.dataFolder() / "man/man1/brindlex.1.gz";
    }

    /// What the program prints with this option.
    std::string printed(const std::string& option) const
    {
        return outputOf({installation.program(), option}).text;
    }

    /// The number that the program itself says it has.
    std::string version() const
    {
        std::string name;
        std::string number;
        std::istringstream(printed("--version")) >> name >> number;
        return number;
    }

    /// The manual as it is shown, with all of a paragraph in one line.
    std::string shownManual() const
    {
        return outputOf({"man", "--local-file", manual()},
            {{"MANWIDTH", "1000"}, {"LC_ALL", "C.UTF-8"}, {"MANPAGER", "cat"}})
            .text;
    }

    TemporaryFolder folder;
    Installation installation{folder.path()};
};

/// The words with single blanks between them.
std::string inOneLine(const std::string& text)
{
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;)
        line += (line.empty() ? "" : " ") + word;
    return line;
}

/// All that the expression finds, or its first group where it has one.
std::vector<std::string> findings(const std::string& text, const std::string& expression)
{
    const std::regex wanted(expression);
    std::vector<std::string> found;
    for (std::sregex_iterator each(text.begin(), text.end(), wanted), end; each != end; ++each)
        found.push_back(each->str(wanted.mark_count()));
    return found;
}

/// The name that desktop entries and their kin have for each language of the program but English.
const std::vector<std::string> entryLanguages{
    "de", "es", "fr", "ja", "ko", "zh_CN", "zh_HK", "zh_TW"};

TEST_F(InstalledFiles, haveAValidEntryForTheMenus)
{
    const auto output = outputOf({"desktop-file-validate", entry()});
    EXPECT_EQ(output.status, 0);
    EXPECT_EQ(output.text, "");
}

TEST_F(InstalledFiles, haveAnEntryInEveryLanguage)
{
    for (const std::string key : {"GenericName", "Comment", "Keywords"})
        EXPECT_EQ(findings(contentOf(entry()), "\n" + key + "\\[(.+?)\\]=."), entryLanguages)
            << key;
}

TEST_F(InstalledFiles, haveAValidDescriptionForSoftwareCentres)
{
    const auto output = outputOf({"appstreamcli", "validate-tree", "--no-net", folder.path()});
    EXPECT_EQ(output.status, 0) << output.text;
    EXPECT_NE(output.text.find("com.brindlex.Brindlex.metainfo.xml"), std::string::npos)
        << output.text;
}

TEST_F(InstalledFiles, haveADescriptionInEveryLanguage)
{
    for (const std::string element : {"summary", "p"})
        EXPECT_EQ(findings(contentOf(metainfo()), "<" + element + " xml:lang=\"(.+?)\">."),
            entryLanguages)
            << element;
    const auto english = findings(contentOf(metainfo()), "<li>");
    const auto translated = findings(contentOf(metainfo()), "<li xml:lang=");
    EXPECT_EQ(translated.size(), english.size() * entryLanguages.size());
}

TEST_F(InstalledFiles, haveAManualWithoutMistakes)
{
    const auto output = outputOf(
        {"man", "--warnings", "--local-file", "-Tutf8", "-Z", manual()}, {{"LC_ALL", "C.UTF-8"}});
    EXPECT_EQ(output.status, 0);
    const auto warnings = findings(output.text, "[^\n]*(?:warning|error):[^\n]*");
    EXPECT_EQ(warnings, std::vector<std::string>{});
}

TEST_F(InstalledFiles, haveAManualWithTheOptionsOfTheHelp)
{
    std::string inHelp;
    for (const auto& line : findings(printed("--help"), "\n +--[^\n]+"))
        inHelp += line;
    const auto manualText = shownManual();
    const auto inManual = findings(manualText, "\nOPTIONS\n((?:.|\n)*?)\n\n +An option may be");
    ASSERT_EQ(inManual.size(), 1u) << manualText;

    EXPECT_EQ(inOneLine(inManual.front()), inOneLine(inHelp));
}

TEST_F(InstalledFiles, agreeOnTheVersion)
{
    const auto number = version();
    EXPECT_EQ(findings(shownManual(), "Brindlex ([0-9.]+) "), std::vector{number});
    const auto releases = findings(contentOf(metainfo()), "<release version=\"(.+?)\"");
    ASSERT_FALSE(releases.empty());
    EXPECT_EQ(releases.front(), number);
    const auto changes = outputOf({"dpkg-parsechangelog", "--show-field=Version", "--file",
        installation.dataFolder() / "doc/brindlex/changelog.Debian.gz"});
    EXPECT_EQ(changes.text, number + "-0brindlex1\n");
}

/// The width and the height that a PNG says it has.
std::pair<unsigned, unsigned> sizeOfPicture(const std::string& picture)
{
    constexpr std::size_t width = 16;
    constexpr std::size_t height = 20;
    const auto number = [&](std::size_t place) {
        unsigned value = 0;
        for (const auto byte : picture.substr(place, 4))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    };
    if (!picture.starts_with("\x89PNG") || picture.size() < height + 4)
        return {};
    return {number(width), number(height)};
}

TEST_F(InstalledFiles, haveIconsOfTheSizesThatTheirFoldersName)
{
    const auto theme = installation.dataFolder() / "icons/hicolor";
    for (const unsigned size : {16u, 22u, 24u, 32u, 48u, 64u, 128u, 256u}) {
        const auto name = std::to_string(size) + "x" + std::to_string(size);
        const auto picture = contentOf(theme / name / "apps/com.brindlex.Brindlex.png");
        EXPECT_EQ(sizeOfPicture(picture), std::pair(size, size)) << name;
    }
}

} // namespace
} // namespace brindlex
