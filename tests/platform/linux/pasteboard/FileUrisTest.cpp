#include "platform/linux/pasteboard/FileUris.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <array>

namespace brindlex {
namespace {

using Paths = std::vector<std::string>;

TEST(FileUris, readsTheListOfAnApplication)
{
    EXPECT_EQ(pathsOfUriList("file:///home/user/a%20b\r\nfile:///tmp/100%25\r\n"),
        (Paths{"/home/user/a b", "/tmp/100%"}));
    EXPECT_EQ(pathsOfUriList("file:///a\nfile:///b"), (Paths{"/a", "/b"}));
    EXPECT_EQ(pathsOfUriList("file:///a\rfile:///b\r"), (Paths{"/a", "/b"}));
}

TEST(FileUris, readsTheListOfAFileManager)
{
    EXPECT_EQ(pathsOfUriList("copy\nfile:///a\nfile:///b"), (Paths{"/a", "/b"}));
    EXPECT_EQ(pathsOfUriList("cut\nfile:///a"), Paths{"/a"});
}

TEST(FileUris, leavesOutWhatIsNoLocalFile)
{
    EXPECT_EQ(pathsOfUriList("# file:///comment\nhttps://example.org/a\n\nfile:///a\nmailto:x\n"),
        Paths{"/a"});
    EXPECT_EQ(pathsOfUriList("file://elsewhere.example/a\nsmb://host/b"), Paths{});
    EXPECT_EQ(pathsOfUriList("file:///a%00b\nfile:relative\nfile:\nfile://\nfil"), Paths{});
    EXPECT_EQ(pathsOfUriList(""), Paths{});
}

TEST(FileUris, readsEveryWayToNameThisComputer)
{
    std::array<char, 256> host{};
    ASSERT_EQ(gethostname(host.data(), host.size() - 1), 0);
    EXPECT_EQ(pathsOfUriList("file:/a\nFILE:///b\nfile://localhost/c\nfile://"
                  + std::string(host.data()) + "/d"),
        (Paths{"/a", "/b", "/c", "/d"}));
}

TEST(FileUris, leavesWhatIsNotEncodedAsItIs)
{
    EXPECT_EQ(pathsOfUriList("file:///50%\nfile:///%4\nfile:///%zz\nfile:///a b\nfile:///é"),
        (Paths{"/50%", "/%4", "/%zz", "/a b", "/é"}));
    EXPECT_EQ(pathsOfUriList("file:///%41%c3%A9%FF"), Paths{"/A\u00E9\xFF"});
}

TEST(FileUris, writesWhatItReads)
{
    const Paths paths{"/home/user/a b", "/tmp/100%", "/漢🎛", "/#?&=+;", "/\xFF\n\r", "/"};
    EXPECT_EQ(pathsOfUriList(uriListOf(paths)), paths);
    EXPECT_EQ(pathsOfUriList(copiedFilesOf(paths)), paths);
    EXPECT_EQ(uriListOf({"/a b", "/ü"}), "file:///a%20b\r\nfile:///%C3%BC\r\n");
    EXPECT_EQ(copiedFilesOf({"/a b", "/c"}), "copy\nfile:///a%20b\nfile:///c");
}

} // namespace
} // namespace brindlex
