#include "clipboard/ClipboardFingerprint.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ClipboardFingerprint, ofATextIsTheText)
{
    EXPECT_EQ(textFingerprint("hello\n world "), "text:hello\n world ");
    EXPECT_EQ(textFingerprint(std::string_view("a\0b", 3)), std::string("text:a\0b", 8));
}

// The examples of FIPS 180-2.
TEST(ClipboardFingerprint, ofAPictureIsTheHashOfItsBytes)
{
    EXPECT_EQ(imageFingerprint(""),
        "image:e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(imageFingerprint("abc"),
        "image:ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(imageFingerprint("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
        "image:248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(imageFingerprint(std::string(1'000'000, 'a')),
        "image:cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(ClipboardFingerprint, ofFilesIsTheirPathsInTheirOrder)
{
    EXPECT_EQ(fileFingerprint({"/a"}), "file:/a");
    EXPECT_EQ(fileFingerprint({"/b c", "/a"}), "file:/b c\n/a");
    EXPECT_EQ(fileFingerprint({"", "/a"}), "file:\n/a");
    EXPECT_EQ(fileFingerprint({}), "file:");
}

} // namespace
} // namespace brindlex
