#include "architecture/Sources.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(TestsMirrorSources, everyTestHasItsConceptInTheFolderOfTheSameName)
{
    const std::filesystem::path sources = SOURCES;
    const std::filesystem::path tests = TESTS;
    for (const auto& test : sourceFiles(tests)) {
        const auto name = test.stem().string();
        const auto folder = test.parent_path();
        const bool isOfTheWholeProgram = folder == "architecture" || folder == "desktop";
        if (!name.ends_with("Test") || isOfTheWholeProgram)
            continue;
        const auto subject = name.substr(0, name.size() - std::string("Test").size()) + ".h";
        // What tests share is tested beside itself.
        const auto& home = folder == "support" ? tests : sources;
        EXPECT_TRUE(exists(home / folder / subject)) << test;
    }
}

} // namespace
} // namespace brindlex
