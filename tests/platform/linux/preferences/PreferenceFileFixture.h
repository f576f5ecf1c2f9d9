#pragma once

#include "platform/linux/preferences/PreferenceFile.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace brindlex {

/// A folder for the file of preferences, and the log of what becomes of it.
class PreferenceFileTest : public testing::Test {
protected:
    using Finding = PreferenceFile::Finding;
    using Patience = PreferenceFile::Patience;

    static PreferenceDocument document(const std::string& text)
    {
        return parsePreferences(text).value();
    }

    std::filesystem::path at(const std::string& name) const { return folder.path() / name; }
    std::filesystem::path path() const { return at("p.json"); }

    /// Makes `closed/p.json`, in a folder that nothing may be written to.
    void makeFileInClosedFolder(const std::string& content) const
    {
        namespace files = std::filesystem;
        files::create_directory(at("closed"));
        write(at("closed/p.json"), content);
        files::permissions(at("closed/p.json"), files::perms(0644));
        files::permissions(at("closed"), files::perms(0555));
    }

    /// Expects a file with these values.
    void expectContent(const std::string& text)
    {
        EXPECT_TRUE(isSameDocument(document(contentOf(path())), document(text)))
            << contentOf(path());
    }

    /// What the log says of a file that is set aside.
    std::string asideLine(const std::string& reason) const
    {
        return "ERROR [lifecycle] Preferences set aside as " + at("p.json.corrupt").string() + ": "
            + reason;
    }

    /// Expects that what stands in the file's place is set aside for that reason.
    void expectSetAside(const std::string& reason)
    {
        PreferenceFile file(path());
        EXPECT_EQ(file.look(Patience::waits), Finding::unsettled);
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::symlink_status(path())));
        EXPECT_EQ(file.look(Patience::acts), Finding::setAside);
        EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(path())));
        EXPECT_EQ(log.takeLines(), std::vector{asideLine(reason)});
        EXPECT_EQ(file.look(Patience::acts), Finding::unchanged);
        EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a"}));
        expectContent(R"({"a":1})");
    }

    TemporaryFolder folder;
    RecordedLog log;
};

} // namespace brindlex
