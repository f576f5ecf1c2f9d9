#include "applications/FoldedText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(FoldedText, hasNeitherCaseNorAccents)
{
    EXPECT_EQ(foldedText("Éditeur ÑANDÚ"), "editeur nandu");
    EXPECT_EQ(foldedText("STRASSE"), foldedText("Straße"));
}

TEST(FoldedText, hasOneWidthOfLetters) { EXPECT_EQ(foldedText("Ｆｉｌｅｓ"), "files"); }

TEST(FoldedText, keepsWhatHasNoCase) { EXPECT_EQ(foldedText("文件 123"), "文件 123"); }

TEST(FoldedText, takesBytesThatAreNoText)
{
    EXPECT_EQ(foldedText("A\xff\xfeZ"), "a\xef\xbf\xbd\xef\xbf\xbdz");
    EXPECT_EQ(foldedText(""), "");
}

} // namespace
} // namespace brindlex
