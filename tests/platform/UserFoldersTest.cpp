#include "platform/UserFolders.h"

#include "platform/linux/system/XdgUserFolders.h"
#include "platform/simulated/SimulatedUserFolders.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace brindlex {
namespace {

struct SimulatedHome {
    const UserFolders& folders() const { return folders_; }
    void setDownloads(const std::filesystem::path& folder) { folders_.downloadsFolder = folder; }

    std::filesystem::path home = "/home/somebody";

private:
    SimulatedUserFolders folders_{home};
};

struct LinuxHome {
    LinuxHome()
    {
        std::filesystem::create_directories(home / ".config");
        const auto text = home.string();
        folders_.emplace(
            [&](const char* name) { return name == std::string("HOME") ? text.c_str() : nullptr; });
    }
    const UserFolders& folders() const { return *folders_; }
    void setDownloads(const std::filesystem::path& folder)
    {
        write(home / ".config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"" + folder.string() + "\"\n");
    }

    TemporaryFolder temporary;
    std::filesystem::path home = temporary.path();

private:
    std::optional<XdgUserFolders> folders_;
};

template <typename Home>
class UserFoldersContract : public testing::Test {
protected:
    Home user;
};

using Homes = testing::Types<SimulatedHome, LinuxHome>;
TYPED_TEST_SUITE(UserFoldersContract, Homes);

TYPED_TEST(UserFoldersContract, knowsTheHomeFolder)
{
    EXPECT_EQ(this->user.folders().home(), this->user.home);
}

TYPED_TEST(UserFoldersContract, knowsWhereProgramsKeepTheirFiles)
{
    EXPECT_EQ(this->user.folders().dataHome(), this->user.home / ".local/share");
}

TYPED_TEST(UserFoldersContract, knowsWhereDownloadsGoAtTheMomentOfAsking)
{
    this->user.setDownloads("/data/one");
    EXPECT_EQ(this->user.folders().downloads(), "/data/one");
    this->user.setDownloads("/data/two");
    EXPECT_EQ(this->user.folders().downloads(), "/data/two");
}

} // namespace
} // namespace brindlex
