#include "architecture/Sources.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Whether the folder or one inside it has a header whose concept the test is named after, with or
/// without words that say which side of it.
bool hasSubject(const std::filesystem::path& folder, const std::string& test)
{
    std::error_code problem;
    for (const auto& item : std::filesystem::recursive_directory_iterator(folder, problem))
        if (item.path().extension() == ".h" && test.starts_with(item.path().stem().string()))
            return true;
    return false;
}

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
        // What tests share has its subject among the tests.
        EXPECT_TRUE(hasSubject(sources / folder, name) || hasSubject(tests / "support", name))
            << test;
    }
}

} // namespace
} // namespace brindlex
