#include "architecture/Sources.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(TestsMirrorSources, everyTestHasItsConceptInTheFolderOfTheSameName)
{
    for (const auto& test : sourceFiles(TESTS)) {
        const auto name = test.stem().string();
        const auto folder = test.parent_path();
        const bool isOfTheWholeProgram = folder == "architecture" || folder == "desktop";
        if (!name.ends_with("Test") || isOfTheWholeProgram)
            continue;
        const auto subject = name.substr(0, name.size() - std::string("Test").size());
        EXPECT_TRUE(exists(std::filesystem::path(SOURCES) / folder / (subject + ".h"))) << test;
    }
}

} // namespace
} // namespace brindlex
