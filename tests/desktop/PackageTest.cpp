#include "desktop/ProgramDesk.h"
#include "foundation/FatalError.h"
#include "support/processes/CommandOutput.h"
#include "support/processes/Installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace brindlex {
namespace {

/// The package for Debian, made of the build of this test. Without compression, which would take
/// longer than everything else.
class Package : public testing::Test {
protected:
    Package()
    {
        const auto made
            = outputOf({"cpack", "-G", "DEB", "--config", buildFolder() / "CPackConfig.cmake", "-B",
                folder_.path(), "-D", "CPACK_DEBIAN_COMPRESSION_TYPE=none"});
        if (made.status != 0)
            fatalError("Cannot make the package: " + made.text);
    }

    std::string file() const { return folder_.path() / "brindlex.deb"; }

    /// What the package says of itself that does not change with every build.
    std::string fields() const
    {
        const auto all = outputOf({"dpkg-deb", "--field", file(), "Package", "Version", "Section",
            "Priority", "Depends", "Recommends", "Suggests"});
        return std::regex_replace(all.text, std::regex(" \\([^)]*\\)"), "");
    }

    /// A line for each file: permissions, owner, name and where a link leads.
    std::string contents() const
    {
        std::istringstream lines(outputOf({"dpkg-deb", "--contents", file()}).text);
        std::string text;
        std::string permissions;
        std::string owner;
        std::string size;
        std::string date;
        std::string time;
        std::string name;
        while (lines >> permissions >> owner >> size >> date >> time && std::getline(lines, name))
            text.append(permissions).append(" ").append(owner).append(name).append("\n");
        return text;
    }

    /// What stands in a file of the package.
    std::string content(const std::string& name) const
    {
        const auto unpacked = folder_.path() / "unpacked";
        outputOf({"dpkg-deb", "--extract", file(), unpacked});
        return contentOf(unpacked / name);
    }

private:
    TemporaryFolder folder_;
};

TEST_F(Package, holdsWhatUsersNeed)
{
    EXPECT_EQ(fields() + "\n" + contents(), contentOf(PACKAGE_CONTENTS));
    EXPECT_EQ(content("usr/share/dbus-1/services/com.brindlex.Brindlex.service"),
        "[D-BUS Service]\nName=com.brindlex.Brindlex\nExec=/usr/bin/brindlex\n");
}

/// Everything below a folder, with the contents of files.
std::map<std::filesystem::path, std::string> everythingIn(const std::filesystem::path& folder)
{
    std::map<std::filesystem::path, std::string> found;
    for (const auto& item : std::filesystem::recursive_directory_iterator(folder))
        found[item.path()] = item.is_regular_file() ? contentOf(item.path()) : "";
    return found;
}

TEST_F(Package, leavesTheFilesOfTheUserWhenItIsRemoved)
{
    const ProgramDesk desk;
    // A system of its own, with the home of the desktop in it.
    const auto root = desk.desktop.home().parent_path();
    const auto installer = [&](const std::string& action, const std::string& package) {
        return outputOf({"dpkg", "--root=" + root.string(), "--force-depends", action, package});
    };
    const auto installed = installer("--install", file());
    ASSERT_EQ(installed.status, 0) << installed.text;
    RunningProgram program(desk.desktop, {}, root / "usr/bin/brindlex");
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    const auto home = everythingIn(desk.desktop.home());
    ASSERT_TRUE(home.contains(desk.files.preferences()));
    ASSERT_TRUE(home.contains(desk.files.log()));

    const auto removed = installer("--purge", "brindlex");

    EXPECT_EQ(removed.status, 0) << removed.text;
    EXPECT_FALSE(std::filesystem::exists(root / "usr"));
    EXPECT_EQ(everythingIn(desk.desktop.home()), home);
}

} // namespace
} // namespace brindlex
